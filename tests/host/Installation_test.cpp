#include "host/Installation.h"

#include <gtest/gtest.h>

#include "tests/support/NamedCase.h"

namespace qv {
namespace {

/// A main configuration, and whether it is of an embedded installation.
struct Case : NamedCase {
  const char* configuration;
  bool embedded;
};

class IsEmbeddedOf : public testing::TestWithParam<Case> {};

TEST_P(IsEmbeddedOf, Configuration) {
  XmlDocument mainCfg;
  ASSERT_TRUE(mainCfg.Parse(GetParam().configuration));
  EXPECT_EQ(IsEmbedded(mainCfg), GetParam().embedded);
}

#define DRIVER(text) "<driver>" text "</driver>"
#define DEVICE(text) "<device>" DRIVER(text) "</device>"
#define COMM_SYSTEM(text) "<cfg><commSystem>" text "</commSystem></cfg>"

constexpr Case cases[] = {
    {"TheDevice", COMM_SYSTEM(DEVICE("KORVAXEMBEDDED")), true},
    {"SeveralDevices", COMM_SYSTEM(DEVICE("A") DEVICE("KORVAXEMBEDDED") DEVICE("B")), true},
    {"DeviceBehindOneWithoutDriver", COMM_SYSTEM("<device/>" DEVICE("KORVAXEMBEDDED")), true},
    {"DeviceBehindOtherTags", COMM_SYSTEM("<port/>text" DEVICE("KORVAXEMBEDDED")), true},
    {"SeveralOthers", COMM_SYSTEM(DEVICE("KORVAX") DEVICE("EMBEDDED")), false},
    {"LowerCase", COMM_SYSTEM(DEVICE("korvaxembedded")), false},
    {"OneLowerLetter", COMM_SYSTEM(DEVICE("KORVAXEMBEDDEd")), false},
    {"Longer", COMM_SYSTEM(DEVICE("KORVAXEMBEDDED2")), false},
    {"BlankBefore", COMM_SYSTEM(DEVICE(" KORVAXEMBEDDED")), false},
    {"EmptyDriver", COMM_SYSTEM(DEVICE("")), false},
    {"NoDriver", COMM_SYSTEM("<device>KORVAXEMBEDDED</device>"), false},
    {"FirstDriverCounts", COMM_SYSTEM("<device>" DRIVER("A") DRIVER("KORVAXEMBEDDED") "</device>"),
     false},
    {"DriverAsAttribute", COMM_SYSTEM("<device driver='KORVAXEMBEDDED'/>"), false},
    {"OtherTag", COMM_SYSTEM("<Device>" DRIVER("KORVAXEMBEDDED") "</Device>"), false},
    {"DriverWithoutDevice", COMM_SYSTEM(DRIVER("KORVAXEMBEDDED")), false},
    {"DeeperDevice", COMM_SYSTEM("<line>" DEVICE("KORVAXEMBEDDED") "</line>"), false},
    {"NoDevices", COMM_SYSTEM(""), false},
    {"DeviceUnderTheRoot", "<cfg>" DEVICE("KORVAXEMBEDDED") "<commSystem/></cfg>", false},
    {"CommSystemBelowAnother",
     "<cfg><a><commSystem>" DEVICE("KORVAXEMBEDDED") "</commSystem></a></cfg>", false},
    {"CommSystemAsRoot", "<commSystem>" DEVICE("KORVAXEMBEDDED") "</commSystem>", false},
    {"RootWithoutChildren", "<cfg/>", false},
};

INSTANTIATE_TEST_SUITE_P(Table, IsEmbeddedOf, testing::ValuesIn(cases),
                         testing::PrintToStringParamName());

TEST(IsEmbedded, EmptyConfigurationIsNotEmbedded) { EXPECT_FALSE(IsEmbedded(XmlDocument())); }

TEST(IsEmbeddedDevice, TellsTheMarkFromOtherNodes) {
  XmlDocument mainCfg;
  ASSERT_TRUE(mainCfg.Parse(COMM_SYSTEM(DEVICE("KORVAXEMBEDDED") "<port/>")));
  XmlNode& commSystem = *mainCfg.Root()->Node(L"commSystem");
  EXPECT_TRUE(IsEmbeddedDevice(*commSystem.Node(L"device")));
  EXPECT_FALSE(IsEmbeddedDevice(*commSystem.Node(L"port")));
  EXPECT_FALSE(IsEmbeddedDevice(commSystem));
  commSystem.Node(L"device")->SetValue(L"driver", L"OTHER");
  EXPECT_FALSE(IsEmbeddedDevice(*commSystem.Node(L"device")));
  commSystem.Node(L"device")->SetValue(L"driver", embeddedDriver);
  EXPECT_TRUE(IsEmbeddedDevice(*commSystem.Node(L"device")));
}

TEST(IsEmbedded, IsLookedUpAfreshAtEachCall) {
  XmlDocument mainCfg;
  ASSERT_TRUE(mainCfg.Parse(COMM_SYSTEM(DEVICE("A"))));
  EXPECT_FALSE(IsEmbedded(mainCfg));
  XmlNode* device = mainCfg.Root()->Node(L"commSystem")->Node(L"device");
  device->SetValue(L"driver", L"KORVAXEMBEDDED");
  EXPECT_TRUE(IsEmbedded(mainCfg));
}

}  // namespace
}  // namespace qv
