#include "hostkit/ExpressionBrackets.h"

#include <gtest/gtest.h>

#include "hostkit/VariableNames.h"

namespace qv {
namespace {

/// The starts of both brackets.
std::optional<std::pair<int, int>> StartsAt(const wchar_t* expression, int cursor) {
  const auto brackets = BracketsAt(expression, cursor);
  return brackets ? std::optional(std::pair(brackets->opening.start, brackets->closing.start))
                  : std::nullopt;
}

TEST(ExpressionBrackets, AreFoundFromEitherSideOfEither) {
  for (const int cursor : {1, 2, 4, 5}) {
    EXPECT_EQ(StartsAt(L"1(23)4", cursor), std::pair(1, 4)) << cursor;
  }
  EXPECT_EQ(StartsAt(L"1(23)4", 3), std::nullopt);
}

TEST(ExpressionBrackets, BelongTogetherByDepth) {
  EXPECT_EQ(StartsAt(L"(a(b)c)", 0), std::pair(0, 6));
  EXPECT_EQ(StartsAt(L"(a(b)c)", 3), std::pair(2, 4));
}

TEST(ExpressionBrackets, BeforeTheCursorComeFirst) {
  EXPECT_EQ(StartsAt(L"(1)(2)", 3), std::pair(0, 2));
}

TEST(ExpressionBrackets, OfNamesCount) {
  EXPECT_EQ(StartsAt(L"[A.B(]] ] + 1", 0), std::pair(0, 8));
  EXPECT_EQ(StartsAt(L"[A.B(]] ] + 1", 5), std::nullopt);
}

TEST(ExpressionBrackets, WithoutPartnerAreNone) {
  EXPECT_EQ(StartsAt(L"(1", 0), std::nullopt);
  EXPECT_EQ(StartsAt(L"1)", 2), std::nullopt);
  EXPECT_EQ(StartsAt(L"[A.B", 0), std::nullopt);
  EXPECT_EQ(StartsAt(L"", 0), std::nullopt);
}

TEST(VariableNames, AreWrittenAsShortAsCanBe) {
  EXPECT_EQ(WrittenName(L"TS1", L"VL1"), L"TS1.VL1");
  EXPECT_EQ(WrittenName(L"R$DISC_a", L"_x"), L"R$DISC_a._x");
  EXPECT_EQ(WrittenName(L"TS 1", L"VL1"), L"[TS 1.VL1]");
  EXPECT_EQ(WrittenName(L"BILLING", L"1.8.0"), L"[BILLING.1.8.0]");
  EXPECT_EQ(WrittenName(L"1A", L"B"), L"[1A.B]");
  EXPECT_EQ(WrittenName(L"Línea", L"a]b"), L"[Línea.a]]b]");
  EXPECT_EQ(WrittenStart(L"TS1"), L"TS1.");
  EXPECT_EQ(WrittenStart(L"TS 1"), L"[TS 1.]");
}

TEST(VariableNames, ThatNoExpressionCanHaveAreNotWritten) {
  EXPECT_EQ(WrittenName(L"A.B", L"C"), std::nullopt);
  EXPECT_EQ(WrittenName(L"", L"C"), std::nullopt);
  EXPECT_EQ(WrittenName(L"A", L""), std::nullopt);
  EXPECT_EQ(WrittenStart(L"A.B"), std::nullopt);
}

}  // namespace
}  // namespace qv
