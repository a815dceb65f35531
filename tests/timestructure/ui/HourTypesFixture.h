#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/ColourSwatch.h"
#include "toolkit/Strings.h"
#include "toolkit/Types.h"
#include "tools/XmlDocument.h"

namespace qv {

inline constexpr int valueEdit = 5010;
inline constexpr int swatch = 5261;
inline constexpr int valueLabel = 5269;
inline constexpr int nameEdit = 5350;

/// The hour types "day", red, and "night", blue, with a host.
class HourTypesFixture : public testing::Test {
 protected:
  HourTypesFixture() {
    EXPECT_TRUE(
        document.Parse("<hourTypes><hour><id>1</id><name>night</name><color>FF0000</color></hour>"
                       "<other/><hour><id>2</id><name>day</name><color>0000FF</color>"
                       "<value>7</value></hour></hourTypes>"));
    before = std::make_unique<XmlNode>(Hours());
  }

  XmlNode& Hours() { return *document.Root(); }
  XmlNode& Hour(const wchar_t* name) { return *Hours().NodeV(L"hour?name=%s?", name); }

  void MakeEmbedded() { host->AddDevice(L"KORVAXEMBEDDED"); }

  static QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(TopControl(id)); }
  static ColourSwatch* Swatch() { return qobject_cast<ColourSwatch*>(TopControl(swatch)); }

  static void Type(int id, const QString& text) {
    Edit(id)->setFocus();
    Edit(id)->selectAll();
    QTest::keyClicks(Edit(id), text);
  }

  /// Lets the next colour dialog end with this colour, or be cancelled.
  static void ChooseNextColour(const QColor& colour, bool confirm = true) {
    WhenNextWindow([=] {
      auto* dialog = qobject_cast<QColorDialog*>(TopWindow());
      ASSERT_TRUE(dialog);
      dialog->setCurrentColor(colour);
      QTest::keyClick(dialog, confirm ? Qt::Key_Return : Qt::Key_Escape);
    });
  }

  InstalledFakeHost host;
  XmlDocument document;
  std::unique_ptr<XmlNode> before;
};

}  // namespace qv
