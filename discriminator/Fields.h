#pragma once

/// The tags of a discriminator's document and of the host's device groups.
namespace qv::tag {

inline constexpr wchar_t Main[] = L"main";  ///< root of a new discriminator
inline constexpr wchar_t Root[] = L"root";  ///< root that is valid as well

inline constexpr wchar_t Id[] = L"id";
inline constexpr wchar_t Name[] = L"name";
inline constexpr wchar_t Description[] = L"description";
inline constexpr wchar_t SetZeroOutsideSlot[] = L"setZeroOutsideSlot";
inline constexpr wchar_t Type[] = L"type";
inline constexpr wchar_t Revision[] = L"revision";
inline constexpr wchar_t Color[] = L"color";
inline constexpr wchar_t Value[] = L"value";
inline constexpr wchar_t From[] = L"from";
inline constexpr wchar_t To[] = L"to";
inline constexpr wchar_t Expression[] = L"exp";

inline constexpr wchar_t HourTypes[] = L"hourTypes";
inline constexpr wchar_t DayTypes[] = L"dayTypes";
inline constexpr wchar_t Calendar[] = L"calendar";
inline constexpr wchar_t Conditions[] = L"conditions";

inline constexpr wchar_t Hour[] = L"hour";            ///< child of hourTypes
inline constexpr wchar_t Day[] = L"day";              ///< child of dayTypes
inline constexpr wchar_t Slot[] = L"slot";            ///< child of a day
inline constexpr wchar_t Year[] = L"year";            ///< child of calendar, and its field
inline constexpr wchar_t Condition[] = L"condition";  ///< child of conditions

inline constexpr wchar_t DeviceGroups[] = L"deviceGroups";
inline constexpr wchar_t Devices[] = L"devices";
inline constexpr wchar_t Device[] = L"device";
inline constexpr wchar_t Groups[] = L"groups";

}  // namespace qv::tag

/// Values that the documents use as words.
namespace qv::word {

inline constexpr wchar_t Slots[] = L"SLOTS";
inline constexpr wchar_t Conditions[] = L"CONDITIONS";
inline constexpr wchar_t DiscriminatorDevice[] = L"R$DISC";

}  // namespace qv::word
