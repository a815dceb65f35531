#include "apps/configurator/Settings.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/TemporaryDirectory.h"

namespace configurator {
namespace {

class SettingsTest : public testing::Test {
 protected:
  const qv::TemporaryDirectory directory;
  const QString file = QString::fromStdString((directory.Path() / "new" / "a.ini").string());
};

TEST_F(SettingsTest, AtFirstNothingIsRemembered) {
  const Settings settings(file);
  EXPECT_FALSE(settings.Language());
  EXPECT_EQ(settings.Installation(), "");
  EXPECT_TRUE(settings.Window().isEmpty());
  EXPECT_TRUE(std::filesystem::is_empty(directory.Path())) << "reading makes no file";
}

TEST_F(SettingsTest, WhatIsSetIsThereInTheNextRun) {
  const QByteArray window("\0\1;=\"x", 6);
  const QString odd = QStringLiteral("/inst, «ñ» = 50 %;\\x");
  {
    Settings settings(file);
    settings.SetLanguage(qv::Language::Spanish);
    settings.SetInstallation(odd);
    settings.SetWindow(window);
  }
  const Settings next(file);
  EXPECT_EQ(next.Language(), qv::Language::Spanish);
  EXPECT_EQ(next.Installation(), odd);
  EXPECT_EQ(next.Window(), window);
}

TEST_F(SettingsTest, AFileOfNonsenseRemembersNothing) {
  const auto bad = directory.Path() / "bad.ini";
  std::ofstream(bad) << "[General\nlanguage=fr\n\xff\x00window==";
  const Settings settings(QString::fromStdString(bad.string()));
  EXPECT_FALSE(settings.Language());
  EXPECT_EQ(settings.Installation(), "");
}

TEST(Settings, TheFileOfTheUserIsAmongTheirSettings) {
  EXPECT_TRUE(Settings::FileOfThisUser().endsWith("/QVDiscriminator/configurator.ini"));
}

}  // namespace
}  // namespace configurator
