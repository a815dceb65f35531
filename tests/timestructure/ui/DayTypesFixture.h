#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/ReportList.h"
#include "toolkit/Strings.h"
#include "toolkit/Types.h"
#include "tools/XmlDocument.h"

namespace qv {

inline constexpr int gridBox = 5301;
inline constexpr int typeCombo = 5305;
inline constexpr int fromHours = 5313;
inline constexpr int fromHoursSpin = 5311;
inline constexpr int fromMinutes = 5316;
inline constexpr int toHours = 5320;
inline constexpr int toHoursSpin = 5318;
inline constexpr int toMinutes = 5324;
inline constexpr int toMinutesSpin = 5322;
inline constexpr int slotsView = 5303;
inline constexpr int removeButton = 5347;
inline constexpr int addButton = 5348;
inline constexpr int modifyButton = 5349;
inline constexpr int dayName = 5299;
inline constexpr int daySwatch = 5262;
inline constexpr int hourName = 5350;

/// The day type "work", a whole day of two slots, and "feast", over the hour types "peak", red, and
/// "valley", blue; with a host.
class DayTypesFixture : public testing::Test {
 protected:
  static std::unique_ptr<XmlNode> Parsed(const std::string& text) {
    XmlDocument document;
    EXPECT_TRUE(document.Parse(text.c_str()));
    return std::make_unique<XmlNode>(*document.Root());
  }

  XmlNode& Day(const wchar_t* name) { return *days->NodeV(L"day?name=%s?", name); }

  static QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(TopControl(id)); }
  static QComboBox* Combo() { return qobject_cast<QComboBox*>(TopControl(typeCombo)); }
  static ReportList* List() { return qobject_cast<ReportList*>(TopControl(slotsView)); }

  static void Type(int id, const QString& text) {
    Edit(id)->setFocus();
    Edit(id)->selectAll();
    QTest::keyClicks(Edit(id), text);
  }

  static QStringList Rows() {
    QStringList rows;
    for (int row = 0; row < List()->topLevelItemCount(); ++row) {
      const auto* item = List()->topLevelItem(row);
      rows += item->text(0) +
              (List()->columnCount() > 1 ? " " + item->text(1) + "-" + item->text(2) : QString());
    }
    return rows;
  }

  static void ClickRow(int row) {
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                      List()->visualItemRect(List()->topLevelItem(row)).center());
  }

  std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>p</id><name>peak</name><color>0000FF</color></hour>"
      "<hour><id>v</id><name>valley</name><color>FF0000</color></hour></hourTypes>");
  std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>1</id><name>work</name><color>80CCFF</color>"
      "<slot><id>p</id><from>00:00</from><to>12:00</to></slot>"
      "<slot><id>v</id><from>12:00</from><to>24:00</to></slot></day>"
      "<day><id>2</id><name>feast</name><color>00FF00</color></day></dayTypes>");
  const XmlNode hoursBefore{*hours};
  const XmlNode daysBefore{*days};
  InstalledFakeHost host;
  bool modified = false;
};

}  // namespace qv
