#include "tools/Nodes.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "tools/XmlDocument.h"

namespace {

using qv::ChildrenWithTag;
using qv::XmlNode;

class ChildrenWithTagTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(document.Parse("<r><b>0</b><a>1</a><b/><a>2</a><b/></r>")); }

  template <class Node>
  static std::wstring Values(Node* node, const wchar_t* tag) {
    std::wstring values;
    for (auto& child : ChildrenWithTag(node, tag)) {
      values += child.Value().ToView();
    }
    return values;
  }

  XmlDocument document;
};

TEST_F(ChildrenWithTagTest, TheChildrenComeInOrderWithoutThoseOfOtherTags) {
  EXPECT_EQ(Values(document.Root(), L"a"), L"12");
  EXPECT_EQ(Values(&std::as_const(*document.Root()), L"a"), L"12");
}

TEST_F(ChildrenWithTagTest, AConstantNodeGivesConstantChildren) {
  static_assert(
      std::is_same_v<decltype(*ChildrenWithTag(*document.Root(), L"a").begin()), XmlNode&>);
  static_assert(
      std::is_same_v<decltype(*ChildrenWithTag(std::as_const(*document.Root()), L"a").begin()),
                     const XmlNode&>);
}

TEST_F(ChildrenWithTagTest, ATagThatNoChildHasGivesNone) {
  EXPECT_EQ(Values(document.Root(), L"c"), L"");
  EXPECT_EQ(Values(document.Root(), L""), L"");
}

TEST_F(ChildrenWithTagTest, NullHasNone) {
  EXPECT_EQ(Values<XmlNode>(nullptr, L"a"), L"");
  EXPECT_EQ(Values<const XmlNode>(nullptr, L"a"), L"");
}

TEST_F(ChildrenWithTagTest, AChildMayBeRemovedOnceTheIteratorHasLeftIt) {
  XmlNode& root = *document.Root();
  const auto children = ChildrenWithTag(root, L"a");
  int removed = 0;
  for (auto at = children.begin(); at != children.end(); ++removed) {
    root.RemoveChild(&*at++);
  }
  EXPECT_EQ(removed, 2);
  EXPECT_EQ(Values(&root, L"a"), L"");
  EXPECT_EQ(std::distance(root.ChildsBegin(), root.ChildsEnd()), 3);
}

TEST_F(ChildrenWithTagTest, NewChildrenOfTheNodeAreMetByALaterWalk) {
  document.Root()->NewChild(L"a", nullptr)->SetValue(QVWideString(L"3"));
  EXPECT_EQ(Values(document.Root(), L"a"), L"123");
}

TEST(FieldOf, GivesTheValueOfTheFirstFieldOrNothing) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<r><n>x</n><n>y</n></r>"));
  EXPECT_EQ(qv::FieldOf(*document.Root(), L"n"), L"x");
  EXPECT_EQ(qv::FieldOf(*document.Root(), L"m"), L"");
}

}  // namespace
