#include "host/HostService.h"

#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace qv {
namespace {

TEST(HostService, NoneIsInstalledAtFirst) {
  EXPECT_EQ(QVVornelSetup::Get(), nullptr);
  EXPECT_EQ(QVMainCfg::Get(), nullptr);
  EXPECT_EQ(QVVornelGuids::Get(), nullptr);
  EXPECT_EQ(QVLoadString::Get(), nullptr);
  EXPECT_EQ(CreateDiscriminatorIndex::Get(), nullptr);
}

TEST(HostService, GetGivesWhatWasInstalled) {
  NumberTexts texts;
  QVLoadString::Install(&texts);
  EXPECT_EQ(QVLoadString::Get(), &texts);
  QVLoadString::Install(nullptr);
  EXPECT_EQ(QVLoadString::Get(), nullptr);
}

TEST(HostService, InstallReturnsTheOneBefore) {
  FakeSetup first;
  FakeSetup second;
  EXPECT_EQ(QVVornelSetup::Install(&first), nullptr);
  EXPECT_EQ(QVVornelSetup::Install(&second), &first);
  EXPECT_EQ(QVVornelSetup::Install(nullptr), &second);
  EXPECT_EQ(QVVornelSetup::Install(nullptr), nullptr);
}

TEST(HostService, OneServiceSaysNothingAboutTheOthers) {
  RecordingGuids guids;
  QVVornelGuids::Install(&guids);
  EXPECT_EQ(QVVornelSetup::Get(), nullptr);
  EXPECT_EQ(QVMainCfg::Get(), nullptr);
  EXPECT_EQ(QVLoadString::Get(), nullptr);
  EXPECT_EQ(CreateDiscriminatorIndex::Get(), nullptr);
  QVVornelGuids::Install(nullptr);
}

TEST(HostService, NoticesHaveASecondSpellingOfGet) {
  EXPECT_EQ(QVVornelGuids::get(), nullptr);
  RecordingGuids guids;
  QVVornelGuids::Install(&guids);
  EXPECT_EQ(QVVornelGuids::get(), &guids);
  QVVornelGuids::Install(nullptr);
}

}  // namespace
}  // namespace qv
