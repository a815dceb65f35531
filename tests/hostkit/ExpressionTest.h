#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "hostkit/ExpressionSupport.h"
#include "hostkit/LanguageFile.h"
#include "tests/support/Parsed.h"

namespace qv {

/// How an evaluation ended.
struct Evaluation {
  ExpressionCode code{};
  int type = 0;  ///< 0 where there is none
  double value = 0;
  std::optional<ExpressionFault> fault{};
};

/// Expressions over a few devices, at noon, in English.
class ExpressionTest : public testing::Test {
 protected:
  static constexpr int truth = static_cast<int>(ExpressionType::Truth);
  static constexpr int number = static_cast<int>(ExpressionType::Number);

  ExpressionTest() {
    EXPECT_TRUE(texts.Load(QV_LANGUAGES L"en.txt"));
    devices.Read(*Parsed(R"(<configuration><commSystem>
      <device><name>TS1</name><driver>MODBUSTCP</driver><variables>
        <variable><name>VL1</name><description>Voltage L1</description><unit>V</unit>
          <classes>0 4 8</classes><value>231.5</value></variable>
        <variable><name>VL2</name><unit>V</unit><classes>4</classes><value>20</value></variable>
        <variable><name>NONE</name><classes>4</classes></variable>
        <variable><name>RELAY</name><classes>4</classes><module>T</module><value>1</value></variable>
        <variable><name>SETUP</name><classes>31</classes><value>7</value></variable>
        <variable><name>max</name><classes>4</classes><value>3</value></variable>
      </variables></device>
      <device><name>min</name><variables>
        <variable><name>and</name><classes>4</classes><value>5</value></variable>
      </variables></device>
      <device><name>Línea 1</name><variables>
        <variable><name>a]b.c</name><classes>4</classes><value>11</value></variable>
      </variables></device>
      <device><name>R$DISC_Tariff</name><variables>
        <variable><name>PEAK</name><classes>4</classes><value>1</value></variable>
      </variables></device>
    </commSystem></configuration>)"));
  }

  std::unique_ptr<QVEvaluator> Evaluator(std::wstring_view expression) const {
    auto evaluator = support.NewEvaluator(QVWideString(expression));
    EXPECT_TRUE(evaluator->SetFlags(4, -1));
    evaluator->EnableDiscriminators(false);
    return evaluator;
  }

  Evaluation Evaluate(std::wstring_view expression) const {
    const auto evaluator = Evaluator(expression);
    Evaluation result;
    result.code = static_cast<ExpressionCode>(evaluator->Evaluate(result.value, result.type));
    result.fault = evaluator->Fault();
    return result;
  }

  bool IsWellFormed(std::wstring_view expression) const {
    return Evaluator(expression)->AnalizeExpression() == 1;
  }

  LanguageFile texts;
  DeviceModel devices;
  ExpressionSupport support{devices, texts, [] { return 720; }};
};

}  // namespace qv
