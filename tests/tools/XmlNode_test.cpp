#include "tools/XmlNode.h"

#include <gtest/gtest.h>

#include <map>
#include <type_traits>
#include <vector>

#include "tests/tools/Trees.h"

namespace qv {
namespace {

using namespace std::string_view_literals;

static_assert(std::is_same_v<decltype(std::declval<XmlNode&>().Node(L"")), XmlNode*>);
static_assert(std::is_same_v<decltype(std::declval<const XmlNode&>().Node(L"")), const XmlNode*>);
static_assert(std::is_same_v<decltype(std::declval<XmlNode&>().NodeV(L"%d", 1)), XmlNode*>);
static_assert(
    std::is_same_v<decltype(std::declval<const XmlNode&>().NodeV(L"%d", 1)), const XmlNode*>);
static_assert(std::is_same_v<decltype(std::declval<const XmlNode&>().Tag()), const QVWideString&>);
static_assert(
    std::is_same_v<decltype(std::declval<const XmlNode&>().Value()), const QVWideString&>);
static_assert(std::is_same_v<decltype(std::declval<XmlNode&>().Value(L"")), QVWideString>);
static_assert(std::is_same_v<decltype(std::declval<XmlNode&>().ChildsBegin()),
                             std::list<XmlNode*>::iterator>);
static_assert(std::is_same_v<decltype(std::declval<const XmlNode&>().ChildsEnd()),
                             std::list<XmlNode*>::const_iterator>);

/// The children in order.
std::vector<XmlNode*> Children(XmlNode& node) { return {node.ChildsBegin(), node.ChildsEnd()}; }

TEST(XmlNode, StartsWithItsTagAlone) {
  const XmlNode node(L"main");
  EXPECT_EQ(node.Tag(), L"main");
  EXPECT_EQ(node.Value(), L"");
  EXPECT_EQ(node.ChildsBegin(), node.ChildsEnd());
}

TEST(XmlNode, SetValueMakesAChildAtTheEnd) {
  const auto root = Parsed("<main><first/></main>");
  root->SetValue(L"name", L"Peak");
  EXPECT_EQ(Outline(*root), R"(main[first name="Peak"])");
}

TEST(XmlNode, SetValueReplacesAndNeverMakesASecondChild) {
  XmlNode root(L"main");
  root.SetValue(L"name", L"one");
  const XmlNode* field = root.Node(L"name");
  root.SetValue(L"name", QVWideString(L"two"));
  root.SetValue(L"name", L"");
  root.SetValue(L"name", L"three");
  EXPECT_EQ(Outline(root), R"(main[name="three"])");
  EXPECT_EQ(root.Node(L"name"), field);
}

TEST(XmlNode, SetValueFillsTheChildThatNewChildMade) {
  XmlNode root(L"main");
  const XmlNode* child = root.NewChild(L"name", nullptr);
  root.SetValue(L"name", L"Peak");
  EXPECT_EQ(Outline(root), R"(main[name="Peak"])");
  EXPECT_EQ(child->Value(), L"Peak");
}

TEST(XmlNode, SetValueFillsTheFirstOfSeveral) {
  const auto root = Parsed("<m><a/><b/><b>2</b></m>");
  root->SetValue(L"b", L"1");
  EXPECT_EQ(Outline(*root), R"(m[a b="1" b="2"])");
}

TEST(XmlNode, SetValueKeepsTheChildrenOfTheField) {
  const auto root = Parsed("<m><a><b/></a></m>");
  root->SetValue(L"a", L"x");
  EXPECT_EQ(Outline(*root), R"(m[a="x"[b]])");
}

TEST(XmlNode, SetValueTakesANullTextForAnEmptyOne) {
  const auto root = Parsed("<m><a>x</a></m>");
  const wchar_t* null = nullptr;
  root->SetValue(L"a", null);
  EXPECT_EQ(Outline(*root), "m[a]");
}

TEST(XmlNode, SetValueMayBeGivenAPieceOfTheOldValue) {
  const auto root = Parsed("<m><a>abcdef</a></m>");
  root->SetValue(L"a", root->Node(L"a")->Value());
  EXPECT_EQ(root->Value(L"a"), L"abcdef");
  root->SetValue(L"a", root->Node(L"a")->Value() + 2);
  EXPECT_EQ(root->Value(L"a"), L"cdef");
}

TEST(XmlNode, SetValueOwnsACopyOfTheText) {
  XmlNode root(L"m");
  wchar_t text[] = L"text";
  root.SetValue(L"a", text);
  root.SetValue(L"b", QVWideString(text, false));
  root.SetValue(QVWideString(text, false));
  text[0] = L'n';
  EXPECT_EQ(Outline(root), R"(m="text"[a="text" b="text"])");
}

TEST(XmlNode, NewChildAppendsEvenWhereOneOfTheTagIs) {
  XmlNode root(L"m");
  XmlNode* first = root.NewChild(L"x", nullptr);
  XmlNode* second = root.NewChild(L"x", nullptr);
  EXPECT_EQ(Children(root), (std::vector{first, second}));
  EXPECT_EQ(root.Node(L"x"), first);
}

TEST(XmlNode, NewChildDoesNotLookAtItsReservedArgument) {
  XmlNode root(L"m");
  XmlNode other(L"other");
  root.NewChild(L"x", &other);
  EXPECT_EQ(Outline(root), "m[x]");
  EXPECT_EQ(Outline(other), "other");
}

TEST(XmlNode, RemoveChildTakesOutThatChildWithAllBelow) {
  const auto root = Parsed("<m><a>1</a><a>2<b><c/></b></a><a>3</a></m>");
  root->RemoveChild(Children(*root)[1]);
  EXPECT_EQ(Outline(*root), R"(m[a="1" a="3"])");
}

TEST(XmlNode, RemoveChildLeavesAForeignNodeAlone) {
  const auto root = Parsed("<m><a><b/></a></m>");
  XmlNode foreign(L"a");
  root->RemoveChild(&foreign);
  root->RemoveChild(nullptr);
  root->RemoveChild(root.get());
  root->RemoveChild(root->Node(L"a")->Node(L"b"));
  EXPECT_EQ(Outline(*root), "m[a[b]]");
  EXPECT_EQ(Outline(foreign), "a");
}

TEST(XmlNode, EraseTagRemovesTheFirstOnly) {
  const auto root = Parsed("<m><a>1</a><b/><a>2</a></m>");
  EXPECT_TRUE(root->EraseTag(L"a"));
  EXPECT_EQ(Outline(*root), R"(m[b a="2"])");
  EXPECT_TRUE(root->EraseTag(L"a"));
  EXPECT_FALSE(root->EraseTag(L"a"));
  EXPECT_EQ(Outline(*root), "m[b]");
}

TEST(XmlNode, EraseTagLooksAtChildrenOnly) {
  const auto root = Parsed("<m><a><m/><b/></a></m>");
  EXPECT_FALSE(root->EraseTag(L"b"));
  EXPECT_FALSE(root->EraseTag(L"m"));
  EXPECT_FALSE(root->EraseTag(L"A"));
  EXPECT_EQ(Outline(*root), "m[a[m b]]");
}

TEST(XmlNode, ResetClearsValueAndChildrenInPlace) {
  const auto root = Parsed("<m><a>x<b/></a><c/></m>");
  XmlNode* node = root->Node(L"a");
  node->Reset();
  EXPECT_EQ(Outline(*root), "m[a c]");
  EXPECT_EQ(root->Node(L"a"), node);
}

TEST(XmlNode, ACopyIsDeepAndLivesOnItsOwn) {
  auto source = Parsed("<m>v<a>1<b>2</b></a></m>");
  XmlNode copy(*source);
  EXPECT_EQ(copy, *source);
  EXPECT_NE(copy.Node(L"a"), source->Node(L"a"));
  source->EraseTag(L"a");
  source.reset();
  EXPECT_EQ(Outline(copy), R"(m="v"[a="1"[b="2"]])");
}

TEST(XmlNode, AssignmentKeepsAddressPlaceAndTag) {
  const auto root = Parsed("<m><a/><hour>old<id>1</id></hour><z/></m>");
  XmlNode* target = root->Node(L"hour");
  const XmlNode* oldChild = target->Node(L"id");
  const auto source = Parsed("<day>new<id>2</id><name/></day>");
  *target = *source;
  EXPECT_EQ(Children(*root)[1], target);
  EXPECT_EQ(Outline(*root), R"(m[a hour="new"[id="2" name] z])");
  EXPECT_NE(target->Node(L"id"), oldChild);
}

TEST(XmlNode, AssignmentSharesNothingWithTheSource) {
  XmlNode target(L"m");
  const auto source = Parsed("<m>v<a>1</a></m>");
  target = *source;
  source->Node(L"a")->SetValue(L"changed");
  source->Reset();
  EXPECT_EQ(Outline(target), R"(m="v"[a="1"])");
}

TEST(XmlNode, AssignmentFromBelowTakesTheWholeDescendant) {
  const auto root = Parsed("<m>v<a><b>x<c>1</c></b></a></m>");
  *root = *root->Node(L"a")->Node(L"b");
  EXPECT_EQ(Outline(*root), R"(m="x"[c="1"])");
}

TEST(XmlNode, AssignmentFromAboveCopiesWhatWasThere) {
  const auto root = Parsed("<m>v<a><b/></a></m>");
  XmlNode& target = *root->Node(L"a");
  target = *root;
  EXPECT_EQ(Outline(*root), R"(m="v"[a="v"[a[b]]])");
}

TEST(XmlNode, AssignmentFromItselfChangesNothing) {
  const auto root = Parsed("<m>v<a><b/></a></m>");
  const XmlNode* child = root->Node(L"a");
  const XmlNode& same = *root;
  *root = same;
  EXPECT_EQ(Outline(*root), R"(m="v"[a[b]])");
  EXPECT_EQ(root->Node(L"a"), child);
}

TEST(XmlNode, AddressesHoldWhileSiblingsComeAndGo) {
  XmlNode root(L"m");
  std::map<int, XmlNode*> kept;
  for (int i = 0; i < 100; ++i) {
    XmlNode* child = root.NewChild(L"x", nullptr);
    child->SetValue(QVWideString(std::to_wstring(i)));
    kept[i] = child;
  }
  for (int i = 0; i < 100; i += 2) {
    root.RemoveChild(kept[i]);
    kept.erase(i);
  }
  std::vector<XmlNode*> expected;
  for (const auto& [number, child] : kept) {
    EXPECT_EQ(child->Value(), std::to_wstring(number));
    expected.push_back(child);
  }
  EXPECT_EQ(Children(root), expected);
}

TEST(XmlNode, AWalkMayRemoveTheNodeBehindIt) {
  const auto root = Parsed("<m><a/><b/><a/><a/><c/></m>");
  for (auto child = root->ChildsBegin(); child != root->ChildsEnd();) {
    XmlNode* node = *child++;
    if (node->Tag() == L"a") {
      root->RemoveChild(node);
    }
  }
  EXPECT_EQ(Outline(*root), "m[b c]");
}

TEST(XmlNode, WalksAConstNodeInOrder) {
  const auto root = Parsed("<m><a/><b/><a/></m>");
  const XmlNode& constant = *root;
  std::string tags;
  for (auto child = constant.ChildsBegin(); child != constant.ChildsEnd(); ++child) {
    tags += static_cast<char>((*child)->Tag()[0]);
  }
  EXPECT_EQ(tags, "aba");
}

TEST(XmlNode, EqualTreesAgreeInTagsValuesAndOrder) {
  const auto tree = Parsed("<m>v<a>1</a><b/></m>");
  EXPECT_EQ(*tree, *Parsed("<m>v<a>1</a><b/></m>"));
  for (const char* other : {"<n>v<a>1</a><b/></n>", "<m>w<a>1</a><b/></m>", "<m>v<a>2</a><b/></m>",
                            "<m>v<b/><a>1</a></m>", "<m>v<a>1</a></m>", "<m>v<a>1</a><b/><b/></m>",
                            "<m>v<a>1</a><b><c/></b></m>", "<M>v<a>1</a><b/></M>"}) {
    EXPECT_FALSE(*tree == *Parsed(other)) << other;
  }
}

}  // namespace
}  // namespace qv
