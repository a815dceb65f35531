#include "apps/configurator/DeviceTree.h"

#include <gmock/gmock.h>

#include "tests/support/ScriptedFiles.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

using Kind = DeviceTreeItem::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<DeviceTreeItem> Read(const char* configuration, qv::ScriptedFiles& files) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(configuration));
  const qv::XmlNode& root = *document.Root();
  return ReadDeviceTree(root.Node(L"deviceGroups"), root.Node(L"commSystem"), L"/inst/", files);
}

std::vector<DeviceTreeItem> Read(const char* configuration) {
  qv::ScriptedFiles files;
  return Read(configuration, files);
}

DeviceTreeItem Group(const wchar_t* name, std::vector<DeviceTreeItem> below = {}) {
  return {Kind::Group, L"", L"", name, std::move(below)};
}

TEST(DeviceTree, WithoutDeviceGroupsIsEmpty) {
  EXPECT_THAT(Read("<c><commSystem/></c>"), IsEmpty());
  EXPECT_THAT(Read("<c><deviceGroups/></c>"), IsEmpty());
}

TEST(DeviceTree, ShowsGroupsBeforeDevicesInTheOrderOfTheDocument) {
  EXPECT_THAT(
      Read("<c><commSystem><device><id>1</id><name>B</name></device>"
           "<device><id>2</id><name>A</name></device></commSystem>"
           "<deviceGroups><devices><device><id>1</id><type>T</type></device>"
           "<device><id>2</id><type>U</type></device></devices>"
           "<groups><group><name>Z</name></group><any><name>Y</name></any></groups>"
           "</deviceGroups></c>"),
      ElementsAre(Group(L"Z"), Group(L"Y"), DeviceTreeItem{Kind::Device, L"1", L"T", L"B", {}},
                  DeviceTreeItem{Kind::Device, L"2", L"U", L"A", {}}));
}

TEST(DeviceTree, ReadsGroupsInGroups) {
  EXPECT_THAT(
      Read("<c><deviceGroups><groups><group><name>A</name><groups><group><name>B</name>"
           "<devices><device><id>1</id><type>T</type></device></devices></group></groups></group>"
           "</groups></deviceGroups></c>"),
      ElementsAre(Group(L"A", {Group(L"B", {DeviceTreeItem{Kind::Device, L"1", L"T", L"", {}}})})));
}

TEST(DeviceTree, NamesADiscriminatorAfterItsFile) {
  qv::ScriptedFiles files;
  files.contents[L"/inst/1.Day.and night.xdct"];
  files.contents[L"/inst/1.Day.and night.xdctI"];
  files.contents[L"/inst/noname.xdct"];
  EXPECT_THAT(
      Read("<c><deviceGroups><devices><device><id>1</id><type>R$DISC</type></device></devices>"
           "</deviceGroups></c>",
           files),
      ElementsAre(
          DeviceTreeItem{Kind::Discriminator, L"1", L"R$DISC", L"R$DISC_Day.and night", {}}));
}

TEST(DeviceTree, WhatTheInstallationDoesNotHaveHasNoName) {
  EXPECT_THAT(
      Read("<c><commSystem><other><id>2</id><name>N</name></other></commSystem><deviceGroups>"
           "<devices><device><id>1</id><type>R$DISC</type></device>"
           "<device><id>2</id><type>T</type></device><device/></devices></deviceGroups></c>"),
      ElementsAre(DeviceTreeItem{Kind::Discriminator, L"1", L"R$DISC", L"", {}},
                  DeviceTreeItem{Kind::Device, L"2", L"T", L"", {}},
                  DeviceTreeItem{Kind::Device, L"", L"", L"", {}}));
}

TEST(DeviceTree, ADeviceWithoutANameGoesByItsId) {
  EXPECT_THAT(Read("<c><commSystem><device><id>1</id></device></commSystem><deviceGroups><devices>"
                   "<device><id>1</id><type>T</type></device></devices></deviceGroups></c>"),
              ElementsAre(DeviceTreeItem{Kind::Device, L"1", L"T", L"1", {}}));
}

TEST(DeviceTree, ADeviceIsNotNamedAfterADiscriminatorNorTheOtherWayRound) {
  qv::ScriptedFiles files;
  files.contents[L"/inst/1.Night.xdct"];
  EXPECT_THAT(Read("<c><commSystem><device><id>2</id><name>N</name></device></commSystem>"
                   "<deviceGroups><devices><device><id>1</id><type>T</type></device>"
                   "<device><id>2</id><type>R$DISC</type></device></devices></deviceGroups></c>",
                   files),
              ElementsAre(DeviceTreeItem{Kind::Device, L"1", L"T", L"", {}},
                          DeviceTreeItem{Kind::Discriminator, L"2", L"R$DISC", L"", {}}));
}

}  // namespace
}  // namespace configurator
