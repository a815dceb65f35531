#include "discriminator/DeviceLinks.h"

#include <gtest/gtest.h>

#include "tools/XmlDocument.h"

namespace qv {
namespace {

class DeviceLinks : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(discriminator.Parse("<main><id>42</id></main>")); }

  XmlDocument discriminator;
  XmlDocument groups;
};

TEST_F(DeviceLinks, AnEntryGoesToTheEndOfTheTopLevel) {
  ASSERT_TRUE(groups.Parse("<g><devices><device><id>1</id></device></devices><groups/></g>"));
  AddDiscriminatorToDeviceGroupsNode(groups.Root(), *discriminator.Root());
  XmlDocument expected;
  ASSERT_TRUE(
      expected.Parse("<g><devices><device><id>1</id></device>"
                     "<device><id>42</id><type>R$DISC</type></device></devices>"
                     "<groups/></g>"));
  EXPECT_EQ(*groups.Root(), *expected.Root());
}

TEST_F(DeviceLinks, DevicesAreMadeIfThereAreNone) {
  groups.Create(L"g");
  AddDiscriminatorToDeviceGroupsNode(groups.Root(), *discriminator.Root());
  EXPECT_TRUE(groups.Root()->Node(L"devices")->NodeV(L"device?id=%s?", L"42"));
}

TEST_F(DeviceLinks, AnEntryThatIsThereAlreadyIsNotLookedFor) {
  groups.Create(L"g");
  AddDiscriminatorToDeviceGroupsNode(groups.Root(), *discriminator.Root());
  AddDiscriminatorToDeviceGroupsNode(groups.Root(), *discriminator.Root());
  const XmlNode* devices = groups.Root()->Node(L"devices");
  EXPECT_EQ(std::distance(devices->ChildsBegin(), devices->ChildsEnd()), 2);
}

TEST_F(DeviceLinks, ANullNodeIsPassedOver) {
  AddDiscriminatorToDeviceGroupsNode(nullptr, *discriminator.Root());
}

}  // namespace
}  // namespace qv
