#include "tools/XmlWriter.h"

#include <gtest/gtest.h>

#include "tests/support/NamedCase.h"
#include "tests/tools/Trees.h"
#include "tools/Utf8.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

using namespace std::string_view_literals;

/// The text of `root` without declaration; "(nothing)" if it is refused.
std::string Bare(const XmlNode& root) {
  return WriteXml(root, Declaration::No).value_or("(nothing)");
}

/// A tree, told by some XML text of it, and the text that is written.
struct Layout : NamedCase {
  const char* tree;
  const char* text;
};

class XmlWriterLayout : public testing::TestWithParam<Layout> {};

TEST_P(XmlWriterLayout, IsExact) { EXPECT_EQ(Bare(*Parsed(GetParam().tree)), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Trees, XmlWriterLayout,
    testing::Values(Layout{"AnEmptyElement", "<m></m>", "<m/>"},
                    Layout{"ALeaf", "<m>text</m>", "<m>text</m>"},
                    Layout{"Fields", "<m><a>1</a><b></b><a>2</a></m>",
                           "<m>\n  <a>1</a>\n  <b/>\n  <a>2</a>\n</m>"},
                    Layout{"Levels", "<m><a><b><c/></b></a><d>x</d></m>",
                           "<m>\n  <a>\n    <b>\n      <c/>\n    </b>\n  </a>\n  <d>x</d>\n</m>"},
                    Layout{"AValueBesideChildren", "<m><a>v<b><c/></b><d/></a><e/></m>",
                           "<m>\n  <a>v<b><c/></b><d/></a>\n  <e/>\n</m>"},
                    Layout{"AValueBehindChildren", "<m><b/>v</m>", "<m>v<b/></m>"},
                    Layout{"BlanksOfALeaf", "<m> a  b </m>", "<m> a  b </m>"},
                    Layout{"ALeafOfBlanks", "<m>  </m>", "<m>  </m>"},
                    Layout{"BlanksBesideChildren", "<m>&#32; <b/></m>", "<m>&#32;&#32;<b/></m>"},
                    Layout{"BlanksOfAValueBesideChildren", "<m> v <b/></m>", "<m> v <b/></m>"},
                    Layout{"LineEndsAndTabs", "<m>a&#13;&#10;b&#9;c\n</m>",
                           "<m>a&#13;&#10;b&#9;c&#10;</m>"},
                    Layout{"ALeafOfALineFeed", "<m>\n</m>", "<m>&#10;</m>"},
                    Layout{"MarkupCharacters", "<m>&lt;a b='c'&gt; &amp;amp; \"d\"</m>",
                           "<m>&lt;a b='c'&gt; &amp;amp; \"d\"</m>"},
                    Layout{"TheEndOfCharacterData", "<m>]]&gt;</m>", "<m>]]&gt;</m>"}),
    testing::PrintToStringParamName());

TEST(XmlWriter, StartsAFileWithADeclaration) {
  EXPECT_EQ(WriteXml(XmlNode(L"m"), Declaration::Yes),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<m/>\n");
}

TEST(XmlWriter, WritesUtf8) {
  XmlNode root(L"a\u00F1o");
  root.SetValue(QVWideString(L"\u00F1\u20AC\U0001F600\u0085\u2028"));
  EXPECT_EQ(Bare(root),
            "<a\xC3\xB1o>\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80\xC2\x85\xE2\x80\xA8</a\xC3\xB1o>");
}

TEST(XmlWriter, RefusesATagThatIsNoName) {
  for (const std::wstring_view tag :
       {L""sv,          L" "sv,          L"1a"sv,  L"-a"sv,  L".a"sv,     L"a b"sv,     L"a "sv,
        L"a\n"sv,       L" a"sv,         L"a/"sv,  L"a>"sv,  L"<a"sv,     L"a b='1'"sv, L"a/><b"sv,
        L"a><b/></a"sv, L"a='1'"sv,      L"!--"sv, L"?pi"sv, L"a&amp;"sv, L"a\0b"sv,    L"a\x01"sv,
        L"a\u00D7"sv,   L"\U0001F600"sv, L"a?"sv,  L"a;"sv}) {
    const XmlNode root{QVWideString(tag)};
    EXPECT_EQ(Bare(root), "(nothing)") << std::wstring(tag);
  }
}

TEST(XmlWriter, RefusesATreeForOneTagBelow) {
  const auto root = Parsed("<m>v<a><b/><c>x</c></a></m>");
  root->Node(L"a")->NewChild(L"no name", nullptr);
  EXPECT_EQ(Bare(*root), "(nothing)");
  EXPECT_EQ(WriteXml(*root, Declaration::Yes), std::nullopt);
}

TEST(XmlWriter, TakesEveryTagThatIsAName) {
  for (const std::wstring_view tag : {L"a"sv, L"_"sv, L"a-b.c_1"sv, L"a:b"sv, L"month12"sv,
                                      L"\u00F1and\u00FA"sv, L"xml"sv, L"\u65E5"sv}) {
    const std::string name = ToUtf8(tag).value();
    EXPECT_EQ(Bare(XmlNode{QVWideString(tag)}), "<" + name + "/>");
  }
}

TEST(XmlWriter, RefusesCharactersThatXmlCannotCarry) {
  for (const unsigned code : {0x0U, 0x1U, 0x8U, 0xBU, 0xCU, 0x1FU, 0xD800U, 0xDBFFU, 0xDFFFU,
                              0xFFFEU, 0xFFFFU, 0x110000U, 0xFFFFFFFFU}) {
    const auto root = Parsed("<m><a>x</a><b/></m>");
    const std::wstring value = L"x" + std::wstring(1, static_cast<wchar_t>(code));
    root->Node(L"b")->SetValue(QVWideString(std::wstring_view{value}));
    EXPECT_EQ(Bare(*root), "(nothing)") << code;
  }
}

TEST(XmlWriter, WritesTheDeepestTreeThatCanBeRead) {
  const auto deepest = Chain(maxXmlDepth);
  EXPECT_EQ(*Parsed(Bare(*deepest)), *deepest);
}

TEST(XmlWriter, RefusesADeeperTree) { EXPECT_EQ(Bare(*Chain(maxXmlDepth + 1)), "(nothing)"); }

}  // namespace
}  // namespace qv
