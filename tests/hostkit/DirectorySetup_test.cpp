#include "hostkit/DirectorySetup.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(DirectorySetup, AddsAMissingSeparator) {
  const DirectorySetup setup(L"/etc/plant", L"/usr/share/plant", 1);
  EXPECT_EQ(setup.CfgPath(), L"/etc/plant/");
  EXPECT_EQ(setup.getImageFilePath(), L"/usr/share/plant/");
}

TEST(DirectorySetup, KeepsASeparatorThatIsThere) {
  const DirectorySetup setup(L"/etc/plant/", L"images/", 1);
  EXPECT_EQ(setup.CfgPath(), L"/etc/plant/");
  EXPECT_EQ(setup.getImageFilePath(), L"images/");
}

TEST(DirectorySetup, RootOfTheDiskStaysAsItIs) {
  const DirectorySetup setup(L"/", L"/", 1);
  EXPECT_EQ(setup.CfgPath(), L"/");
}

TEST(DirectorySetup, EmptyDirectoryIsTheWorkingDirectory) {
  const DirectorySetup setup(L"", L"", 1);
  EXPECT_EQ(setup.CfgPath(), L"./");
  EXPECT_EQ(setup.getImageFilePath(), L"./");
}

TEST(DirectorySetup, NeedsNoTerminatedText) {
  const std::wstring_view paths = L"/cfg/images";
  const DirectorySetup setup(paths.substr(0, 4), paths.substr(5), 1);
  EXPECT_EQ(setup.CfgPath(), L"/cfg/");
  EXPECT_EQ(setup.getImageFilePath(), L"images/");
}

TEST(DirectorySetup, GivesTheIconNumberWithAllItsBits) {
  EXPECT_EQ(DirectorySetup(L"a", L"b", 0xFFFF0001U).ProgramIDResource(), 0xFFFF0001U);
}

}  // namespace
}  // namespace qv
