#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/Strings.h"

namespace qv {

inline constexpr int calendarLink = 5004;
inline constexpr int dayTypesLink = 5005;
inline constexpr int hourTypesLink = 5006;
inline constexpr int conditionsLink = 5008;
inline constexpr int descriptionLabel = 5266;
inline constexpr int descriptionEdit = 5267;
inline constexpr int nameLabel = 5268;
inline constexpr int typeLabel = 5269;
inline constexpr int nameEdit = 5270;
inline constexpr int setZeroCheck = 5346;
inline constexpr int typeCombo = 5351;

class Editor : public testing::Test {
 protected:
  void SetUp() override {
    host->setup.cfgPath = ToWide(directory.path() + QLatin1Char('/'));
    deviceGroups.Create(L"deviceGroups");
  }

  /// Puts a file into the directory and returns its path.
  QString AddFile(const QString& name, const QByteArray& content) {
    const QString path = directory.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
  }

  int Add(const std::function<void()>& script) {
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, nullptr);
    const int result = Drive([&] { return editor.DoModal(); }, script);
    modified = editor.m_modified;
    return result;
  }

  int Modify(const QString& path, const std::function<void()>& script) {
    const QVWideString file = ToWide(path);
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &file);
    const int result = Drive([&] { return editor.DoModal(); }, script);
    modified = editor.m_modified;
    return result;
  }

  QStringList Files() const { return QDir(directory.path()).entryList(QDir::Files, QDir::Name); }

  QByteArray Content(const QString& name) const {
    QFile file(directory.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  static QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(TopControl(id)); }
  static QComboBox* Combo() { return qobject_cast<QComboBox*>(TopControl(typeCombo)); }
  static bool IsTicked() {
    return qobject_cast<QAbstractButton*>(TopControl(setZeroCheck))->isChecked();
  }

  static void Type(int id, const char* text) {
    TopControl(id)->setFocus();
    QTest::keyClicks(TopControl(id), QString::fromUtf8(text));
  }

  static void ExpectVisible(std::initializer_list<int> shown, std::initializer_list<int> hidden) {
    for (int id : shown) {
      EXPECT_TRUE(TopControl(id)->isVisible()) << id;
    }
    for (int id : hidden) {
      EXPECT_FALSE(TopControl(id)->isVisible()) << id;
    }
  }

  static void ExpectSlots() {
    ExpectVisible({hourTypesLink, dayTypesLink, calendarLink}, {conditionsLink});
  }
  static void ExpectConditions() {
    ExpectVisible({conditionsLink}, {hourTypesLink, dayTypesLink, calendarLink});
  }

  QTemporaryDir directory;
  InstalledFakeHost host;
  XmlDocument deviceGroups;
  bool modified = false;
};

inline const QByteArray oldFile =
    "<main><id>1</id><name>old</name><description>about</description>"
    "<setZeroOutsideSlot>F</setZeroOutsideSlot><type>SLOTS</type><hourTypes/><dayTypes/>"
    "<calendar/><revision>r</revision></main>";

}  // namespace qv
