#include "hostkit/DeviceModel.h"

#include <gtest/gtest.h>

#include "tests/support/Parsed.h"

namespace qv {
namespace {

DeviceModel Read(const std::string& commSystem) {
  DeviceModel model;
  model.Read(*Parsed("<configuration><commSystem>" + commSystem + "</commSystem></configuration>"));
  return model;
}

/// The only variable of the only device, which has these fields beside its name.
Variable ReadVariable(const std::string& fields) {
  const DeviceModel model = Read("<device><name>D</name><variables><variable><name>V</name>" +
                                 fields + "</variable></variables></device>");
  return model.Devices().at(0).Variables().at(0);
}

TEST(DeviceModel, ReadsAllThatAVariableHas) {
  const Variable variable = ReadVariable(
      "<description>Voltage</description><unit>V</unit><classes>0 4 33</classes>"
      "<module>T</module><value>230.5</value>");
  EXPECT_EQ(variable, (Variable{.name = L"V",
                                .description = L"Voltage",
                                .unit = L"V",
                                .classes = VariableClasses((1ULL << 33) | 0b10001),
                                .isOfModule = true,
                                .values = DailyCurve({{0, 230.5}})}));
}

TEST(DeviceModel, ReadsACurveOfTimes) {
  EXPECT_EQ(ReadVariable("<curve>00:00 1.5\n 06:30 -2  23:59 3</curve>").values,
            DailyCurve({{0, 1.5}, {390, -2}, {1439, 3}}));
}

TEST(DeviceModel, PassesOverWhatMakesNoSense) {
  const Variable variable = ReadVariable(
      "<classes>-1 34 4 x 1.5 99999999999999999999 nan</classes><value>NaN</value>"
      "<value>1e999</value><curve>00:00 inf noon 5 12:99 6 1:00 7 24:30 8 12:00 3 25:00 4 "
      "18:00</curve><module>yes</module>");
  EXPECT_EQ(variable.classes, ClassAlone(VariableClass::Expression));
  EXPECT_FALSE(variable.isOfModule);
  EXPECT_EQ(variable.values, DailyCurve({{720, 3}}));
}

TEST(DeviceModel, HasNoValueWhereTheFileHasNone) {
  EXPECT_EQ(ReadVariable("").values, DailyCurve());
  EXPECT_EQ(ReadVariable("<value/><curve/>").values, DailyCurve());
  EXPECT_EQ(ReadVariable("<value>1e999</value>").values, DailyCurve());
}

TEST(DeviceModel, OfDoubledNamesTakesTheFirst) {
  const DeviceModel model = Read(
      "<device><name>D</name><driver>first</driver><variables>"
      "<variable><name>V</name><unit>first</unit></variable>"
      "<variable><name>V</name><unit>second</unit></variable>"
      "<variable><name>v</name></variable></variables></device>"
      "<device><name>D</name><driver>second</driver></device>");
  ASSERT_EQ(model.Devices().size(), 1U);
  const Device* device = model.Find(L"D");
  ASSERT_TRUE(device);
  EXPECT_EQ(device->Driver(), L"first");
  EXPECT_EQ(device->Variables().size(), 2U);
  EXPECT_EQ(device->Find(L"V")->unit, L"first");
}

TEST(DeviceModel, LeavesOutWhatHasNoName) {
  const DeviceModel model = Read(
      "<device><driver>X</driver></device>"
      "<device><name>D</name><variables><variable><unit>V</unit></variable></variables></device>");
  ASSERT_EQ(model.Devices().size(), 1U);
  EXPECT_TRUE(model.Devices()[0].Variables().empty());
}

TEST(DeviceModel, FindsExactNamesOnly) {
  const DeviceModel model = Read("<device><name>D</name></device>");
  EXPECT_TRUE(model.Find(L"D"));
  EXPECT_FALSE(model.Find(L"d"));
  EXPECT_FALSE(model.Find(L""));
}

TEST(DeviceModel, ReadAgainForgetsWhatWas) {
  DeviceModel model = Read("<device><name>D</name></device>");
  model.Read(*Parsed("<configuration/>"));
  EXPECT_TRUE(model.Devices().empty());
  EXPECT_FALSE(model.Find(L"D"));
}

TEST(DeviceModel, KnowsDiscriminatorsByTheirNames) {
  EXPECT_EQ(Device(L"R$DISC_Tariff", L"").Kind(), DeviceKind::Discriminator);
  EXPECT_EQ(Device(L"R$DISC", L"").Kind(), DeviceKind::Meter);
  EXPECT_EQ(Device(L"TS1", L"R$DISC").Kind(), DeviceKind::Meter);
}

TEST(DeviceModel, TakesDevicesThatNoFileDescribes) {
  DeviceModel model;
  Device tariff(L"R$DISC_Tariff", L"R$DISC");
  EXPECT_TRUE(tariff.Add({.name = L"PEAK"}));
  EXPECT_TRUE(model.Add(tariff));
  EXPECT_FALSE(model.Add(tariff));
  EXPECT_TRUE(model.Find(L"R$DISC_Tariff")->Find(L"PEAK"));
}

TEST(DeviceModel, HoldsAMillionVariables) {
  constexpr int count = 1'000'000;
  Device device(L"D", L"");
  for (int i = 0; i < count; ++i) {
    ASSERT_TRUE(device.Add({.name = L"V" + std::to_wstring(i)}));
  }
  DeviceModel model;
  model.Add(std::move(device));
  EXPECT_TRUE(model.Find(L"D")->Find(L"V999999"));
}

}  // namespace
}  // namespace qv
