#include "hostkit/DirectorySetup.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/NamedCase.h"

namespace qv {
namespace {

/// Directories that a host is given, and as it gives them.
struct Directories : NamedCase {
  std::wstring_view configuration;
  std::wstring_view images;
  const wchar_t* givenConfiguration;
  const wchar_t* givenImages;
};

class DirectorySetupOf : public testing::TestWithParam<Directories> {};

TEST_P(DirectorySetupOf, Directories) {
  const DirectorySetup setup(GetParam().configuration, GetParam().images, 1);
  EXPECT_EQ(setup.CfgPath(), GetParam().givenConfiguration);
  EXPECT_EQ(setup.getImageFilePath(), GetParam().givenImages);
}

constexpr std::wstring_view paths = L"/cfg/images";

constexpr Directories directories[] = {
    {"MissingSeparator", L"/etc/plant", L"/usr/share/plant", L"/etc/plant/", L"/usr/share/plant/"},
    {"SeparatorThatIsThere", L"/etc/plant/", L"images/", L"/etc/plant/", L"images/"},
    {"RootOfTheDisk", L"/", L"/", L"/", L"/"},
    {"WorkingDirectory", L"", L"", L"./", L"./"},
    {"TextsThatAreNotTerminated", paths.substr(0, 4), paths.substr(5), L"/cfg/", L"images/"},
};

INSTANTIATE_TEST_SUITE_P(Table, DirectorySetupOf, testing::ValuesIn(directories),
                         testing::PrintToStringParamName());

TEST(DirectorySetup, GivesTheIconNumberWithAllItsBits) {
  EXPECT_EQ(DirectorySetup(L"a", L"b", 0xFFFF0001U).ProgramIDResource(), 0xFFFF0001U);
}

}  // namespace
}  // namespace qv
