#include "hostkit/ExpressionInsertion.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

/// An expression in which braces stand around what is selected, or `|` at the cursor.
struct Written {
  std::wstring text;
  ExpressionPlace selection;
};

Written Read(std::wstring marked) {
  const std::size_t start = marked.find_first_of(L"{|");
  const bool isCursor = marked[start] == L'|';
  marked.erase(start, 1);
  const std::size_t end = isCursor ? start : marked.find(L'}');
  if (!isCursor) {
    marked.erase(end, 1);
  }
  return {marked, {static_cast<int>(start), static_cast<int>(end - start)}};
}

/// The expression afterwards, with `|` at the cursor.
std::wstring After(const Written& before, const ExpressionInsertion& inserted) {
  std::wstring text = before.text;
  const auto start = static_cast<std::size_t>(before.selection.start);
  text.replace(start, static_cast<std::size_t>(before.selection.length), inserted.text);
  return text.insert(start + static_cast<std::size_t>(inserted.cursor), L"|");
}

std::wstring WithValue(const wchar_t* marked) {
  const Written before = Read(marked);
  return After(before, InsertedValue(before.text, before.selection, L"TS1.VL1"));
}

std::wstring WithWord(const wchar_t* marked, const wchar_t* word) {
  const Written before = Read(marked);
  return After(before, InsertedWord(before.text, before.selection, *FindExpressionWord(word)));
}

TEST(ExpressionInsertion, AValueKeepsApartFromItsNeighboursAlone) {
  const struct {
    const wchar_t* before;
    const wchar_t* after;
  } cases[] = {{L"|", L"TS1.VL1|"},
               {L"a > |", L"a > TS1.VL1|"},
               {L"a|", L"a TS1.VL1|"},
               {L"max(a,|)", L"max(a, TS1.VL1|)"},
               {L"(|)", L"(TS1.VL1|)"},
               {L"!|", L"!TS1.VL1|"},
               {L"|b", L"TS1.VL1| b"},
               {L"[a]|[b]", L"[a] TS1.VL1| [b]"},
               {L"1 + {2 * 3} > 4", L"1 + TS1.VL1| > 4"},
               {L"{everything}", L"TS1.VL1|"}};
  for (const auto& c : cases) {
    EXPECT_EQ(WithValue(c.before), c.after);
  }
}

TEST(ExpressionInsertion, AnOperatorHasABlankOnBothSides) {
  EXPECT_EQ(WithWord(L"a|", L">="), L"a >= |");
  EXPECT_EQ(WithWord(L"a |", L">="), L"a >= |");
  EXPECT_EQ(WithWord(L"a| b", L"and"), L"a and |b");
  EXPECT_EQ(WithWord(L"a|b", L"+"), L"a + |b");
  EXPECT_EQ(WithWord(L"(|b)", L"-"), L"(- |b)");
  EXPECT_EQ(WithWord(L"a {<} b", L">"), L"a > |b");
}

TEST(ExpressionInsertion, ANegationStandsBeforeItsArgument) {
  EXPECT_EQ(WithWord(L"|a", L"!"), L"!|a");
  EXPECT_EQ(WithWord(L"a and |b", L"!"), L"a and !|b");
  EXPECT_EQ(WithWord(L"a|", L"!"), L"a !|");
  EXPECT_EQ(WithWord(L"|a", L"not"), L"not |a");
  EXPECT_EQ(WithWord(L"(|a)", L"not"), L"(not |a)");
}

TEST(ExpressionInsertion, AFunctionTakesWhatIsSelectedAsItsFirstArgument) {
  EXPECT_EQ(WithWord(L"|", L"abs"), L"abs(|)");
  EXPECT_EQ(WithWord(L"|", L"max"), L"max(|, )");
  EXPECT_EQ(WithWord(L"|", L"if"), L"if(|, , )");
  EXPECT_EQ(WithWord(L"{a - b} > 3", L"abs"), L"abs(a - b)| > 3");
  EXPECT_EQ(WithWord(L"{ a }", L"max"), L"max(a, |)");
  EXPECT_EQ(WithWord(L"1 +{ a }", L"if"), L"1 +if(a, |, )");
  EXPECT_EQ(WithWord(L"a|b", L"abs"), L"a abs(|) b");
}

TEST(ExpressionInsertion, AConstantIsWrittenAsAValue) {
  EXPECT_EQ(WithWord(L"a ==|", L"true"), L"a ==true|");
  EXPECT_EQ(WithWord(L"a|b", L"false"), L"a false| b");
}

TEST(ExpressionInsertion, PlacesOutsideTheTextAreCut) {
  EXPECT_EQ(InsertedValue(L"a", {7, 3}, L"b"), (ExpressionInsertion{L" b", 2}));
  EXPECT_EQ(InsertedValue(L"a", {-1, 100}, L"b"), (ExpressionInsertion{L"b", 1}));
  EXPECT_EQ(InsertedValue(L"", {0, -5}, L"b"), (ExpressionInsertion{L"b", 1}));
}

}  // namespace
}  // namespace qv
