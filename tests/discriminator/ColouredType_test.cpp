#include "discriminator/ColouredType.h"

#include <gmock/gmock.h>

#include "tools/XmlDocument.h"

namespace qv {
namespace {

class ColouredTypeTest : public testing::Test {
 protected:
  ColouredTypeTest() {
    EXPECT_TRUE(
        hours.Parse("<hourTypes><hour><id>p</id><name>Peak</name><color>0000ff</color></hour>"
                    "<hour><id>v</id></hour></hourTypes>"));
    EXPECT_TRUE(slot.Parse("<slot><id>v</id></slot>"));
  }

  XmlDocument hours;
  XmlDocument slot;
};

TEST_F(ColouredTypeTest, IsReadFromItsNode) {
  XmlNode& hour = *hours.Root()->Node(L"hour?id=p?");
  const ColouredType type = ReadColouredType(hour);
  EXPECT_EQ(type.node, &hour);
  EXPECT_EQ(type.name, L"Peak");
  EXPECT_EQ(type.colour, 0x0000FFU);
  EXPECT_EQ(ReadColouredType(*hours.Root()->Node(L"hour?id=v?")).colour, 0U);
}

std::vector<std::wstring> Names(const std::vector<ColouredType>& types) {
  std::vector<std::wstring> names;
  for (const ColouredType& type : types) {
    names.emplace_back(type.name.ToView());
  }
  return names;
}

TEST(ColouredTypes, AreReadInTheOrderOfTheDocumentOrSortedByName) {
  XmlDocument days;
  ASSERT_TRUE(
      days.Parse("<dayTypes><day><name>b</name></day><other><name>c</name></other>"
                 "<day><name>_</name></day><day><name>B</name></day><day><name>A</name></day>"
                 "</dayTypes>"));
  EXPECT_THAT(Names(ReadColouredTypes(days.Root(), L"day")),
              testing::ElementsAre(L"b", L"_", L"B", L"A"));
  EXPECT_THAT(Names(SortedColouredTypes(days.Root(), L"day")),
              testing::ElementsAre(L"_", L"A", L"b", L"B"));
  EXPECT_TRUE(ReadColouredTypes(nullptr, L"day").empty());
}

TEST_F(ColouredTypeTest, ANewOneIsWhiteAndGoesUnlessItIsKept) {
  const XmlNode before(*hours.Root());
  { EXPECT_EQ(NewWhiteType(*hours.Root(), L"hour").Node().Value(L"color"), L"FFFFFF"); }
  EXPECT_EQ(*hours.Root(), before);
  NewWhiteType(*hours.Root(), L"hour").Keep();
  const XmlNode& kept = **std::prev(hours.Root()->ChildsEnd());
  EXPECT_EQ(kept.Value(L"id").Length(), 36U);
  EXPECT_EQ(kept.Value(L"name", L"?"), L"");
}

TEST_F(ColouredTypeTest, TheHourTypeOfASlotIsFoundByItsId) {
  EXPECT_EQ(HourTypeOfSlot(*slot.Root(), hours.Root()), hours.Root()->Node(L"hour?id=v?"));
  slot.Root()->SetValue(L"id", L"none");
  EXPECT_EQ(HourTypeOfSlot(*slot.Root(), hours.Root()), nullptr);
  EXPECT_EQ(HourTypeOfSlot(*slot.Root(), nullptr), nullptr);
}

}  // namespace
}  // namespace qv
