#pragma once

#include <functional>
#include <initializer_list>

#include "discriminator/DiscriminatorDocument.h"
#include "host/EditorEnd.h"
#include "host/Host.h"
#include "host/Prompter.h"
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

/// One discriminator while it is edited: its document, which the form owns, and the rules of saving
/// it.
///
/// Nothing is written to the disk but by `Save`.
class DiscriminatorForm {
 public:
  /// The number of characters that may be typed into the name.
  static constexpr int longestTypedName = 80;

  /// What the form works with; all of it must outlive the form.
  struct Surroundings {
    Host host;
    Files& files;
    Prompter& prompter;
    XmlNode* deviceGroups;  ///< the caller's copy of the host's node, or null
  };

  /// A new discriminator if `filePath` is null, else the one of that file. A file without id gets
  /// one.
  DiscriminatorForm(const Surroundings& surroundings, const QVWideString* filePath);

  /// False if the file could not be loaded: the form then has no document, and nothing but this may
  /// be asked.
  bool IsLoaded() const { return m_document.Root() != nullptr; }

  /// Whether there was no file to open.
  bool IsNew() const { return m_filePath.Empty(); }

  /// What the controls show at the start: blank texts for a new discriminator.
  DiscriminatorFields InitialFields() const;

  /// Whether the type may be chosen: not if the installation was an embedded one at the start.
  bool IsTypeSelectable() const { return m_typeSelectable; }

  /// Whether the type in force is time slots; any other word counts as conditions.
  bool HasSlots() const;

  /// Changes the type: index 0 is slots, any other conditions. Makes the containers that are
  /// missing and removes nothing, so that switching back finds all as it was.
  void SelectType(int index);

  /// Runs the dialog of the hour types on copies of hour types and day types, and takes both over
  /// if it was confirmed, also without a change. On any other end the document stays as it was.
  void OnHourTypes(
      const std::function<EditorEnd(XmlNode* hourTypes, XmlNode* dayTypes)>& runHourTypes);

  /// The same for the dialog of the day types, on copies of calendar, day types and hour types.
  void OnDayTypes(const std::function<EditorEnd(XmlNode* dayTypes, XmlNode* calendar,
                                                XmlNode* hourTypes)>& runDayTypes);

  /// Checks what was typed, writes the discriminator's file in place of the old one, and has its
  /// index made. True if the file was written; otherwise the user has been told why.
  ///
  /// The old file goes before the new one is written: after a failure of the disk neither is there,
  /// and the document in memory, which has the new values, is what may be saved again.
  bool Save(const DiscriminatorFields& typed);

  /// Whether the content differs from what was opened; never cleared.
  bool IsModified() const { return m_modified; }

  const XmlNode& Root() const { return *m_document.Root(); }

 private:
  bool IsAccepted(const DiscriminatorFields& typed);
  bool NameExists(const QVWideString& name) const;
  void TakeOver(const wchar_t* tag, const QVWideString& value);
  XmlNode& Part(const wchar_t* tag) { return *m_document.Root()->Node(tag); }
  /// Takes the parts over if the dialog that worked on these copies was confirmed.
  void TakeBack(const EditorEnd& end, std::initializer_list<const XmlDocument*> copies);
  void RemoveOldFiles();
  bool WriteFile();

  Surroundings m_surroundings;
  XmlDocument m_document;
  QVWideString m_filePath;
  QVWideString m_initialName;  ///< the name that may be kept although a file has it
  QVWideString m_type;
  bool m_typeSelectable = true;
  bool m_newId = false;
  bool m_modified = false;
};

}  // namespace qv
