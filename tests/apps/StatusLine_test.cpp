#include "apps/configurator/StatusLine.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

namespace configurator {
namespace {

TEST(StatusLine, NoticesAddUpUntilSomethingElseIsTold) {
  StatusLine line;
  line.AddNotice(8);
  EXPECT_EQ(line.Told(), "Discriminator files changed (8)");
  line.AddNotice(5);
  EXPECT_EQ(line.Told(), "Discriminator files changed (8) · Device groups changed (5)");
  line.AddNotice(8);
  EXPECT_EQ(line.Told(), "Discriminator files changed (8) ×2 · Device groups changed (5)");
  line.Tell(OwnText::ConfigurationSaved);
  EXPECT_EQ(line.Told(), "Configuration saved");
  line.AddNotice(5);
  EXPECT_EQ(line.Told(), "Device groups changed (5)");
}

TEST(StatusLine, AnotherPartIsToldByItsNumber) {
  StatusLine line;
  line.AddNotice(17);
  EXPECT_EQ(line.Told(), "A part of the configuration changed (17)");
}

TEST(StatusLine, WhatWasToldChangesItsLanguage) {
  StatusLine line;
  line.SetLanguage(qv::Language::Spanish);
  EXPECT_EQ(line.Told(), "Listo");
  line.AddNotice(5);
  EXPECT_EQ(line.Told(), "Han cambiado los grupos de dispositivos (5)");
  line.SetLanguage(qv::Language::English);
  EXPECT_EQ(line.Told(), "Device groups changed (5)");
}

/// The widths of what is told and of the path on a line that is 600 wide.
struct Widths {
  int told = 0;
  int path = 0;
  int toldInFull = 0;
  int pathInFull = 0;
};
Widths WidthsOf(StatusLine& line) {
  line.resize(600, line.sizeHint().height());
  line.show();
  QTest::qWait(0);
  const auto* told = line.findChild<QLabel*>("told");
  const auto* path = line.findChild<QLabel*>("path");
  return {told->width(), path->width(), told->sizeHint().width(), path->sizeHint().width()};
}

TEST(StatusLine, WhatIsToldHasTheRoomThatAShortPathLeaves) {
  StatusLine line;
  line.SetPath("/inst");
  line.AddNotice(8);
  line.AddNotice(5);
  const Widths widths = WidthsOf(line);
  EXPECT_GT(widths.toldInFull, 300) << "more than half of the line";
  EXPECT_GE(widths.told, widths.toldInFull);
  EXPECT_GE(widths.path, widths.pathInFull);
}

TEST(StatusLine, APathHasTheRoomThatAShortWordLeaves) {
  StatusLine line;
  line.SetPath("/" + QString(35, QLatin1Char('m')));
  const Widths widths = WidthsOf(line);
  EXPECT_GT(widths.pathInFull, 300);
  EXPECT_GE(widths.told, widths.toldInFull);
  EXPECT_GE(widths.path, widths.pathInFull);
}

TEST(StatusLine, WhereBothAreTooLongThePathIsCutFirst) {
  StatusLine line;
  line.SetPath(QString(200, QLatin1Char('m')));
  for (const int id : {8, 5, 17, 18}) {
    line.AddNotice(id);
  }
  const Widths widths = WidthsOf(line);
  EXPECT_NEAR(widths.path, 200, 10);
  EXPECT_NEAR(widths.told, 400, 25);
}

TEST(StatusLine, ALongPathDoesNotWidenIt) {
  StatusLine line;
  const int before = line.minimumSizeHint().width();
  line.SetPath(QString(2000, QLatin1Char('x')));
  EXPECT_EQ(line.minimumSizeHint().width(), before);
  EXPECT_EQ(line.findChild<QLabel*>("path")->text().size(), 2000);
}

}  // namespace
}  // namespace configurator
