#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/NamedCase.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/tools/ReadingWays.h"
#include "tests/tools/Trees.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

using namespace std::string_literals;

/// A text that is refused, and where.
struct Refused : NamedCase {
  std::string xml;
  unsigned long line = 1;
  unsigned long column = 1;
};

class XmlReaderRefuses : public testing::TestWithParam<Refused> {};

TEST_P(XmlReaderRefuses, TheTextAtThatPlace) {
  const Reading reading = ReadEveryWay(GetParam().xml);
  EXPECT_EQ(reading.root, nullptr);
  EXPECT_NE(reading.error.reason, "");
  EXPECT_EQ(reading.error.line, GetParam().line);
  EXPECT_EQ(reading.error.column, GetParam().column);
}

INSTANTIATE_TEST_SUITE_P(
    Structure, XmlReaderRefuses,
    testing::Values(Refused{"NothingAtAll", "", 1, 1},                           //
                    Refused{"BlanksAlone", "\n \n ", 3, 2},                      //
                    Refused{"PlainText", "plain text", 1, 1},                    //
                    Refused{"TextBeforeTheRoot", "\nx <m/>", 2, 1},              //
                    Refused{"TextBehindTheRoot", "<m/>\n  x", 2, 3},             //
                    Refused{"ASecondRoot", "<m/>\n<n/>", 2, 1},                  //
                    Refused{"AMissingEndTag", "<m>\n<a>x</a>\n", 3, 1},          //
                    Refused{"AnEndTagOfAnotherName", "<m>\n <a></m>", 2, 7},     //
                    Refused{"AnEndTagTooMany", "<m></m></m>", 1, 9},             //
                    Refused{"ATagCutShort", "<m>\n  <a", 2, 3},                  //
                    Refused{"AnEndTagCutShort", "<m></m", 1, 4},                 //
                    Refused{"ACommentCutShort", "<m/><!-- x", 1, 5},             //
                    Refused{"CharacterDataCutShort", "<m><![CDATA[x]]", 1, 14},  //
                    Refused{"AnAttributeTwice", "<m a='1' a='2'/>", 1, 10},      //
                    Refused{"AnAttributeWithoutQuotes", "<m a=1/>", 1, 6},       //
                    Refused{"ALessThanInAnAttribute", "<m a='<'/>", 1, 7},       //
                    Refused{"AStrayAmpersand", "<m>a & b</m>", 1, 7},            //
                    Refused{"AStrayLessThan", "<m>a < b</m>", 1, 7},             //
                    Refused{"ANameThatStartsWithADigit", "<1m/>", 1, 2},         //
                    Refused{"ADeclarationBehindTheStart", " <?xml version='1.0'?><m/>", 1, 2},
                    Refused{"AnUnknownVersion", "<?xml version='x y'?><m/>", 1, 17}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Characters, XmlReaderRefuses,
    testing::Values(Refused{"AControlCharacter", "<m>\n\xC3\xB1\x01</m>", 2, 2},    //
                    Refused{"AZero", "<m>ab\0c</m>"s, 1, 6},                        //
                    Refused{"AReferenceToZero", "<m>&#0;</m>", 1, 4},               //
                    Refused{"AReferenceToAControl", "<m>x&#x1F;</m>", 1, 5},        //
                    Refused{"AReferenceToASurrogate", "<m>&#xD800;</m>", 1, 4},     //
                    Refused{"AReferenceBeyondUnicode", "<m>&#x110000;</m>", 1, 4},  //
                    Refused{"AReferenceToNoCharacter", "<m>&#xFFFE;</m>", 1, 4},    //
                    Refused{"AReferenceToNothing", "<m>&#;</m>", 1, 6},             //
                    Refused{"Latin1AsUtf8", "<m>\n  se\xF1or</m>", 2, 5},           //
                    Refused{"AByteThatStartsNothing", "<m>\x80</m>", 1, 4},         //
                    Refused{"AnOverlongForm", "<m>\xC0\xAF</m>", 1, 4},             //
                    Refused{"ASurrogateInUtf8", "<m>\xED\xA0\x80</m>", 1, 4},       //
                    Refused{"BeyondUnicodeInUtf8", "<m>\xF4\x90\x80\x80</m>", 1, 4},
                    Refused{"NoCharacterInUtf8", "<m>\xEF\xBF\xBE</m>", 1, 4},
                    Refused{"ACharacterCutShortByTheEnd", "<m>x\xE2\x82", 1, 5},
                    Refused{"ALoneSurrogateInUtf16", "\xFE\xFF\0<\0m\0>\0\n\xDC\x00\0<\0/\0m\0>"s,
                            2, 1}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Encodings, XmlReaderRefuses,
    testing::Values(
        Refused{"AnUnknownEncoding", "<?xml version='1.0' encoding='x-none'?><m/>", 1, 31},
        Refused{"AnEncodingThatIsNotBuiltIn", "<?xml version='1.0' encoding='windows-1252'?><m/>",
                1, 31},
        Refused{"Utf16DeclaredInBytes", "<?xml version='1.0' encoding='UTF-16'?><m/>", 1, 31},
        Refused{"Latin1BeyondAscii", "<?xml version='1.0' encoding='US-ASCII'?><m>\xF1</m>", 1,
                45}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Doctypes, XmlReaderRefuses,
    testing::Values(Refused{"AnInternalSubset", "<!DOCTYPE m [<!ELEMENT m ANY>]><m/>", 1, 13},
                    Refused{"AnEmptyInternalSubset", "<!DOCTYPE m []><m/>", 1, 13},
                    Refused{"AnEntityBomb",
                            "<!DOCTYPE m [<!ENTITY a 'xx'><!ENTITY b '&a;&a;'>"
                            "<!ENTITY c '&b;&b;'>]><m>&c;</m>",
                            1, 13},
                    Refused{"AnExternalEntity",
                            "<!DOCTYPE m [<!ENTITY a SYSTEM 'file:///etc/hostname'>]><m>&a;</m>", 1,
                            13},
                    Refused{"AnInternalSubsetBesideAnExternalOne",
                            "<!DOCTYPE m SYSTEM 'm.dtd' [<!ENTITY a 'x'>]><m>&a;</m>", 1, 28},
                    Refused{"AnUnknownEntity", "<m>\n &name;</m>", 2, 2},
                    Refused{"AnUnknownEntityOfAnExternalDoctype",
                            "<!DOCTYPE m SYSTEM 'm.dtd'>\n<m>a&name;b</m>", 2, 5}),
    testing::PrintToStringParamName());

TEST(XmlReaderLimits, RefuseTheFirstElementThatIsTooDeep) {
  std::string xml;
  for (int i = 0; i <= maxXmlDepth; ++i) {
    xml += "<n>";
  }
  const Reading reading = ReadEveryWay(xml);
  EXPECT_EQ(reading.root, nullptr);
  EXPECT_EQ(reading.error.reason, "elements are nested more than 512 levels deep");
  EXPECT_EQ(reading.error.line, 1U);
  EXPECT_EQ(reading.error.column, 3U * maxXmlDepth + 1);
}

/// Feeds a document of `size` bytes, most of them in comments; the root.
std::unique_ptr<XmlNode> ReadDocumentOfSize(std::size_t size, XmlError* error) {
  const std::string comment = "<!--" + std::string((1 << 20) - 7, ' ') + "-->";
  XmlReader reader;
  reader.Feed("<m/>");
  for (size -= 4; size >= comment.size(); size -= comment.size()) {
    reader.Feed(comment);
  }
  reader.Feed(std::string(size, ' '));
  auto root = reader.Finish();
  *error = reader.Error();
  return root;
}

TEST(XmlReaderLimits, RefuseMoreElementsThanTheMemoryShouldHold) {
  XmlReader reader;
  reader.Feed("<a>");
  std::string piece;
  for (int i = 0; i < 1000; ++i) {
    piece += "<b/>";
  }
  std::size_t elements = 1;
  while (reader.Feed(piece)) {
    elements += 1000;
    ASSERT_LE(elements, maxXmlNodes);
  }
  EXPECT_GT(elements + 1000, maxXmlNodes);
  EXPECT_EQ(reader.Finish(), nullptr);
}

TEST(XmlReaderRoot, AnotherRootIsRefusedAsSoonAsItOpens) {
  XmlReader reader(L"wanted");
  EXPECT_TRUE(reader.Feed("<!-- first --> <wan"));
  EXPECT_TRUE(reader.Feed("ted>"));
  EXPECT_TRUE(reader.Feed("</wanted>"));
  EXPECT_NE(reader.Finish(), nullptr);
  XmlReader other(L"wanted");
  EXPECT_FALSE(other.Feed("<other>"));
}

TEST(XmlReaderLimits, AcceptTheLargestSize) {
  XmlError error;
  EXPECT_NE(ReadDocumentOfSize(maxXmlSize, &error), nullptr) << error.reason;
}

TEST(XmlReaderLimits, RefuseAByteMore) {
  XmlError error;
  EXPECT_EQ(ReadDocumentOfSize(maxXmlSize + 1, &error), nullptr);
  EXPECT_EQ(error.reason, "the document is larger than 256 MiB");
}

TEST(XmlReaderLimits, RefuseAPieceThatIsTooLargeUnread) {
  XmlReader reader;
  ASSERT_TRUE(reader.Feed("<m>"));
  const std::unique_ptr<char, decltype(&std::free)> zeros(
      static_cast<char*>(std::calloc(maxXmlSize, 1)), &std::free);
  ASSERT_NE(zeros, nullptr);
  EXPECT_FALSE(reader.Feed({zeros.get(), maxXmlSize}));
  EXPECT_EQ(reader.Error().reason, "the document is larger than 256 MiB");
  EXPECT_EQ(reader.Finish(), nullptr);
}

TEST(XmlReader, StaysRefusedWithItsFirstError) {
  XmlReader reader;
  EXPECT_FALSE(reader.Feed("<m>\n&x;"));
  const XmlError first = reader.Error();
  EXPECT_FALSE(reader.Feed("</m>"));
  EXPECT_FALSE(reader.Feed(""));
  EXPECT_EQ(reader.Finish(), nullptr);
  EXPECT_EQ(reader.Error().reason, first.reason);
  EXPECT_EQ(reader.Error().line, 2U);
  EXPECT_EQ(reader.Error().column, 1U);
}

TEST(XmlReader, HasNoErrorBeforeAnythingIsRefused) {
  XmlReader reader;
  EXPECT_TRUE(reader.Feed("<m>"));
  EXPECT_EQ(reader.Error().reason, "");
  EXPECT_EQ(reader.Error().line, 0U);
  EXPECT_EQ(reader.Error().column, 0U);
}

TEST(XmlReaderOfOneRoot, TakesThatRootWithWhateverIsBelow) {
  XmlReader reader(L"main");
  EXPECT_TRUE(reader.Feed("<?xml version='1.0'?><!-- x --><main><other/></main>"));
  const auto root = reader.Finish();
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(Outline(*root), "main[other]");
}

TEST(XmlReaderOfOneRoot, RefusesAnotherAsSoonAsItOpens) {
  for (const char* text : {"\n <other>", "\n <Main a='1'>", "\n <mainly/>", "\n <x:main>"}) {
    XmlReader reader(L"main");
    EXPECT_FALSE(reader.Feed(text)) << text;
    EXPECT_EQ(reader.Error().reason, "the root is another one") << text;
    EXPECT_EQ(reader.Error().line, 2U) << text;
    EXPECT_EQ(reader.Error().column, 2U) << text;
    EXPECT_EQ(reader.Finish(), nullptr) << text;
  }
}

TEST(XmlReaderOfOneRoot, RefusesWhatIsNoXmlAsEver) {
  XmlReader reader(L"main");
  EXPECT_TRUE(reader.Feed("<main>"));
  EXPECT_EQ(reader.Finish(), nullptr);
  EXPECT_NE(reader.Error().reason, "");
}

class ReadXmlFileFails : public testing::Test {
 protected:
  void ExpectRefused(const char* reason) {
    XmlError error;
    EXPECT_EQ(ReadXmlFile(L"/file", files, &error), nullptr);
    EXPECT_EQ(error.reason, reason);
    EXPECT_EQ(error.line, 0U);
    EXPECT_EQ(error.column, 0U);
    EXPECT_EQ(ReadXmlFile(L"/file", files), nullptr);
  }

  ScriptedFiles files;
};

TEST_F(ReadXmlFileFails, WhereThereIsNone) { ExpectRefused("the file cannot be opened"); }

TEST_F(ReadXmlFileFails, WhereItCannotBeOpened) {
  files.contents[L"/file"] = "<m/>";
  files.unreadable.insert(L"/file");
  ExpectRefused("the file cannot be opened");
}

TEST_F(ReadXmlFileFails, WhereReadingBreaksHalfWay) {
  files.contents[L"/file"] = "<m/>        ";
  files.breakingReads.insert(L"/file");
  ExpectRefused("the file cannot be read");
  files.pieceSize = 1;
  ExpectRefused("the file cannot be read");
}

}  // namespace
}  // namespace qv
