#pragma once

#include <QAbstractButton>

#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "tests/support/DialogTest.h"
#include "toolkit/Strings.h"
#include "tools/XmlDocument.h"

namespace qv {

/// The editor of a discriminator over a directory of its own.
class Editor : public DirectoryDialogTest {
 protected:
  Editor() { deviceGroups.Create(L"deviceGroups"); }

  int Add(const std::function<void()>& script) {
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, nullptr);
    return Play(editor, script);
  }

  int Modify(const QString& path, const std::function<void()>& script) {
    const QVWideString file = ToWide(path);
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &file);
    return Play(editor, script);
  }

  /// Puts a discriminator of slots, "old", into the directory and returns its path.
  QString PutOldFile() const { return PutFile("1.old.xdct", oldFile); }

  static bool IsTicked() { return TopControl<QAbstractButton>(setZeroCheck)->isChecked(); }

  static void ExpectSlots() {
    ExpectVisible({hourTypesLink, dayTypesLink, calendarLink}, {conditionsLink});
  }
  static void ExpectConditions() {
    ExpectVisible({conditionsLink}, {hourTypesLink, dayTypesLink, calendarLink});
  }

  static inline const QByteArray oldFile =
      "<main><id>1</id><name>old</name><description>about</description>"
      "<setZeroOutsideSlot>F</setZeroOutsideSlot><type>SLOTS</type><hourTypes/><dayTypes/>"
      "<calendar/><revision>r</revision></main>";

  XmlDocument deviceGroups;
};

}  // namespace qv
