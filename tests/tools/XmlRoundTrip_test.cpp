#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/tools/ReadingWays.h"
#include "tests/tools/Trees.h"
#include "tools/XmlWriter.h"

namespace qv {
namespace {

using namespace std::string_view_literals;

/// Writes the tree, reads that text in every way and writes again: expects an equal tree and the
/// same bytes.
void ExpectRoundTrip(const XmlNode& tree, Declaration declaration) {
  const auto first = WriteXml(tree, declaration);
  ASSERT_TRUE(first);
  const Reading reading = ReadEveryWay(*first);
  ASSERT_NE(reading.root, nullptr) << reading.error.reason << " in\n" << *first;
  EXPECT_EQ(*reading.root, tree);
  EXPECT_EQ(WriteXml(*reading.root, declaration), first);
}

TEST(XmlRoundTrip, KeepsRandomTrees) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto tree = RandomTree(random);
    ExpectRoundTrip(*tree, seed % 2 == 0 ? Declaration::Yes : Declaration::No);
    ASSERT_FALSE(HasFailure()) << Outline(*tree);
  }
}

TEST(XmlRoundTrip, KeepsEachCharacterInALeafAndBesideChildren) {
  for (wchar_t code = 1; code < 0x3000; ++code) {
    if (code < 0x20 && L"\t\n\r"sv.find(code) == std::wstring_view::npos) {
      continue;
    }
    XmlNode tree(L"m");
    tree.SetValue(QVWideString(std::wstring_view(&code, 1)));
    tree.SetValue(L"a", tree.Value());
    const auto text = WriteXml(tree, Declaration::No);
    ASSERT_TRUE(text) << static_cast<unsigned>(code);
    ASSERT_EQ(*Parsed(*text), tree) << static_cast<unsigned>(code);
  }
}

TEST(XmlRoundTrip, KeepsValuesOfBlanksOnly) {
  for (const wchar_t* blanks : {L" ", L"  ", L"\t", L"\n", L"\r", L"\r\n", L" \n\t\r ", L"\n\n"}) {
    XmlNode tree(L"m");
    tree.SetValue(QVWideString(blanks));
    ExpectRoundTrip(tree, Declaration::No);
    tree.NewChild(L"a", nullptr)->SetValue(QVWideString(blanks));
    tree.NewChild(L"b", nullptr)->NewChild(L"c", nullptr);
    ExpectRoundTrip(tree, Declaration::Yes);
  }
}

TEST(XmlRoundTrip, SettlesForeignTextsAtOnce) {
  for (const char* text :
       {"<m>a<b/>c</m>", "<m>\n<!-- x -->\n<a c='1'> x </a>\r\n</m>", "<m>&#32; <a/></m>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><m>\xF1</m>", "<m><![CDATA[<&>]]><a/></m>",
        "<!DOCTYPE m><m><a>\r\n</a></m>"}) {
    ExpectRoundTrip(*Parsed(text), Declaration::Yes);
  }
}

}  // namespace
}  // namespace qv
