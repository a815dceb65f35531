#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <functional>

#include "manager/ui/CDlgSetupDiscriminators.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/Strings.h"

namespace qv {

inline constexpr int exitButton = 1;
inline constexpr int box = 5264;
inline constexpr int list = 5265;
inline constexpr int removeButton = 5347;
inline constexpr int addButton = 5348;
inline constexpr int modifyButton = 5349;
inline constexpr int nameEdit = 5270;

/// The real manager dialog over a directory of its own.
class SetupDiscriminators : public testing::Test {
 protected:
  void SetUp() override {
    host->setup.cfgPath = ToWide(directory.path() + QLatin1Char('/'));
    host->setup.imagePath = ToWide(QStringLiteral(IMAGE_FOLDER "/"));
  }

  void AddFile(const QString& id, const QString& name, const QString& description,
               const QString& type = QStringLiteral("SLOTS")) {
    const auto content = QStringLiteral(
                             "<main><id>%1</id><name>%2</name><description>%3</description>"
                             "<type>%4</type></main>")
                             .arg(id, name, description, type);
    QFile file(directory.filePath(id + QLatin1Char('.') + name + QStringLiteral(".xdct")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content.toUtf8());
  }

  int Run(const std::function<void()>& script) {
    CDlgSetupDiscriminators dialog(nullptr, nullptr);
    return Drive([&] { return dialog.DoModal(); }, script);
  }

  static QTreeWidget* List() { return qobject_cast<QTreeWidget*>(TopControl(list)); }

  static QStringList Names() {
    QStringList names;
    for (int i = 0; i < List()->topLevelItemCount(); ++i) {
      names << List()->topLevelItem(i)->text(0);
    }
    return names;
  }

  static void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = List()->visualItemRect(List()->topLevelItem(row));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, place.center());
  }

  static void ExpectButtons(bool add, bool modify, bool remove) {
    EXPECT_EQ(TopControl(addButton)->isEnabled(), add);
    EXPECT_EQ(TopControl(modifyButton)->isEnabled(), modify);
    EXPECT_EQ(TopControl(removeButton)->isEnabled(), remove);
  }

  QTemporaryDir directory;
  InstalledFakeHost host;
};

/// Fills the editor that the next event opens, and leaves it by this control.
inline void EditNext(const QString& name, int leaveBy) {
  WhenNextWindow([=] {
    auto* edit = qobject_cast<QLineEdit*>(TopControl(nameEdit));
    ASSERT_TRUE(edit);
    edit->selectAll();
    QTest::keyClicks(edit, name);
    Click(leaveBy);
  });
}

}  // namespace qv
