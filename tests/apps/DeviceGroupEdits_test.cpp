#include "apps/configurator/DeviceGroupEdits.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>

#include "tools/XmlDocument.h"

namespace configurator {
namespace {

using qv::XmlNode;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// The tree in one line: devices by their ids, groups by name with their content in brackets.
std::wstring Sketch(const XmlNode& level) {
  std::wstring sketch;
  if (const XmlNode* groups = level.Node(L"groups")) {
    for (auto group = groups->ChildsBegin(); group != groups->ChildsEnd(); ++group) {
      sketch +=
          std::wstring((*group)->Value(L"name", L"?").ToView()) + L"(" + Sketch(**group) + L")";
    }
  }
  if (const XmlNode* devices = level.Node(L"devices")) {
    for (auto device = devices->ChildsBegin(); device != devices->ChildsEnd(); ++device) {
      sketch += (*device)->Value(L"id", L"?").ToView();
    }
  }
  return sketch;
}

/// A(B(12)3)C()45, by rows: A 0, B 0/0, 1 0/0/0, 2 0/0/1, 3 0/1, C 1, 4 2, 5 3.
class DeviceGroupEditsTest : public testing::Test {
 protected:
  std::wstring Now() const { return Sketch(tree); }

  XmlDocument document = [] {
    XmlDocument parsed;
    EXPECT_TRUE(parsed.Parse(
        "<deviceGroups>"
        "<devices><device><id>4</id><type>T</type></device><device><id>5</id></device></devices>"
        "<groups><group><name>A</name><groups><any><name>B</name><devices>"
        "<device><id>1</id></device><device><id>2</id></device></devices></any></groups>"
        "<devices><device><id>3</id></device></devices></group>"
        "<group><name>C</name></group></groups></deviceGroups>"));
    return XmlDocument(*parsed.Root());
  }();
  XmlNode& tree = *document.Root();
};

TEST_F(DeviceGroupEditsTest, PlacesTellGroupsFromDevices) {
  EXPECT_TRUE(IsGroupPlace(tree, {}));
  EXPECT_TRUE(IsGroupPlace(tree, {0}));
  EXPECT_TRUE(IsGroupPlace(tree, {0, 0}));
  EXPECT_TRUE(IsGroupPlace(tree, {1}));
  for (const TreePlace& none : {TreePlace{2}, TreePlace{0, 1}, TreePlace{4}, TreePlace{-1},
                                TreePlace{2, 0}, TreePlace{1, 0}}) {
    EXPECT_FALSE(IsGroupPlace(tree, none));
  }
}

TEST_F(DeviceGroupEditsTest, SiblingsAreOfOneKind) {
  EXPECT_EQ(SiblingsOf(tree, {1}), (Siblings{0, 2}));
  EXPECT_EQ(SiblingsOf(tree, {3}), (Siblings{2, 2}));
  EXPECT_EQ(SiblingsOf(tree, {0, 1}), (Siblings{1, 1}));
  EXPECT_EQ(SiblingsOf(tree, {}), Siblings());
  EXPECT_EQ(SiblingsOf(tree, {9}), Siblings());
}

TEST_F(DeviceGroupEditsTest, ANewGroupStandsLastOfTheGroups) {
  EXPECT_THAT(AddGroup(tree, {}, L"D"), Optional(TreePlace{2}));
  EXPECT_THAT(AddGroup(tree, {0, 0}, L"E"), Optional(TreePlace{0, 0, 0}));
  EXPECT_EQ(Now(), L"A(B(E()12)3)C()D()45");
  EXPECT_FALSE(AddGroup(tree, {4}, L"in a device"));
  EXPECT_FALSE(AddGroup(tree, {7}, L"nowhere"));
  EXPECT_EQ(Now(), L"A(B(E()12)3)C()D()45");
}

TEST_F(DeviceGroupEditsTest, AGroupIsMadeInATreeWithoutAny) {
  XmlNode empty(L"deviceGroups");
  EXPECT_THAT(AddGroup(empty, {}, L"D"), Optional(TreePlace{0}));
  EXPECT_EQ(Sketch(empty), L"D()");
}

TEST_F(DeviceGroupEditsTest, RenamesGroupsOnly) {
  EXPECT_TRUE(RenameGroup(tree, {0, 0}, L"X"));
  EXPECT_FALSE(RenameGroup(tree, {0, 1}, L"Y"));
  EXPECT_FALSE(RenameGroup(tree, {}, L"Z"));
  EXPECT_FALSE(RenameGroup(tree, {5}, L"Z"));
  EXPECT_EQ(Now(), L"A(X(12)3)C()45");
}

TEST_F(DeviceGroupEditsTest, WhatARemovedGroupHeldMovesToTheGroupAroundIt) {
  EXPECT_TRUE(RemoveGroup(tree, {0}));
  EXPECT_EQ(Now(), L"B(12)C()453");
  EXPECT_TRUE(RemoveGroup(tree, {0}));
  EXPECT_EQ(Now(), L"C()45312");
  EXPECT_TRUE(RemoveGroup(tree, {0}));
  EXPECT_FALSE(RemoveGroup(tree, {0}));
  EXPECT_FALSE(RemoveGroup(tree, {}));
  EXPECT_EQ(Now(), L"45312");
}

TEST_F(DeviceGroupEditsTest, ADeviceMovesWithAllThatItHolds) {
  EXPECT_THAT(MoveLines(tree, {{2}}, {0, 0}, {}), ElementsAre(TreePlace{0, 0, 2}));
  EXPECT_EQ(Now(), L"A(B(124)3)C()5");
  EXPECT_THAT(MoveLines(tree, {{0, 0, 2}}, {1}, {}), ElementsAre(TreePlace{1, 0}));
  const XmlNode& device =
      **(*std::next(tree.Node(L"groups")->ChildsBegin()))->Node(L"devices")->ChildsBegin();
  EXPECT_EQ(device.Value(L"type").ToView(), L"T");
}

struct Move {
  std::vector<TreePlace> what;
  TreePlace group;
  std::optional<int> row;
  std::wstring result;
  std::vector<TreePlace> places;
};

TEST_F(DeviceGroupEditsTest, MovesBeforeARow) {
  const std::vector<Move> moves = {
      {{{3}}, {}, 2, L"A(B(12)3)C()54", {{2}}},
      {{{2}}, {}, 4, L"A(B(12)3)C()54", {{3}}},
      {{{2}}, {}, 2, L"A(B(12)3)C()45", {{2}}},
      {{{2}}, {}, 3, L"A(B(12)3)C()45", {{2}}},
      {{{1}}, {}, 0, L"C()A(B(12)3)45", {{0}}},
      {{{0}}, {}, 2, L"C()A(B(12)3)45", {{1}}},
      {{{0}}, {}, 3, L"C()A(B(12)3)45", {{1}}},  // among the devices: last of the groups
      {{{3}}, {}, 0, L"A(B(12)3)C()54", {{2}}},  // among the groups: first of the devices
      {{{0, 0}}, {}, 1, L"A(3)B(12)C()45", {{1}}},
      {{{0, 0}}, {1}, {}, L"A(3)C(B(12))45", {{1, 0}}},
      {{{0, 0, 1}, {3}}, {0}, 1, L"A(B(1)253)C()4", {{0, 1}, {0, 2}}},
      {{{3}, {0, 1}, {0}, {2}}, {1}, {}, L"C(A(B(12)3)45)", {{0, 0}, {0, 1}, {0, 2}}},
      {{{3}, {0, 1}}, {}, {}, L"A(B(12))C()435", {{3}, {4}}},
      {{{3}}, {}, 99, L"A(B(12)3)C()45", {{3}}},
      {{}, {}, {}, L"A(B(12)3)C()45", {}},
  };
  for (const Move& move : moves) {
    XmlNode copy(tree);
    EXPECT_EQ(MoveLines(copy, move.what, move.group, move.row), move.places)
        << testing::PrintToString(move.what);
    EXPECT_EQ(Sketch(copy), move.result) << testing::PrintToString(move.what);
  }
}

TEST_F(DeviceGroupEditsTest, AGroupCanNotMoveIntoItselfOrBelow) {
  for (const TreePlace& target : {TreePlace{0}, TreePlace{0, 0}}) {
    EXPECT_FALSE(CanMove(tree, {{0}}, target));
    EXPECT_THAT(MoveLines(tree, {{2}, {0}}, target, {}), IsEmpty());
  }
  EXPECT_FALSE(CanMove(tree, {{2}}, {3}));                       // into a device
  EXPECT_FALSE(CanMove(tree, {{2}}, {9}));                       // nowhere
  EXPECT_FALSE(CanMove(tree, {{9}}, {0}));                       // what isn't there
  EXPECT_FALSE(CanMove(tree, std::vector<TreePlace>{{}}, {0}));  // the top
  EXPECT_TRUE(CanMove(tree, {{0, 0}}, {0}));
  EXPECT_EQ(Now(), L"A(B(12)3)C()45");
}

TEST_F(DeviceGroupEditsTest, GroupsNestOnlySoDeepThatTheFileCanBeReadAgain) {
  TreePlace deepest;
  while (const auto place = AddGroup(tree, deepest, L"G")) {
    deepest = *place;
  }
  EXPECT_EQ(deepest.size(), std::size_t{maxGroupDepth});
  EXPECT_TRUE(CanMove(tree, {{3}}, deepest));
  deepest.pop_back();
  EXPECT_TRUE(CanMove(tree, {{1}}, deepest));
  EXPECT_FALSE(CanMove(tree, {{0}}, deepest));
  deepest.push_back(0);
  EXPECT_THAT(MoveLines(tree, {{4}}, deepest, {}), testing::SizeIs(1));
  QVNarrowString text;
  ASSERT_TRUE(document.CreateXmlCode(text, true));
  XmlDocument again;
  EXPECT_TRUE(again.Parse(text.ToView().data()));
}

TEST_F(DeviceGroupEditsTest, WhatStandsTooDeepAlreadyMayMoveUpAndAside) {
  // A file may be nested deeper than this program nests it.
  XmlNode* level = &tree;
  TreePlace deep;
  for (int depth = 0; depth < maxGroupDepth + 20; ++depth) {
    XmlNode* groups = level->Node(L"groups");
    groups = groups ? groups : level->NewChild(L"groups", nullptr);
    level = groups->ChildsBegin() == groups->ChildsEnd() ? groups->NewChild(L"group", nullptr)
                                                         : *groups->ChildsBegin();
    deep.push_back(0);
  }
  level->NewChild(L"devices", nullptr)->NewChild(L"device", nullptr)->SetValue(L"id", L"8");
  TreePlace device = deep;
  device.push_back(0);
  EXPECT_TRUE(CanMove(tree, {device}, deep));
  EXPECT_TRUE(CanMove(tree, {device}, {}));
  EXPECT_TRUE(CanMove(tree, {deep}, ParentOf(deep)));
  EXPECT_FALSE(CanMove(tree, {{3}}, deep)) << "deeper than it stands";
}

/// Many random edits lose no device and make none, and what they say of places is true.
TEST_F(DeviceGroupEditsTest, RandomEditsLoseNothing) {
  std::mt19937 random(1);
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit)(random);
  };
  const auto anyPlace = [&] {
    TreePlace place;
    for (int levels = below(3); levels > 0; --levels) {
      place.push_back(below(4) - (below(20) == 0 ? 1 : 0));
    }
    return place;
  };
  for (int step = 0; step < 3000; ++step) {
    const std::wstring before = Now();
    switch (below(5)) {
      case 0:
        AddGroup(tree, anyPlace(), L"G");
        break;
      case 1:
        RemoveGroup(tree, anyPlace());
        break;
      default: {
        const std::vector<TreePlace> what = {anyPlace(), anyPlace()};
        const TreePlace group = anyPlace();
        const bool can = CanMove(tree, what, group);
        const auto places = MoveLines(tree, what, group, below(5) - 1);
        EXPECT_EQ(places.empty(), !can);
        EXPECT_TRUE(can || Now() == before);
      }
    }
    std::wstring devices = Now();
    std::erase_if(devices, [](wchar_t letter) { return letter < L'0' || letter > L'9'; });
    std::sort(devices.begin(), devices.end());
    ASSERT_EQ(devices, L"12345");
  }
}

}  // namespace
}  // namespace configurator
