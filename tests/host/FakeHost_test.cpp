#include "tests/support/FakeHost.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "host/Installation.h"
#include "tests/support/CountingProgress.h"

namespace qv {
namespace {

TEST(FakeHost, StartsWithKnownDirectoriesAndAnEmptyConfiguration) {
  FakeHost fake;
  const Host host = fake.Services();
  EXPECT_EQ(host.setup.CfgPath(), L"/cfg/");
  EXPECT_EQ(host.setup.getImageFilePath(), L"/images/");
  ASSERT_NE(host.mainCfg.Root(), nullptr);
  EXPECT_EQ(host.mainCfg.Root()->ChildsBegin(), host.mainCfg.Root()->ChildsEnd());
}

TEST(FakeHost, RecordsNoticesInOrder) {
  FakeHost fake;
  const Host host = fake.Services();
  host.guids.invalidateGuid(QVVornelGuids::Discriminators, true);
  host.guids.invalidateGuid(QVVornelGuids::DeviceGroups, true);
  EXPECT_EQ(fake.guids.notices, (std::vector<int>{8, 5}));
}

TEST(FakeHost, NoticeWithoutItsFlagFailsTheTest) {
  RecordingGuids guids;
  EXPECT_NONFATAL_FAILURE(guids.invalidateGuid(5, false), "notice 5 without its flag");
}

TEST(FakeHost, TextsShowTheirNumber) {
  FakeHost fake;
  EXPECT_EQ(fake.Services().loadString.Load(Text::DiscriminatorListTitle), L"[32367]");
  EXPECT_FALSE(fake.loadString.Has(60000));
  fake.loadString.additions.insert(Text::ReadingDiscriminators);
  EXPECT_TRUE(fake.loadString.Has(60000));
}

TEST(FakeHost, RecordsWhatAnIndexIsAskedFor) {
  FakeHost fake;
  EXPECT_TRUE(fake.Services().createIndex(L"/cfg/", L"A.xdct"));
  fake.createIndex.result = false;
  EXPECT_FALSE(fake.Services().createIndex(L"/cfg/", L"B.xdct"));
  const std::vector<std::pair<std::wstring, std::wstring>> expected = {{L"/cfg/", L"A.xdct"},
                                                                       {L"/cfg/", L"B.xdct"}};
  EXPECT_EQ(fake.createIndex.calls, expected);
}

TEST(FakeHost, AddedDevicesAreThoseOfTheConfiguration) {
  FakeHost fake;
  fake.AddDevice(L"A");
  EXPECT_FALSE(IsEmbedded(fake.mainCfg));
  fake.AddDevice(L"KORVAXEMBEDDED");
  EXPECT_TRUE(IsEmbedded(fake.mainCfg));
}

TEST(InstalledFakeHost, PutsBackTheServicesOfBefore) {
  {
    InstalledFakeHost outer;
    {
      InstalledFakeHost inner;
      EXPECT_EQ(QVVornelSetup::Get(), &inner->setup);
    }
    EXPECT_EQ(QVVornelSetup::Get(), &outer->setup);
    EXPECT_EQ(QVMainCfg::Get(), &outer->mainCfg);
    EXPECT_EQ(QVVornelGuids::Get(), &outer->guids);
    EXPECT_EQ(QVLoadString::Get(), &outer->loadString);
    EXPECT_EQ(CreateDiscriminatorIndex::Get(), &outer->createIndex);
  }
  EXPECT_FALSE(InstalledHost());
  EXPECT_EQ(QVVornelSetup::Get(), nullptr);
}

TEST(CountingProgress, StopsWhereItWasTold) {
  CountingProgress endless;
  CountingProgress stopping(1);
  for (std::size_t done = 0; done < 3; ++done) {
    EXPECT_TRUE(endless.Advance(done, 3));
    EXPECT_EQ(stopping.Advance(done, 3), done != 1);
  }
  const std::vector<std::pair<std::size_t, std::size_t>> expected = {{0, 3}, {1, 3}, {2, 3}};
  EXPECT_EQ(endless.steps, expected);
  EXPECT_EQ(stopping.steps, expected);
}

}  // namespace
}  // namespace qv
