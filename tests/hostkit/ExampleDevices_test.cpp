#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "hostkit/ExpressionSupport.h"
#include "hostkit/LanguageFile.h"
#include "tools/Nodes.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr wchar_t example[] = QV_EXAMPLE;

/// The devices of the example installation, at a time that tests choose.
class ExampleDevices : public testing::Test {
 protected:
  ExampleDevices() {
    EXPECT_TRUE(configuration.Load((std::wstring(example) + L"configuration.xml").c_str()));
    devices.Read(*configuration.Root());
    EXPECT_TRUE(
        conditions.Load((std::wstring(example) +
                         L"b4f5b7a3-3a57-4f3e-92cb-dab16be737f9.Transformer station state.xdct")
                            .c_str()));
  }

  /// The names of the conditions that hold at a minute of the day.
  std::set<std::wstring> Holding(int minuteOfDay) {
    minute = minuteOfDay;
    std::set<std::wstring> holding;
    for (const XmlNode& node :
         ChildrenWithTag(conditions.Root()->Node(L"conditions"), L"condition")) {
      const auto evaluator = support.NewEvaluator(node.Value(L"exp"));
      evaluator->SetFlags(4, -1);
      evaluator->EnableDiscriminators(false);
      double value = 0;
      int type = 0;
      EXPECT_EQ(evaluator->Evaluate(value, type), QVEvaluator::CodeEvaluated);
      EXPECT_EQ(type, QVEvaluator::TypeLogical);
      if (value != 0) {
        holding.insert(FieldOf(node, L"name"));
      }
    }
    return holding;
  }

  int CountVariables(bool (*counts)(const Variable&)) const {
    int count = 0;
    for (const Device& device : devices.Devices()) {
      count += static_cast<int>(
          std::count_if(device.Variables().begin(), device.Variables().end(), counts));
    }
    return count;
  }

  int minute = 0;
  XmlDocument configuration;
  XmlDocument conditions;
  DeviceModel devices;
  LanguageFile texts;
  ExpressionSupport support{devices, texts, [this] { return minute; }};
};

TEST_F(ExampleDevices, AllHaveVariables) {
  EXPECT_EQ(devices.Devices().size(), 6U);
  for (const Device& device : devices.Devices()) {
    EXPECT_GE(device.Variables().size(), 5U) << device.Name();
  }
}

TEST_F(ExampleDevices, EachVariableIsDescribedAndClassed) {
  EXPECT_EQ(CountVariables([](const Variable& variable) {
              return variable.description.empty() || variable.classes.none();
            }),
            0);
}

TEST_F(ExampleDevices, SomeHaveNoValueAndSomeBelongToAModule) {
  EXPECT_EQ(CountVariables([](const Variable& variable) {
              return !variable.isOfModule && !variable.values.At(0);
            }),
            2);
  EXPECT_EQ(CountVariables([](const Variable& variable) { return variable.isOfModule; }), 4);
}

TEST_F(ExampleDevices, TheConditionsOfTheExampleChangeOverTheDay) {
  using Names = std::set<std::wstring>;
  EXPECT_EQ(Holding(5 * 60), Names());
  EXPECT_EQ(Holding(13 * 60 + 30), (Names{L"Overvoltage"}));
  EXPECT_EQ(Holding(20 * 60 + 30), (Names{L"Undervoltage", L"Overload"}));
  EXPECT_EQ(Holding(21 * 60 + 30), (Names{L"Distorted or unbalanced", L"Overload"}));
}

}  // namespace
}  // namespace qv
