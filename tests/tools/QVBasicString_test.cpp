#include "tools/QVBasicString.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "tests/support/NamedCase.h"
#include "tests/tools/Trees.h"

namespace qv {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// Where a text stands. A number, because it is looked at when the text may be gone.
std::uintptr_t Place(const wchar_t* text) { return reinterpret_cast<std::uintptr_t>(text); }

/// A growth hint, the mode that the string takes from it, and the slack of its allocations.
struct Growth : NamedCase {
  std::uint32_t hint;
  std::uint32_t mode;
  std::uint32_t slack;
};

class QVBasicStringGrowth : public testing::TestWithParam<Growth> {
 protected:
  void ExpectOwned(std::wstring_view text, std::uint32_t spare) const {
    EXPECT_EQ(string.ToView(), text);
    EXPECT_EQ(string.Length(), text.size());
    EXPECT_EQ(string.Spare(), spare);
    EXPECT_EQ(string.Flags(), GetParam().mode);
    EXPECT_EQ(static_cast<const wchar_t*>(string)[string.Length()], L'\0');
  }

  QVWideString string{GetParam().hint};
};

TEST_P(QVBasicStringGrowth, ANewStringIsEmptyAndRefersToTheSharedEmptyText) {
  EXPECT_EQ(string.Length(), 0U);
  EXPECT_EQ(string.Spare(), 0U);
  EXPECT_EQ(string.Flags(), QVWideString::NotOwned | GetParam().mode);
  EXPECT_EQ(Place(string), Place(QVWideChar::EmptyString()));
}

TEST_P(QVBasicStringGrowth, AnAssignLeavesTheWholeSlackSpare) {
  string.Assign(L"abc", 3);
  ExpectOwned(L"abc", GetParam().slack);
}

TEST_P(QVBasicStringGrowth, AnAssignOfNothingIsOwnedToo) {
  string.Assign(L"abc", 0);
  ExpectOwned(L"", GetParam().slack);
}

TEST_P(QVBasicStringGrowth, TheFirstAppendTakesFromTheSlackOfTheOwnedCopy) {
  string.Append(L"abc", 3);
  ExpectOwned(L"abc", GetParam().slack == 0 ? 0 : GetParam().slack - 3);
}

TEST_P(QVBasicStringGrowth, AnAppendThatFillsTheSpareStaysInTheBuffer) {
  string.Assign(L"abc", 3);
  const std::uintptr_t before = Place(string);
  const std::wstring fill(string.Spare(), L'x');
  string.Append(fill);
  EXPECT_EQ(Place(string), before);
  ExpectOwned(L"abc" + fill, 0);
}

TEST_P(QVBasicStringGrowth, AnAppendOfOneMoreThanTheSpareAllocatesWithSlack) {
  string.Assign(L"abc", 3);
  const std::uintptr_t before = Place(string);
  const std::wstring more(string.Spare() + 1, L'y');
  string.Append(more);
  EXPECT_NE(Place(string), before);
  ExpectOwned(L"abc" + more, GetParam().slack);
}

TEST_P(QVBasicStringGrowth, AnAppendOfNothingOwnsTheText) {
  string.Append(L"", 0);
  ExpectOwned(L"", GetParam().slack);
}

TEST_P(QVBasicStringGrowth, AnAssignOverwritesWhatWasAppended) {
  string += L"abc";
  string += L"def";
  string.Assign(L"gh", 2);
  ExpectOwned(L"gh", GetParam().slack);
}

TEST_P(QVBasicStringGrowth, TheModeOutlivesCopyAndMoveAssignment) {
  const QVWideString source(L"copied");
  string = source;
  ExpectOwned(L"copied", GetParam().slack);
  string = QVWideString(L"moved");
  EXPECT_EQ(string, L"moved");
  EXPECT_EQ(string.Flags(), GetParam().mode);
  string += L"!";
  ExpectOwned(L"moved!", GetParam().slack);
}

TEST_P(QVBasicStringGrowth, ACopyGrowsWithoutSlack) {
  string.Assign(L"abc", 3);
  const QVWideString copy(string);
  EXPECT_EQ(copy, L"abc");
  EXPECT_EQ(copy.Flags(), 0U);
  EXPECT_EQ(copy.Spare(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Modes, QVBasicStringGrowth,
                         testing::Values(Growth{"None", 0, 0, 0}, Growth{"Small", 32, 32, 255},
                                         Growth{"Large", 33, 33, 65535},
                                         Growth{"BitZeroAlone", 1, 1, 0},
                                         Growth{"OtherBitsAreLeftOut", 0xFFFFFFDE, 0, 0},
                                         Growth{"SmallAmongOtherBits", 0xFFFFFFFE, 32, 255}),
                         testing::PrintToStringParamName());

TEST(QVBasicString, IsEmptyNotOwnedAndWithoutSlackByDefault) {
  const QVWideString string;
  EXPECT_TRUE(string.Empty());
  EXPECT_EQ(string.Flags(), 16U);
  EXPECT_EQ(string.Spare(), 0U);
  EXPECT_EQ(Place(string), Place(QVWideChar::EmptyString()));
}

TEST(QVBasicString, RefersToATextWithoutCopy) {
  const wchar_t* literal = L"literal";
  const QVWideString string(literal, false);
  EXPECT_EQ(Place(string), Place(literal));
  EXPECT_EQ(string.Flags(), 16U);
  EXPECT_EQ(string.Length(), 7U);
  EXPECT_EQ(string.Spare(), 0U);
}

TEST(QVBasicString, OwnsATextWithCopy) {
  const wchar_t* literal = L"literal";
  const QVWideString string(literal, true);
  EXPECT_NE(Place(string), Place(literal));
  EXPECT_EQ(string, literal);
  EXPECT_EQ(string.Flags(), 0U);
  EXPECT_EQ(string.Spare(), 0U);
}

TEST(QVBasicString, TakesANullTextForAnEmptyOne) {
  const wchar_t* null = nullptr;
  QVWideString assigned(L"old");
  assigned = null;
  QVWideString appended(L"kept");
  appended += null;
  EXPECT_EQ(appended, L"kept");
  const QVWideString strings[] = {{null, false}, {null, true},    {null},
                                  assigned,      assigned + null, null + assigned};
  for (const QVWideString& string : strings) {
    EXPECT_EQ(string.Length(), 0U);
    EXPECT_EQ(*static_cast<const wchar_t*>(string), L'\0');
    EXPECT_EQ(string, null);
  }
}

TEST(QVBasicString, AnAppendLeavesTheReferredTextUntouched) {
  wchar_t text[] = L"foreign";
  QVWideString string(text, false);
  string += L" and own";
  EXPECT_EQ(string, L"foreign and own");
  EXPECT_TRUE(string.Owned());
  EXPECT_EQ(text, L"foreign"sv);
}

TEST(QVBasicString, MakeUpperLeavesTheReferredTextUntouched) {
  wchar_t text[] = L"foreign";
  QVWideString string(text, false);
  EXPECT_EQ(string.MakeUpper(), L"FOREIGN");
  EXPECT_TRUE(string.Owned());
  EXPECT_EQ(text, L"foreign"sv);
}

TEST(QVBasicString, AnAssignAlwaysAllocatesAnew) {
  QVWideString string(32U);
  string.Assign(L"a long text", 11);
  const std::uintptr_t before = Place(string);
  string.Assign(L"short", 5);
  EXPECT_NE(Place(string), before);
  EXPECT_EQ(string, L"short");
}

TEST(QVBasicString, AnAssignTakesExactlyTheCountedCharacters) {
  QVWideString string;
  string.Assign(L"abcdef", 4);
  EXPECT_EQ(string, L"abcd");
  string.Assign(L"ab\0cd", 5);
  EXPECT_EQ(string, L"ab\0cd"sv);
  EXPECT_EQ(string.Length(), 5U);
}

TEST(QVBasicString, CarriesEmbeddedZeros) {
  QVWideString string(L"a\0"sv);
  string.Append(L"\0b", 2);
  EXPECT_EQ(string, L"a\0\0b"sv);
  EXPECT_EQ(string.Find(L'b'), 3U);
  EXPECT_EQ(string.Find(L'\0', 2), 2U);
  EXPECT_EQ(QVWideString(string), L"a\0\0b"sv);
  EXPECT_EQ(string + string, L"a\0\0ba\0\0b"sv);
  EXPECT_EQ(string.MakeUpper(), L"A\0\0B"sv);
}

TEST(QVBasicString, CanBeAppendedToItself) {
  QVWideString spacious(32U);
  QVWideString exact(L"ab");
  QVWideString referring(L"ab", false);
  spacious += L"ab";
  for (QVWideString* string : {&spacious, &exact, &referring}) {
    *string += *string;
    *string += static_cast<const wchar_t*>(*string) + 2;
    EXPECT_EQ(*string, L"ababab");
  }
}

TEST(QVBasicString, CanBeAssignedFromItself) {
  QVWideString string(L"abcdef");
  const QVWideString& same = string;
  string = same;
  EXPECT_EQ(string, L"abcdef");
  string = std::move(const_cast<QVWideString&>(same));
  EXPECT_EQ(string, L"abcdef");
  string.Assign(static_cast<const wchar_t*>(string) + 1, 3);
  EXPECT_EQ(string, L"bcd");
  string = static_cast<const wchar_t*>(string) + 2;
  EXPECT_EQ(string, L"d");
}

TEST(QVBasicString, ACopyOwnsItsText) {
  wchar_t text[] = L"foreign";
  const QVWideString referring(text, false);
  // That the copy is one of its own is what is tested.
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const QVWideString copy(referring);
  QVWideString assigned;
  assigned = referring;
  text[0] = L'F';
  EXPECT_EQ(referring, L"Foreign");
  EXPECT_EQ(copy, L"foreign");
  EXPECT_EQ(assigned, L"foreign");
}

TEST(QVBasicString, ACopyOfAnEmptyTextIsEmpty) {
  const QVWideString empty;
  QVWideString owned(L"old");
  QVWideString referring(L"old", false);
  owned = empty;
  referring = empty;
  for (const auto* string : {&owned, &referring}) {
    EXPECT_EQ(*string, L"");
    EXPECT_EQ(string->Length(), 0U);
  }
}

TEST(QVBasicString, AMoveTakesTheBufferAndLeavesAUsableString) {
  QVWideString source(L"text");
  const std::uintptr_t place = Place(source);
  QVWideString target(std::move(source));
  EXPECT_EQ(Place(target), place);
  // What a moved-from string does is what is tested.
  // NOLINTBEGIN(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
  EXPECT_TRUE(source.Empty());
  source += L"again";
  // NOLINTEND(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
  EXPECT_EQ(source, L"again");
  source = std::move(target);
  target = L"new";
  EXPECT_EQ(source, L"text");
  EXPECT_EQ(target, L"new");
}

TEST(QVBasicString, AppendsOneByOneAllocateOnceInTheSlack) {
  QVWideString string(32U);
  std::wstring expected;
  int allocations = 0;
  for (int i = 0; i < 1000; ++i) {
    const std::uintptr_t before = Place(string);
    const auto character = static_cast<wchar_t>(L'a' + i % 26);
    string.Append(&character, 1);
    expected += character;
    allocations += Place(string) == before ? 0 : 1;
  }
  EXPECT_EQ(string, std::wstring_view(expected));
  EXPECT_EQ(allocations, 4);
}

TEST(QVBasicString, RefusesToGrowBeyondItsCounters) {
  QVWideString string(L"kept");
  EXPECT_THROW(string.Append(L"x", 0xFFFFFFF0U), std::length_error);
  EXPECT_EQ(string, L"kept");
}

struct Search {
  const wchar_t* text;
  const wchar_t* sought;
  std::uint32_t start;
  std::uint32_t found;
};

constexpr std::uint32_t nowhere = 0xFFFFFFFF;

TEST(QVBasicString, FindsTexts) {
  const Search searches[] = {{L"a.b.c", L".", 0, 1},
                             {L"a.b.c", L".", 1, 1},
                             {L"a.b.c", L".", 2, 3},
                             {L"a.b.c", L".", 4, nowhere},
                             {L"a.b.c", L".", 99, nowhere},
                             {L"a.b.c", L"b.c", 0, 2},
                             {L"aaab", L"aab", 0, 1},
                             {L"aaab", L"aaab", 0, 0},
                             {L"aaab", L"aaabb", 0, nowhere},
                             {L"ab", L"B", 0, nowhere},
                             {L"", L"a", 0, nowhere},
                             {L"ab", L"", 0, nowhere},
                             {L"ab", nullptr, 0, nowhere},
                             {L"abab", L"ab", 1, 2},
                             {L"abab", L"ab", nowhere, nowhere},
                             {L"a\u00F1o", L"\u00F1o", 0, 1}};
  for (const Search& search : searches) {
    EXPECT_EQ(QVWideString(search.text, false).Find(search.sought, search.start), search.found)
        << std::wstring(search.text) << " from " << search.start;
  }
}

TEST(QVBasicString, FindsCharacters) {
  const QVWideString string(L"abca");
  EXPECT_EQ(string.Find(L'a'), 0U);
  EXPECT_EQ(string.Find(L'a', 1), 3U);
  EXPECT_EQ(string.Find(L'a', 4), nowhere);
  EXPECT_EQ(string.Find(L'x'), nowhere);
  EXPECT_EQ(string.Find(L'\0'), nowhere);
  EXPECT_EQ(string.Find(L'a', nowhere), nowhere);
}

TEST(QVBasicString, UppersEachCharacterByItself) {
  const std::pair<const wchar_t*, const wchar_t*> texts[] = {
      {L"", L""},
      {L"aZ09_-.", L"AZ09_-."},
      {L"se\u00F1al \u00E9\u00FC", L"SE\u00D1AL \u00C9\u00DC"},
      {L"stra\u00DFe", L"STRA\u00DFE"},
      {L"\u0131\u0130i", L"I\u0130I"},
      {L"\uFB01", L"\uFB01"},
      {L"\u03C3\u03C2\u00B5", L"\u03A3\u03A3\u039C"},
      {L"\u01C6\u01C5", L"\u01C4\u01C4"},
      {L"\u00FF\u044F", L"\u0178\u042F"},
      {L"\U00010428", L"\U00010400"}};
  for (const auto& [text, upper] : texts) {
    EXPECT_EQ(QVWideString(text).MakeUpper(), upper);
  }
}

TEST(QVBasicString, ConcatenatesByValue) {
  const QVWideString string(L"b");
  EXPECT_EQ(string + L"c", L"bc");
  EXPECT_EQ(L"a" + string, L"ab");
  EXPECT_EQ(string + string, L"bb");
  EXPECT_EQ(L"a" + string + L"" + L"c", L"abc");
  EXPECT_EQ(string, L"b");
}

TEST(QVBasicString, ComparesByLengthAndCharacters) {
  const QVWideString string(L"ab");
  EXPECT_TRUE(string == QVWideString(L"ab", false));
  EXPECT_FALSE(string == L"aB");
  EXPECT_TRUE(string != L"abc");
  EXPECT_TRUE(string != L"ab\0"sv);
  EXPECT_TRUE(L"ab" == string);
}

TEST(QVBasicString, WorksOnNarrowCharacters) {
  QVNarrowString string(32U);
  string += "<a>";
  string.Append("b\xC3\xB1x", 3);
  EXPECT_EQ(string, "<a>b\xC3\xB1");
  EXPECT_EQ(string.Length(), 6U);
  EXPECT_EQ(string.Spare(), 249U);
  EXPECT_EQ(string.Find('b'), 3U);
  EXPECT_EQ("x" + string + "y", "x<a>b\xC3\xB1y");
  EXPECT_EQ(QVNarrowString(nullptr, false).Length(), 0U);
  EXPECT_EQ(static_cast<const char*>(QVNarrowString()), QVChar::EmptyString());
}

}  // namespace
}  // namespace qv
