#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "discriminator/Containers.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "host/EditorEnd.h"
#include "host/Host.h"
#include "host/SaveEnd.h"
#include "tools/Files.h"
#include "tools/XmlDocument.h"

namespace qv {

/// What the user types into the editor of a discriminator.
struct DiscriminatorFields {
  QVWideString name;
  QVWideString description;
  bool setZeroOutsideSlot = true;

  friend bool operator==(const DiscriminatorFields&, const DiscriminatorFields&) = default;
};

/// The two types that the user can choose.
enum class DiscriminatorType { Slots, Conditions };

/// What the editor of a discriminator works with; all that it refers to outlives the editor.
struct EditorServices {
  Host host;
  Files& files;
  XmlNode* deviceGroups;  ///< the caller's copy of the host's node, or null
};

/// One discriminator while it is edited: its document, which the form owns, and the rules of saving
/// it.
///
/// Nothing is written to the disk but by `Save`.
class DiscriminatorForm {
 public:
  /// The number of characters that may be typed into the name.
  static constexpr int longestTypedName = 80;

  /// A new discriminator if `filePath` is null, else the one of that file, or null if it can't be
  /// loaded; `refusal`, if given, then says why. A file without id gets one.
  [[nodiscard]] static std::unique_ptr<DiscriminatorForm> Open(
      const EditorServices& services, const QVWideString* filePath,
      std::optional<Refusal>* refusal = nullptr);

  /// Whether there was no file to open.
  bool IsNew() const { return m_filePath.Empty(); }

  /// What the controls show at the start: blank texts for a new discriminator.
  DiscriminatorFields InitialFields() const;

  /// Whether the type may be chosen: not if the installation was an embedded one at the start.
  bool IsTypeSelectable() const { return m_typeSelectable; }

  /// The type in force; any word of a file but that of slots counts as conditions.
  DiscriminatorType Type() const;

  /// Changes the type. Makes the containers that are missing and removes nothing, so that switching
  /// back finds all as it was.
  void SelectType(DiscriminatorType type);

  /// Runs the dialog of the hour types on copies of hour types and day types, and takes both over
  /// if it was confirmed, also without a change. On any other end the document stays as it was.
  void OnHourTypes(const std::function<EditorEnd(HourTypes, DayTypes)>& runHourTypes);

  /// The same for the dialog of the day types, on copies of calendar, day types and hour types.
  void OnDayTypes(const std::function<EditorEnd(DayTypes, Calendar, HourTypes)>& runDayTypes);

  /// The same for the dialog of the calendar.
  void OnCalendar(const std::function<EditorEnd(Calendar, DayTypes, HourTypes)>& runCalendar);

  /// The same for the dialog of the conditions. If the document has none any more, since a save
  /// under an unknown type has dropped them, it begins with an empty list.
  void OnConditions(const std::function<EditorEnd(OrderedConditions)>& runConditions);

  /// Checks what was typed, writes the discriminator's file in place of the old one, and has its
  /// index made. It is written even if it is `Unchanged`, which only means that there was no new
  /// revision.
  ///
  /// The old file goes before the new one is written: after a failure of the disk neither is there,
  /// and the document in memory, which has the new values, is what may be saved again.
  SaveEnd Save(const DiscriminatorFields& typed);

  /// Whether the content differs from what was opened; never cleared.
  bool IsModified() const { return m_modified; }

  const XmlNode& Root() const { return *m_document->Root(); }

 private:
  DiscriminatorForm(const EditorServices& services, const QVWideString* filePath,
                    std::unique_ptr<XmlDocument> document);

  XmlNode& Content() { return *m_document->Root(); }
  /// Runs a dialog on copies of the three parts of a discriminator of slots, and takes them over if
  /// it was confirmed.
  void EditSlotParts(const std::function<EditorEnd(Calendar, DayTypes, HourTypes)>& run);
  [[nodiscard]] std::optional<Refusal> Fault(const DiscriminatorFields& typed) const;
  bool NameExists(const QVWideString& name) const;
  void TakeOver(const DiscriminatorFields& typed);
  void TakeOver(const wchar_t* tag, const QVWideString& value);
  void RemoveOldFiles();
  bool WriteFile();
  Addition AboutNewFile() const;
  DiscriminatorDirectory Directory() const;

  EditorServices m_services;
  std::unique_ptr<XmlDocument> m_document;
  QVWideString m_filePath;
  QVWideString m_initialName;  ///< the name that may be kept although a file has it
  QVWideString m_type;
  bool m_typeSelectable = true;
  bool m_newId = false;
  bool m_modified = false;
};

}  // namespace qv
