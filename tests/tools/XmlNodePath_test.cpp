#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "tests/tools/Trees.h"
#include "tools/XmlNode.h"

namespace qv {
namespace {

constexpr int none = -1;

/// An installation with one of everything that is looked up; two hours are named Peak, and two
/// fields that others have are missing here and there.
constexpr const char* installation = R"(
<main>
  <id>r1</id><name>Tariff</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>
  <type>SLOTS</type><conditions/>
  <hourTypes>
    <hour><name>No id</name></hour>
    <other><id>h1</id><name>Peak</name></other>
    <hour><id>h1</id><name>Peak</name><color>0000FF</color></hour>
    <hour><id>h2</id><name>Valley</name><color>00ff00</color></hour>
    <hour><id>h3</id><name>Peak</name><color/></hour>
  </hourTypes>
  <dayTypes>
    <day><id>d1</id><name>Working day</name><color>0000FF</color></day>
    <day><id>d2</id><name>F&#234;te</name><color>000A0B</color></day>
  </dayTypes>
  <calendar>
    <year/>
    <year><year>2025</year><month1><day31>d1</day31></month1></year>
    <year><year>2026</year><month1><day3>d2</day3><day31>d1</day31></month1><month12/></year>
    <year><year>-5</year></year>
  </calendar>
  <devices>
    <device><type>R$DISC</type></device>
    <device><id>r1</id><type>METER</type></device>
    <device><id>r1</id><type>R$DISC</type></device>
  </devices>
  <groups/><commSystem/><main/><root/><year/>
</main>)";

struct Lookup {
  const char* receiver;  ///< tags and numbers of children, from the root down
  const wchar_t* format;
  FormatArgument argument;
  int found;  ///< the number of the child, or none
};

const Lookup lookups[] = {
    {"", L"id", L"", 0},
    {"", L"name", L"", 1},
    {"", L"description", L"", 2},
    {"", L"setZeroOutsideSlot", L"", 3},
    {"", L"type", L"", 4},
    {"", L"conditions", L"", 5},
    {"", L"hourTypes", L"", 6},
    {"", L"dayTypes", L"", 7},
    {"", L"calendar", L"", 8},
    {"", L"devices", L"", 9},
    {"", L"groups", L"", 10},
    {"", L"commSystem", L"", 11},
    {"", L"main", L"", 12},
    {"", L"root", L"", 13},
    {"", L"year", L"", 14},
    {"", L"missing", L"", none},
    {"", L"ID", L"", none},
    {"", L"hour", L"", none},
    {"8/1", L"year", L"", 0},
    {"8/1", L"month%d", 1, 1},
    {"8/2", L"month%d", 12, 2},
    {"8/2", L"month%d", 2, none},
    {"8/2/1", L"day%d", 3, 0},
    {"8/2/1", L"day%d", 31, 1},
    {"8/2/1", L"day%d", 1, none},
    {"8", L"year?year=%d?", 2025, 1},
    {"8", L"year?year=%d?", 2026, 2},
    {"8", L"year?year=%d?", -5, 3},
    {"8", L"year?year=%d?", 202, none},
    {"7", L"day?name=%s?", L"Working day", 0},
    {"7", L"day?name=%s?", L"F\u00EAte", 1},
    {"7", L"day?name=%s?", L"working day", none},
    {"7", L"day?color=%06X?", 0x0000FF, 0},
    {"7", L"day?color=%06X?", 0x000A0B, 1},
    {"7", L"day?color=%06X?", 0x0A0B00, none},
    {"6", L"hour?name=%s?", L"Peak", 2},
    {"6", L"hour?name=%s?", L"Valley", 3},
    {"6", L"hour?color=%s?", L"0000FF", 2},
    {"6", L"hour?color=%s?", L"00FF00", none},
    {"6", L"hour?color=%s?", L"00ff00", 3},
    {"6", L"hour?id=%s?", L"h1", 2},
    {"6", L"hour?id=%s?", L"h4", none},
    {"6", L"other?id=%s?", L"h1", 1},
    {"7", L"day?id=%s?", L"d2", 1},
    {"7", L"day?id=%s?", L"", none},
    {"9", L"device?id=%s?", L"r1", 1},
    {"9", L"device?id=%s?", L"r2", none},
};

void PrintTo(const Lookup& lookup, std::ostream* out) {
  const std::wstring path = Format(lookup.format, {lookup.argument});
  *out << "of \"" << lookup.receiver << "\" path ";
  ::PrintTo(QVWideString(path), out);
}

/// The node that the numbers in `way`, parted by slashes, lead to.
const XmlNode* Receiver(const XmlNode* node, const std::string& way) {
  for (std::size_t start = 0; start < way.size(); start = way.find('/', start) + 1) {
    node = *std::next(node->ChildsBegin(), std::stoi(way.substr(start)));
    if (way.find('/', start) == std::string::npos) {
      break;
    }
  }
  return node;
}

const XmlNode* Child(const XmlNode& node, int number) {
  return number == none ? nullptr : *std::next(node.ChildsBegin(), number);
}

class XmlNodePath : public testing::TestWithParam<Lookup> {
 protected:
  std::unique_ptr<XmlNode> root = Parsed(installation);
  const XmlNode* receiver = Receiver(root.get(), GetParam().receiver);
  const XmlNode* expected = Child(*receiver, GetParam().found);
};

TEST_P(XmlNodePath, NamesTheFirstChildThatSatisfiesIt) {
  EXPECT_EQ(receiver->NodeV(GetParam().format, GetParam().argument), expected);
  EXPECT_EQ(const_cast<XmlNode*>(receiver)->NodeV(GetParam().format, GetParam().argument),
            expected);
}

TEST_P(XmlNodePath, NamesTheSameWithALeadingSlash) {
  const std::wstring format = L"/" + std::wstring(GetParam().format);
  EXPECT_EQ(receiver->NodeV(format.c_str(), GetParam().argument), expected);
}

TEST_P(XmlNodePath, GivesTheValueOrTheDefault) {
  const std::wstring path = Format(GetParam().format, {GetParam().argument});
  EXPECT_EQ(receiver->Value(path.c_str(), L"default"),
            expected ? expected->Value() : QVWideString(L"default"));
}

INSTANTIATE_TEST_SUITE_P(Patterns, XmlNodePath, testing::ValuesIn(lookups));

TEST(XmlNodePath, AMalformedPathNamesNothing) {
  const auto root = Parsed("<m><hour><id>1</id><name/></hour></m>");
  root->Node(L"hour")->SetValue(L"id?", L"1");
  root->Node(L"hour")->SetValue(L"id", L"id");
  root->Node(L"hour")->SetValue(L"", L"1");
  for (const wchar_t* path :
       {L"hour?id=1", L"hour?id?", L"hour?", L"hour??", L"hour?id?=1", L"hour? id=1?",
        L"hour?id=1 ?", L"//hour", L"hour/", L"hour/id", L"/", L"", L"?id=1?", L"hour ", L"*"}) {
    EXPECT_EQ(root->Node(path), nullptr) << std::wstring(path);
  }
}

TEST(XmlNodePath, EndsAtTheClosingQuestionMark) {
  const auto root = Parsed("<m><hour><id>1</id></hour></m>");
  EXPECT_EQ(root->Node(L"hour?id=1?more"), *root->ChildsBegin());
}

TEST(XmlNodePath, PartsFieldAndValueAtTheFirstEqualsSign) {
  const auto root = Parsed("<m><a><b>x=y</b></a></m>");
  EXPECT_EQ(root->Node(L"a?b=x=y?"), *root->ChildsBegin());
}

TEST(XmlNodePath, AnEmptyPredicateValueAsksForAnEmptyField) {
  const auto root = Parsed("<m><a/><a><b>x</b></a><a><b/></a></m>");
  EXPECT_EQ(root->Node(L"a?b=?"), Child(*root, 2));
}

TEST(XmlNodePath, AChildWithoutThePredicatesFieldNeverMatches) {
  const auto root = Parsed("<m><a>x</a><a><c>x</c></a></m>");
  EXPECT_EQ(root->Node(L"a?b=x?"), nullptr);
  EXPECT_EQ(root->Node(L"a?b=?"), nullptr);
}

TEST(XmlNodePath, APredicateLooksAtEveryFieldOfTheTag) {
  const auto root = Parsed("<m><a><b>1</b><b>2</b></a></m>");
  EXPECT_EQ(root->Node(L"a?b=2?"), Child(*root, 0));
}

TEST(XmlNodePath, APredicateComparesTheWholeTextWithItsBlanks) {
  const auto root = Parsed("<m><a><b> x </b></a><a><b>x</b></a><a><b>xy</b></a></m>");
  EXPECT_EQ(root->Node(L"a?b=x?"), Child(*root, 1));
  EXPECT_EQ(root->Node(L"a?b= x ?"), Child(*root, 0));
}

TEST(XmlNodePath, NodeVFormatsEachKindOfArgument) {
  const auto root = Parsed("<m><a1B><c>00000A-x%</c></a1B></m>");
  const QVWideString text(L"x");
  EXPECT_EQ(root->NodeV(L"a%d%s?c=%06X-%s%%?", 1, L"B", 10, text), Child(*root, 0));
  EXPECT_EQ(
      root->NodeV(L"a%d%s?c=%06X-%s%%?", 1U, std::wstring_view(L"B"), 10U, std::wstring(L"x")),
      Child(*root, 0));
}

TEST(XmlNodePath, NodeVFindsWhatSetValueMade) {
  XmlNode root(L"m");
  root.SetValue(L"day7", L"id");
  EXPECT_EQ(root.NodeV(L"day%d", 7)->Value(), L"id");
}

TEST(XmlNodePath, NodeVNeverReadsTheArgumentAsAFormat) {
  const auto root = Parsed("<m><a><b>%d %s</b></a></m>");
  EXPECT_EQ(root->NodeV(L"a?b=%s?", L"%d %s"), Child(*root, 0));
}

TEST(XmlNodePath, TheDefaultIsForAMissingFieldOnly) {
  const auto root = Parsed("<m><present/></m>");
  EXPECT_EQ(root->Value(L"missing", L"T"), L"T");
  EXPECT_EQ(root->Value(L"missing"), L"");
  EXPECT_EQ(root->Value(L"present", L"T"), L"");
  EXPECT_EQ(root->Value(L"missing", nullptr), L"");
}

TEST(XmlNodePath, TheValueOutlivesTheNode) {
  auto root = Parsed("<m><a>text</a></m>");
  wchar_t otherwise[] = L"default";
  const QVWideString found = root->Value(L"a");
  const QVWideString missing = root->Value(L"b", otherwise);
  root.reset();
  otherwise[0] = L'D';
  EXPECT_EQ(found, L"text");
  EXPECT_EQ(missing, L"default");
}

}  // namespace
}  // namespace qv
