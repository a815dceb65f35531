#include "apps/configurator/StatusLine.h"

#include <gtest/gtest.h>

#include <QLabel>

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

TEST(StatusLine, ALongPathDoesNotWidenIt) {
  StatusLine line;
  const int before = line.minimumSizeHint().width();
  line.SetPath(QString(2000, QLatin1Char('x')));
  EXPECT_EQ(line.minimumSizeHint().width(), before);
  EXPECT_EQ(line.findChild<QLabel*>("path")->text().size(), 2000);
}

}  // namespace
}  // namespace configurator
