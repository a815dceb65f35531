#include "tools/XmlReader.h"

#include <gtest/gtest.h>

#include "tests/support/NamedCase.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/tools/ReadingWays.h"
#include "tests/tools/Trees.h"

namespace qv {
namespace {

using namespace std::string_literals;

/// A text that is accepted, and the outline of its tree.
struct Accepted : NamedCase {
  std::string xml;
  const char* outline;
};

class XmlReaderAccepts : public testing::TestWithParam<Accepted> {};

TEST_P(XmlReaderAccepts, TheTextWholeAndInPieces) {
  const Reading reading = ReadEveryWay(GetParam().xml);
  ASSERT_NE(reading.root, nullptr) << reading.error.reason;
  EXPECT_EQ(Outline(*reading.root), GetParam().outline);
}

INSTANTIATE_TEST_SUITE_P(
    Structure, XmlReaderAccepts,
    testing::Values(
        Accepted{"AnEmptyElement", "<main/>", "main"},
        Accepted{"AnElementWithoutText", "<main></main>", "main"},
        Accepted{"Text", "<main>text</main>", R"(main="text")"},
        Accepted{"ChildrenInOrder", "<m><b>1</b><a/><b>2</b></m>", R"(m[b="1" a b="2"])"},
        Accepted{"NestedChildren", "<m><a><b><c>x</c></b></a></m>", R"(m[a[b[c="x"]]])"},
        Accepted{"ADeclaration", "<?xml version='1.0' standalone='yes'?><m/>", "m"},
        Accepted{"AttributesReadOver", "<m a='1' b=\"&lt;2&#10;\"><c d='3'>x</c></m>",
                 R"(m[c="x"])"},
        Accepted{"CommentsReadOver", "<!-- a --><m>x<!-- <b> & -->y</m><!-- c -->", R"(m="xy")"},
        Accepted{"InstructionsReadOver", "<?a b?><m>x<?c <d> & ?>y</m><?e?>", R"(m="xy")"},
        Accepted{"ADoctypeReadOver", "<!DOCTYPE m><m>x</m>", R"(m="x")"},
        Accepted{"AnExternalDoctypeReadOver",
                 "<!DOCTYPE m PUBLIC \"-//a//b\" \"http://localhost/c.dtd\">\n<m>&lt;</m>",
                 R"(m="<")"},
        Accepted{"CharacterDataAsText", "<m>a<![CDATA[<b>&amp;]]]]><![CDATA[>]]>c</m>",
                 R"(m="a<b>&amp;]]>c")"},
        Accepted{"PredefinedEntities", "<m>&lt;&gt;&amp;&quot;&apos;</m>", "m=\"<>&\"'\""},
        Accepted{"References", "<m>&#65;&#x42;&#xF1;&#128512;</m>",
                 "m=\"AB\xC3\xB1\xF0\x9F\x98\x80\""},
        Accepted{"ANameWithItsColon", "<a:b><c-d.e_1/></a:b>", "a:b[c-d.e_1]"},
        Accepted{"ANameOfLettersBeyondAscii", "<a\xC3\xB1o/>", "a\xC3\xB1o"},
        Accepted{"BlanksAroundTheRoot", "\n \t<m/>\r\n  ", "m"}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Blanks, XmlReaderAccepts,
    testing::Values(
        Accepted{"IndentationDropped", "<m>\n  <a>\n    <b/>\n  </a>\n</m>", "m[a[b]]"},
        Accepted{"IndentationOfTabsAndReturnsDropped", "<m>\r\n\t<a/>\r\n</m>", "m[a]"},
        Accepted{"BlanksKeptInALeaf", "<m>  <a> \t </a></m>", R"(m[a=" \t "])"},
        Accepted{"BlanksKeptAroundText", "<m><a> x  y </a></m>", R"(m[a=" x  y "])"},
        Accepted{"LineFeedsKeptInALeaf", "<m><a>\n1\n</a></m>", R"(m[a="\n1\n"])"},
        Accepted{"LineEndsMadeLineFeeds", "<m>a\r\nb\rc\n\rd</m>", R"(m="a\nb\nc\n\nd")"},
        Accepted{"ReferredReturnsKept", "<m>a&#13;&#10;b&#xD;c&#9;</m>", R"(m="a\r\nb\rc\t")"},
        Accepted{"MixedContentJoined", "<m>a<b/>c<b/>d</m>", R"(m="acd"[b b])"},
        Accepted{"BlanksOfMixedContentKept", "<m> a <b/>\n</m>", R"(m=" a \n"[b])"},
        Accepted{"AReferredBlankKeptBesideChildren", "<m>&#32;<b/></m>", R"(m=" "[b])"},
        Accepted{"AReferredBlankKeepsAllBlanks", "<m> <b/>&#x9; </m>", R"(m=" \t "[b])"},
        Accepted{"ReferredLineEndsKeptBesideChildren", "<m>&#13;&#10;<b/></m>", R"(m="\r\n"[b])"},
        Accepted{"AnEntityOfAnotherCharacterKept", "<m>&amp;<b/></m>", R"(m="&"[b])"},
        Accepted{"CharacterDataOfBlanksDroppedBesideChildren", "<m><![CDATA[ ]]><b/></m>", "m[b]"},
        Accepted{"CharacterDataOfBlanksKeptInALeaf", "<m><![CDATA[ ]]></m>", R"(m=" ")"},
        Accepted{"NoBreakSpaceIsText", "<m>\xC2\xA0<b/></m>", "m=\"\xC2\xA0\"[b]"},
        Accepted{"TheReferenceOfAChildIsNotTheParents", "<m> <b>&#32;</b> </m>", R"(m[b=" "])"}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Encodings, XmlReaderAccepts,
    testing::Values(
        Accepted{"Utf8", "<m>\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80</m>",
                 "m=\"\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        Accepted{"Utf8Declared", "<?xml version='1.0' encoding='utf-8'?><m>\xC3\xB1</m>",
                 "m=\"\xC3\xB1\""},
        Accepted{"Utf8WithMark", "\xEF\xBB\xBF<m>\xC3\xB1</m>", "m=\"\xC3\xB1\""},
        Accepted{"Latin1", "<?xml version='1.0' encoding='ISO-8859-1'?><m>\xF1\xFF</m>",
                 "m=\"\xC3\xB1\xC3\xBF\""},
        Accepted{"Ascii", "<?xml version='1.0' encoding='US-ASCII'?><m>n&#xF1;</m>",
                 "m=\"n\xC3\xB1\""},
        Accepted{"Utf16LittleEndian", Utf16("<m>a\xF1\n<b>&#32; x</b></m>", false),
                 "m=\"a\xC3\xB1\\n\"[b=\"  x\"]"},
        Accepted{"Utf16BigEndian", Utf16("<m>a\xF1\n<b>&#32; x</b></m>", true),
                 "m=\"a\xC3\xB1\\n\"[b=\"  x\"]"},
        Accepted{"Utf16Declared", Utf16("<?xml version='1.0' encoding='UTF-16'?><m/>", true), "m"},
        Accepted{"Utf16LittleEndianIndentation", Utf16("<m>\r\n  <b/>\r\n</m>", false), "m[b]"},
        Accepted{"Utf16BigEndianIndentation", Utf16("<m>\r\n  <b/>\r\n</m>", true), "m[b]"},
        Accepted{"Utf16LittleEndianReferredBlank", Utf16("<m>&#32;<b/></m>", false), R"(m=" "[b])"},
        Accepted{"Utf16BigEndianReferredBlank", Utf16("<m>&#32;<b/></m>", true), R"(m=" "[b])"},
        Accepted{"Utf16LittleEndianWithoutMark", " \0<\0m\0/\0>\0"s, "m"},
        Accepted{"Utf16BigEndianWithoutMark", "\0 \0<\0m\0/\0>"s, "m"},
        Accepted{"Utf16SurrogatePair", "\xFF\xFE<\0m\0>\0\x3D\xD8\x00\xDE<\0/\0m\0>\0"s,
                 "m=\"\xF0\x9F\x98\x80\""}),
    testing::PrintToStringParamName());

TEST(XmlReader, AcceptsTheDeepestNestingAllowed) {
  std::string starts;
  std::string ends;
  for (int i = 0; i < maxXmlDepth; ++i) {
    starts += "<n>";
    ends += "</n>";
  }
  const Reading reading = ReadEveryWay(starts + ends);
  ASSERT_NE(reading.root, nullptr);
  EXPECT_EQ(*reading.root, *Chain(maxXmlDepth));
}

TEST(XmlReader, AcceptsAnyNumberOfSiblings) {
  std::string xml = "<m>";
  for (int i = 0; i < 5000; ++i) {
    xml += "<n/>";
  }
  const Reading reading = ReadInPieces(xml + "</m>", 4096);
  ASSERT_NE(reading.root, nullptr);
  EXPECT_EQ(std::distance(reading.root->ChildsBegin(), reading.root->ChildsEnd()), 5000);
}

TEST(XmlReader, KeepsALongTextWhole) {
  std::string text;
  for (int i = 0; i < 100000; ++i) {
    text += i % 7 == 0 ? "\xE2\x82\xAC" : "x";
  }
  ScriptedFiles files;
  files.contents[L"/long"] = "<m>" + text + "</m>";
  const auto root = ReadXmlFile(L"/long", files);
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(Outline(*root), "m=\"" + text + "\"");
}

TEST(XmlReader, TakesEmptyPieces) {
  XmlReader reader;
  for (const char* piece : {"", "<m>", "", "x", "", "</m>", ""}) {
    EXPECT_TRUE(reader.Feed(piece)) << piece;
  }
  const auto root = reader.Finish();
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(Outline(*root), R"(m="x")");
}

TEST(XmlReader, MayBeDroppedHalfWay) {
  XmlReader reader;
  EXPECT_TRUE(reader.Feed("<m><a>text"));
}

}  // namespace
}  // namespace qv
