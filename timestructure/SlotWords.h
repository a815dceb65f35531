#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "timestructure/STagSlot.h"
#include "tools/XmlNode.h"

namespace qv {

/// The forms in which a slot is told.
struct SlotForms {
  std::wstring times = L"%s-%s";  ///< by its start and its end, as in "from %s to %s"
  std::wstring typed{};           ///< by hour type, start and end; empty to tell of no type
};

/// What of the slot lies in the day, in words; empty for a slot that isn't drawn. `hourType` is the
/// name of its hour type, empty if that isn't known.
std::wstring SlotInWords(const STagSlot& slot, const QVWideString& hourType,
                         const SlotForms& forms);

/// The slots in words, in their order, joined by semicolons. `hourTypes` has the names of their
/// hour types, as far as they are known. Empty for none.
std::wstring SlotsInWords(const std::vector<STagSlot>& day,
                          const std::vector<QVWideString>& hourTypes, const SlotForms& forms);

/// The name of the hour type of each slot of `day`, in their order; empty where there is none. None
/// if `day` is null.
std::vector<QVWideString> HourTypesOfSlots(const XmlNode* day, const XmlNode* hourTypes);

}  // namespace qv
