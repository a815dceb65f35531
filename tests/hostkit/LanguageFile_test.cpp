#include "hostkit/LanguageFile.h"

#include <gtest/gtest.h>

#include "tests/support/NamedCase.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/TemporaryDirectory.h"

namespace qv {
namespace {

constexpr wchar_t path[] = L"/languages/xx.txt";

std::wstring TextOf(const LanguageFile& language, unsigned id) {
  QVWideString text = L"before";
  return std::wstring(language(id, text).ToView());
}

/// A language whose file has this content.
class Loaded : public LanguageFile {
 public:
  explicit Loaded(const std::string& content) {
    ScriptedFiles files;
    files.contents[path] = content;
    EXPECT_TRUE(Load(path, files));
  }

  using LanguageFile::Load;
};

/// The content of a file and the text of its number 7; no text if the number is missing.
struct Case : NamedCase {
  std::string content;
  const wchar_t* text;
};

class LanguageFileOf : public testing::TestWithParam<Case> {};

TEST_P(LanguageFileOf, Lines) {
  const Loaded language(GetParam().content);
  EXPECT_EQ(language.Has(7), GetParam().text != nullptr);
  EXPECT_EQ(TextOf(language, 7), GetParam().text ? GetParam().text : L"[7]");
  EXPECT_FALSE(language.Has(0)) << "a line without number was taken";
}

const Case cases[] = {
    {"PlainLine", "7 seven\n", L"seven"},
    {"LastLineWithoutLineEnd", "7 seven", L"seven"},
    {"CarriageReturns", "6 six\r\n7 seven\r\n8 eight\r\n", L"seven"},
    {"LastLineWithCarriageReturn", "7 seven\r", L"seven"},
    {"CarriageReturnInside", "7 se\rven\n", L"se\rven"},
    {"TwoCarriageReturns", "7 seven\r\r\n", L"seven\r"},
    {"ByteOrderMark",
     "\xEF\xBB\xBF"
     "7 seven\n",
     L"seven"},
    {"ByteOrderMarkBeforeComment", "\xEF\xBB\xBF# c\n7 seven\n", L"seven"},
    {"ByteOrderMarkOnLaterLine",
     "6 six\n\xEF\xBB\xBF"
     "7 seven\n",
     nullptr},
    {"TwoByteOrderMarks",
     "\xEF\xBB\xBF\xEF\xBB\xBF"
     "7 seven\n",
     nullptr},
    {"Accents", "7 a\xC3\xB1o\n", L"a\u00F1o"},
    {"BeyondSixteenBits", "7 \xF0\x9F\x95\x92\n", L"\U0001F552"},
    {"NotUtf8",
     "7 a\xFF"
     "b\n",
     L"a\uFFFDb"},
    {"LineBreak", "7 one\\ntwo\n", L"one\ntwo"},
    {"Tab", "7 one\\ttwo\n", L"one\ttwo"},
    {"Backslash", "7 one\\\\two\n", L"one\\two"},
    {"EscapedBackslashBeforeN", "7 one\\\\ntwo\n", L"one\\ntwo"},
    {"UnknownEscape", "7 one\\xtwo\n", L"one\\xtwo"},
    {"UpperCaseEscape", "7 one\\Ntwo\n", L"one\\Ntwo"},
    {"BackslashAtTheEnd", "7 one\\\n", L"one\\"},
    {"BackslashAtTheEndBeforeCarriageReturn", "7 one\\\r\n", L"one\\"},
    {"BackslashAtTheEndOfTheFile", "7 one\\", L"one\\"},
    {"OnlyEscapes", "7 \\n\\t\\\\\n", L"\n\t\\"},
    {"TabBehindTheNumber", "7\tseven\n", L"seven"},
    {"MoreBlanksBelongToTheText", "7   seven  \n", L"  seven  "},
    {"HashInTheText", "7 # seven\n", L"# seven"},
    {"NumberInTheText", "7 8 9\n", L"8 9"},
    {"PercentStaysAsItIs", "7 %d of %s %n\n", L"%d of %s %n"},
    {"EmptyText", "7 \n", L""},
    {"NumberAlone", "7\n", L""},
    {"NumberAloneAtTheEnd", "7", L""},
    {"LeadingZeros", "007 seven\n", L"seven"},
    {"LastOfTwoCounts", "7 first\n7 last\n", L"last"},
    {"LastOfTwoCountsEvenIfEmpty", "7 first\n7\n", L""},
    {"BehindEmptyLines", "\n\r\n   \n\n7 seven\n", L"seven"},
    {"BehindLineWithoutNumber", "no number\n7 seven\n", L"seven"},
    {"BehindOverlongNumber", "99999999999999999999999 x\n7 seven\n", L"seven"},
    {"Comment", "#7 seven\n", nullptr},
    {"BlankBeforeTheNumber", " 7 seven\n", nullptr},
    {"Sign", "+7 seven\n-7 seven\n", nullptr},
    {"NoBlankBehindTheNumber", "7seven\n7: seven\n", nullptr},
    {"Hexadecimal", "0x7 seven\n", nullptr},
    {"NumberModulo32Bits", "4294967303 seven\n", nullptr},
    {"NumberModulo64Bits", "18446744073709551623 seven\n", nullptr},
    {"OtherDigits", "\xD9\xA7 seven\n", nullptr},
    {"EmptyFile", "", nullptr},
    {"OnlyByteOrderMark", "\xEF\xBB\xBF", nullptr},
    {"HalfByteOrderMark", "\xEF\xBB", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Table, LanguageFileOf, testing::ValuesIn(cases),
                         testing::PrintToStringParamName());

TEST(LanguageFile, HasNothingBeforeItIsLoaded) {
  const LanguageFile language;
  EXPECT_FALSE(language.Has(355));
  EXPECT_EQ(TextOf(language, 355), L"[355]");
}

TEST(LanguageFile, NumbersHave32Bits) {
  const Loaded language("0 none\n4294967295 all\n");
  EXPECT_EQ(TextOf(language, 0), L"none");
  EXPECT_EQ(TextOf(language, 4294967295U), L"all");
}

TEST(LanguageFile, MissingLargeNumberIsShownWithoutSign) {
  EXPECT_EQ(TextOf(LanguageFile(), 4294967295U), L"[4294967295]");
}

TEST(LanguageFile, CallReplacesTheTextAndReturnsIt) {
  const Loaded language("7 seven\n");
  QVWideString text = L"before";
  EXPECT_EQ(&language(7, text), &text);
  EXPECT_EQ(text, L"seven");
}

TEST(LanguageFile, ZeroByteIsACharacterOfTheText) {
  const std::string content("7 a\0b\n", 6);
  EXPECT_EQ(TextOf(Loaded(content), 7), std::wstring(L"a\0b", 3));
}

TEST(LanguageFile, SecondLoadReplacesAllTexts) {
  ScriptedFiles files;
  files.contents[path] = "7 seven\n8 eight\n";
  LanguageFile language;
  ASSERT_TRUE(language.Load(path, files));
  files.contents[path] = "8 ocho\n";
  ASSERT_TRUE(language.Load(path, files));
  EXPECT_FALSE(language.Has(7));
  EXPECT_EQ(TextOf(language, 8), L"ocho");
}

TEST(LanguageFile, UnreadableFileLeavesTheTexts) {
  Loaded language("7 seven\n");
  ScriptedFiles files;
  EXPECT_FALSE(language.Load(path, files));
  files.contents[path] = "7 siete\n";
  files.unreadable.insert(path);
  EXPECT_FALSE(language.Load(path, files));
  EXPECT_EQ(TextOf(language, 7), L"seven");
}

TEST(LanguageFile, ReadingThatBreaksOffLeavesTheTexts) {
  Loaded language("7 seven\n");
  ScriptedFiles files;
  files.contents[path] = "7 siete\n8 ocho\n9 nueve\n";
  files.breakingReads.insert(path);
  EXPECT_FALSE(language.Load(path, files));
  EXPECT_EQ(TextOf(language, 7), L"seven");
  EXPECT_FALSE(language.Has(8));
}

TEST(LanguageFile, PiecesOfAnySizeGiveTheSameTexts) {
  ScriptedFiles files;
  files.contents[path] = "\xEF\xBB\xBF# c\r\n7 a\xC3\xB1o\\n\xF0\x9F\x95\x92\r\n8 eight\\\\";
  for (files.pieceSize = 1; files.pieceSize <= 5; ++files.pieceSize) {
    LanguageFile language;
    ASSERT_TRUE(language.Load(path, files));
    EXPECT_EQ(TextOf(language, 7), L"a\u00F1o\n\U0001F552") << files.pieceSize;
    EXPECT_EQ(TextOf(language, 8), L"eight\\") << files.pieceSize;
  }
}

TEST(LanguageFile, TextMayBeLongerThanOneRead) {
  const std::string text(std::size_t{200} * 1024, 'x');
  EXPECT_EQ(TextOf(Loaded("7 " + text + "\n8 eight\n"), 7), std::wstring(text.size(), L'x'));
}

TEST(LanguageFile, DirectoryCannotBeLoaded) {
  const TemporaryDirectory directory;
  LanguageFile language;
  EXPECT_FALSE(language.Load(directory.WidePath()));
}

TEST(LanguageFile, LoadByNumberIsStillThere) {
  EXPECT_EQ(Loaded("355 Name\n").Load(Text::Name), L"Name");
}

}  // namespace
}  // namespace qv
