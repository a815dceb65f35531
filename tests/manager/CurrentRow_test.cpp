#include "manager/CurrentRow.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

/// Rows of discriminators by their stems.
std::vector<STagDiscriminatorRow> Rows(std::initializer_list<const wchar_t*> stems) {
  std::vector<STagDiscriminatorRow> rows;
  for (const wchar_t* stem : stems) {
    rows.push_back({static_cast<int>(rows.size()), {stem, stem, L""}});
  }
  return rows;
}

TEST(CurrentRow, IsTheNewOne) {
  EXPECT_EQ(CurrentRow(Rows({L"1.a", L"2.c"}), 1, Rows({L"1.a", L"3.b", L"2.c"})), 1);
  EXPECT_EQ(CurrentRow(Rows({L"1.a"}), std::nullopt, Rows({L"1.a", L"2.b", L"3.c"})), 1);
}

TEST(CurrentRow, FollowsTheDiscriminatorUnderItsNewName) {
  EXPECT_EQ(CurrentRow(Rows({L"1.a", L"2.b", L"3.c"}), 0, Rows({L"2.b", L"3.c", L"1.z"})), 2);
  EXPECT_EQ(CurrentRow(Rows({L"1.a", L"2.b"}), 1, Rows({L"1.a", L"2.b"})), 1);
}

TEST(CurrentRow, IsTheOneAtThePlaceOfOneThatHasGone) {
  EXPECT_EQ(CurrentRow(Rows({L"1.a", L"2.b", L"3.c"}), 1, Rows({L"1.a", L"3.c"})), 1);
  EXPECT_EQ(CurrentRow(Rows({L"1.a", L"2.b"}), 1, Rows({L"1.a"})), 0);
  EXPECT_EQ(CurrentRow(Rows({L"1.a"}), 0, {}), std::nullopt);
}

TEST(CurrentRow, IsNoneIfNoneWas) {
  EXPECT_EQ(CurrentRow({}, std::nullopt, Rows({L"1.a"})), std::nullopt) << "the first reading";
  EXPECT_EQ(CurrentRow(Rows({L"1.a"}), std::nullopt, Rows({L"1.a"})), std::nullopt);
  EXPECT_EQ(CurrentRow(Rows({L"1.a"}), 5, Rows({L"1.a"})), std::nullopt);
}

}  // namespace
}  // namespace qv
