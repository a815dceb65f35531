#include "tools/XmlText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/tools/Trees.h"

namespace qv {
namespace {

TEST(ParseXMLText, DecodesTheContentOfAnElement) {
  const std::pair<const char*, const wchar_t*> texts[] = {
      {"", L""},
      {"plain", L"plain"},
      {"  blanks  ", L"  blanks  "},
      {" \t\n ", L" \t\n "},
      {"&lt;&gt;&amp;&quot;&apos;", L"<>&\"'"},
      {"&#65;&#x42;&#xf1;", L"AB\u00F1"},
      {"a&#13;&#10;b", L"a\r\nb"},
      {"a\r\nb\rc", L"a\nb\nc"},
      {"se\xC3\xB1"
       "al \xE2\x82\xAC \xF0\x9F\x98\x80",
       L"se\u00F1al \u20AC \U0001F600"},
      {"a > b", L"a > b"},
      {"<![CDATA[<raw> &amp;]]>", L"<raw> &amp;"},
      {"a<!-- comment -->b<?pi?>c", L"abc"}};
  for (const auto& [text, decoded] : texts) {
    QVWideString out(L"old");
    EXPECT_EQ(ParseXMLText(text, out), decoded) << text;
  }
}

TEST(ParseXMLText, GivesTheEmptyTextForWhatIsNoTextOfAnElement) {
  for (const char* text : {"<", "a & b", "&unknown;", "a<b/>", "</t>", "</t><t>", "</t><!--", "]]>",
                           "\xF1", "\xC3", "\x01", "&#0;", "&#xFFFE;", "&#xD800;", "&amp"}) {
    QVWideString out(L"old");
    EXPECT_EQ(ParseXMLText(text, out), L"") << text;
  }
}

TEST(ParseXMLText, TakesANullTextForAnEmptyOne) {
  QVWideString out(L"old");
  EXPECT_EQ(ParseXMLText(nullptr, out), L"");
}

TEST(ParseXMLText, ReturnsTheStringThatItWasGiven) {
  QVWideString out(32U);
  EXPECT_EQ(&ParseXMLText("abc", out), &out);
  EXPECT_EQ(out, L"abc");
  EXPECT_EQ(out.Flags(), 32U);
}

TEST(IsXmlText, AcceptsEveryCharacterOfXml) {
  for (const unsigned code :
       {0x9U, 0xAU, 0xDU, 0x20U, 0x7FU, 0x85U, 0xD7FFU, 0xE000U, 0xFFFDU, 0x10000U, 0x10FFFFU}) {
    EXPECT_TRUE(IsXmlText(std::wstring(2, static_cast<wchar_t>(code)))) << code;
  }
  EXPECT_TRUE(IsXmlText(L""));
}

TEST(IsXmlText, RefusesEveryOtherNumber) {
  for (const unsigned code : {0x0U, 0x1U, 0x8U, 0xBU, 0xCU, 0xEU, 0x1FU, 0xD800U, 0xDFFFU, 0xFFFEU,
                              0xFFFFU, 0x110000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    EXPECT_FALSE(IsXmlText(L"a" + std::wstring(1, static_cast<wchar_t>(code)))) << code;
  }
}

}  // namespace
}  // namespace qv
