#pragma once

#include "manager/ui/CDlgSetupDiscriminators.h"
#include "tests/support/DialogTest.h"
#include "toolkit/Strings.h"

namespace qv {

/// The real manager dialog over a directory of its own.
class SetupDiscriminators : public DirectoryDialogTest {
 protected:
  SetupDiscriminators() { host->setup.imagePath = ToWide(QStringLiteral(IMAGE_FOLDER "/")); }

  void AddFile(const QString& id, const QString& name, const QString& description,
               const QString& type = QStringLiteral("SLOTS")) const {
    const auto content = QStringLiteral(
                             "<main><id>%1</id><name>%2</name><description>%3</description>"
                             "<type>%4</type></main>")
                             .arg(id, name, description, type);
    PutFile(id + QLatin1Char('.') + name + QStringLiteral(".xdct"), content.toUtf8());
  }

  int Run(const std::function<void()>& script) {
    CDlgSetupDiscriminators dialog(nullptr, nullptr);
    return Play(dialog, script);
  }

  static QTreeWidget* TheList() { return List(discriminatorList); }
  static QStringList Shown() { return Names(discriminatorList); }
};

/// Fills the editor that the next event opens, and leaves it by this control.
inline void EditNext(const QString& name, int leaveBy) {
  WhenNextWindow([=] {
    Type(discriminatorName, name);
    Click(leaveBy);
  });
}

}  // namespace qv
