#include "tools/Names.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/TemporaryDirectory.h"
#include "tools/Files.h"
#include "tools/Guid.h"

namespace qv {
namespace {

std::wstring Repeated(std::wstring_view text, int times) {
  std::wstring repeated;
  for (; times > 0; --times) {
    repeated += text;
  }
  return repeated;
}

TEST(IsValidId, AcceptsNames) {
  for (const wchar_t* name :
       {L"a", L"Working day", L"a\u00A0b", L"Tarifa 2,0 (a) [b] {c} #1 & $5 @%+-_~!^`;'",
        L"se\u00F1al", L"\u20AC", L"\u4E2D\u6587", L"\U0001F600", L"CON", L"\uFFFD"}) {
    EXPECT_TRUE(IsValidId(name, true)) << std::wstring(name);
    EXPECT_TRUE(IsValidId(name, false)) << std::wstring(name);
  }
}

TEST(IsValidId, RefusesANameThatIsNoneOrEmpty) {
  for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), L""}) {
    EXPECT_FALSE(IsValidId(name, true));
    EXPECT_FALSE(IsValidId(name, false));
  }
}

TEST(IsValidId, RefusesCharactersThatPartNamesOrXmlCannotCarry) {
  std::wstring refused = L".?=/<>:|*\x7F\x80\x85\x9F\xFFFE\xFFFF";
  for (wchar_t control = 1; control < 0x20; ++control) {
    refused += control;
  }
  for (const unsigned number : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
    refused += static_cast<wchar_t>(number);
  }
  for (const wchar_t character : refused) {
    for (const auto& name : {std::wstring(1, character), std::wstring{L'a', character, L'b'}}) {
      EXPECT_FALSE(IsValidId(name.c_str(), true)) << static_cast<unsigned>(character);
      EXPECT_FALSE(IsValidId(name.c_str(), false)) << static_cast<unsigned>(character);
    }
  }
}

TEST(IsValidId, RefusesWhiteSpaceAtEitherEnd) {
  for (const wchar_t space : {L' ', L'\u00A0', L'\u2003', L'\u3000'}) {
    const std::wstring text(1, space);
    for (const auto& name : {text, text + text, text + L"a", L"a" + text}) {
      EXPECT_FALSE(IsValidId(name.c_str(), true)) << static_cast<unsigned>(space);
      EXPECT_FALSE(IsValidId(name.c_str(), false)) << static_cast<unsigned>(space);
    }
    EXPECT_TRUE(IsValidId((L"a" + text + L"b").c_str(), true)) << static_cast<unsigned>(space);
  }
}

TEST(IsValidId, RefusesCharactersThatCannotBeSeen) {
  for (const wchar_t character :
       {L'\u00AD', L'\u034F', L'\u061C', L'\u115F',     L'\u17B4',    L'\u180E', L'\u200B',
        L'\u200C', L'\u200D', L'\u200E', L'\u200F',     L'\u2028',    L'\u2029', L'\u202A',
        L'\u202E', L'\u2060', L'\u2066', L'\u2069',     L'\u2800',    L'\u3164', L'\uFE0F',
        L'\uFEFF', L'\uFFA0', L'\uFFF9', L'\U000E0001', L'\U000E0100'}) {
    for (const auto& name : {std::wstring(1, character), std::wstring{L'a', character},
                             std::wstring{L'a', character, L'b'}}) {
      EXPECT_FALSE(IsValidId(name.c_str(), true)) << static_cast<unsigned>(character);
    }
  }
}

TEST(IsValidId, RefusesWhatFileNamesCannotHoldOnThisPlatformAlone) {
#ifdef _WIN32
  constexpr bool holds = false;
#else
  constexpr bool holds = true;
#endif
  for (const wchar_t* name : {L"\"", L"\\", L"a\"b", L"a\\b"}) {
    EXPECT_EQ(IsValidId(name, true), holds) << std::wstring(name);
    EXPECT_TRUE(IsValidId(name, false)) << std::wstring(name);
  }
}

struct LongName {
  int times;
  bool fits;
  const wchar_t* character;
  const wchar_t* more = L"";
};

const LongName longNames[] = {{212, true, L"a"},
                              {213, false, L"a"},
                              {106, true, L"\u00F1"},
                              {106, false, L"\u00F1", L"a"},
                              {70, true, L"\u20AC", L"ab"},
                              {71, false, L"\u20AC"},
                              {53, true, L"\U0001F600"},
                              {53, false, L"\U0001F600", L"a"},
                              {100000, false, L"a"}};

TEST(IsValidId, RefusesAFileNameThatIsTooLongInBytes) {
  for (const LongName& row : longNames) {
    const std::wstring name = Repeated(row.character, row.times) + row.more;
    EXPECT_EQ(IsValidId(name.c_str(), true), row.fits) << name;
    EXPECT_TRUE(IsValidId(name.c_str(), false)) << name;
  }
}

#ifdef __linux__
TEST(IsValidId, AcceptsExactlyTheLengthsThatTheDiskTakes) {
  const TemporaryDirectory directory;
  const std::wstring start = directory.WidePath() + std::wstring(NewGuidText().ToView()) + L".";
  for (const LongName& row : longNames) {
    const std::wstring name = Repeated(row.character, row.times) + row.more;
    const auto file = Files::Disk().OpenForWriting(start + name + L".xdctI");
    EXPECT_EQ(file != nullptr, row.fits) << name;
  }
}
#endif

TEST(FitsInFileName, CountsTheBytesOfUtf8AndThoseBeside) {
  EXPECT_TRUE(FitsInFileName(L""));
  EXPECT_TRUE(FitsInFileName(Repeated(L"a", 255)));
  EXPECT_FALSE(FitsInFileName(Repeated(L"a", 256)));
  EXPECT_TRUE(FitsInFileName(Repeated(L"\u00F1", 127)));
  EXPECT_FALSE(FitsInFileName(Repeated(L"\u00F1", 128)));
  EXPECT_TRUE(FitsInFileName(Repeated(L"a", 250), 5));
  EXPECT_FALSE(FitsInFileName(Repeated(L"a", 250), 6));
}

TEST(FitsInFileName, LeavesNoRoomBesideTooMuch) {
  EXPECT_TRUE(FitsInFileName(L"", 255));
  EXPECT_FALSE(FitsInFileName(L"", 256));
  EXPECT_FALSE(FitsInFileName(L"a", static_cast<std::size_t>(-1)));
}

TEST(FitsInFileName, RefusesWhatHasNoUtf8Form) {
  EXPECT_FALSE(FitsInFileName(std::wstring(1, static_cast<wchar_t>(0xD800))));
}

TEST(CompareLowered, OrdersWithoutRegardToCase) {
  const std::wstring_view ascending[] = {L"",    L" ",       L"1",       L"10",     L"2",
                                         L"A_b", L"aB",      L"AB c",    L"Ac",     L"b",
                                         L"Z",   L"\u00C1b", L"\u00E1c", L"\u00D1", L"\u4E2D"};
  for (std::size_t i = 0; i < std::size(ascending); ++i) {
    for (std::size_t j = 0; j < std::size(ascending); ++j) {
      const int order = CompareLowered(ascending[i], ascending[j]);
      EXPECT_EQ(order < 0, i < j) << i << ' ' << j;
      EXPECT_EQ(order > 0, i > j) << i << ' ' << j;
    }
  }
}

TEST(CompareLowered, TakesCasesForEqual) {
  EXPECT_EQ(CompareLowered(L"Ma\u00D1ana", L"mA\u00F1ANA"), 0);
  EXPECT_EQ(CompareLowered(L"\u0130", L"i"), 0);
  EXPECT_NE(CompareLowered(L"stra\u00DFe", L"strasse"), 0);
}

TEST(CompareLowered, PutsTheUnderscoreBeforeLettersOfEitherCase) {
  EXPECT_LT(CompareLowered(L"_", L"a"), 0);
  EXPECT_LT(CompareLowered(L"_", L"A"), 0);
  EXPECT_GT(CompareLowered(L"B", L"_"), 0);
  EXPECT_GT(CompareLowered(L"_", L"9"), 0);
}

struct Equality {
  const wchar_t* a;
  const wchar_t* b;
  bool equal;
};

TEST(EqualUppered, ComparesUpperCasedCharacters) {
  const Equality rows[] = {{L"", L"", true},
                           {L"Peak", L"pEAK", true},
                           {L"se\u00F1al", L"SE\u00D1AL", true},
                           {L"\u03C3", L"\u03C2", true},
                           {L"\u0131", L"I", true},
                           {L"\u0130", L"i", false},
                           {L"stra\u00DFe", L"STRA\u1E9EE", false},
                           {L"stra\u00DFe", L"STRASSE", false},
                           {L"a", L"a ", false},
                           {L"a", L"\u00E1", false},
                           {L"a", L"", false}};
  for (const Equality& row : rows) {
    EXPECT_EQ(EqualUppered(row.a, row.b), row.equal) << std::wstring(row.a);
    EXPECT_EQ(EqualUppered(row.b, row.a), row.equal) << std::wstring(row.a);
  }
}

}  // namespace
}  // namespace qv
