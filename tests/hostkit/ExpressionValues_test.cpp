#include <cmath>

#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

struct Case {
  const wchar_t* expression;
  double value;
};

class ExpressionValues : public ExpressionTest {
 protected:
  void ExpectAll(std::initializer_list<Case> cases, int type) const {
    for (const auto& [expression, value] : cases) {
      const Evaluation result = Evaluate(expression);
      const std::wstring words = result.fault ? result.fault->words : L"";
      EXPECT_TRUE(IsWellFormed(expression)) << expression;
      EXPECT_EQ(result.code, ExpressionCode::Evaluated) << expression << " " << words;
      EXPECT_EQ(result.type, type) << expression;
      EXPECT_DOUBLE_EQ(result.value, value) << expression;
      EXPECT_FALSE(result.fault) << expression;
    }
  }
};

TEST_F(ExpressionValues, NumbersHaveAPointAndAnExponent) {
  ExpectAll({{L"12", 12},
             {L"0.5", 0.5},
             {L".5", 0.5},
             {L"5.", 5},
             {L"1e3", 1000},
             {L"1E+3", 1000},
             {L"2.5e-1", 0.25},
             {L"1e-500", 0},
             {L"007", 7}},
            number);
}

TEST_F(ExpressionValues, ArithmeticBindsAsInSchool) {
  ExpectAll({{L"1+2*3", 7},
             {L"(1+2)*3", 9},
             {L"7-2-1", 4},
             {L"8/4/2", 1},
             {L"2^3^2", 512},
             {L"-2^2", -4},
             {L"2^-1", 0.5},
             {L"2*-3", -6},
             {L"2--3", 5},
             {L"-2*3", -6},
             {L"-(-5)", 5},
             {L"\t1 +\r\n2", 3}},
            number);
}

TEST_F(ExpressionValues, FunctionsTakeLettersOfEitherCase) {
  ExpectAll({{L"min(3,1,2)", 1},
             {L"MAX(3,1,2)", 3},
             {L"Abs(-2)", 2},
             {L"round(2.5)", 3},
             {L"round(-2.5)", -3},
             {L"floor(-2.5)", -3},
             {L"ceil(2.1)", 3},
             {L"sqrt(9)", 3},
             {L"if(true,1,2)", 1},
             {L"if (1 > 2, 1, 2)", 2},
             {L"min(max(1,2),abs(-3))", 2}},
            number);
}

TEST_F(ExpressionValues, ComparisonsGiveTruthValues) {
  ExpectAll({{L"1<2", 1},
             {L"2<1", 0},
             {L"2<=2", 1},
             {L"3>2", 1},
             {L"2>=3", 0},
             {L"2==2.0", 1},
             {L"2!=2", 0},
             {L"2<>3", 1},
             {L"true==false", 0},
             {L"true!=false", 1},
             {L"1<2==2<3", 1},
             {L"if(1<2,false,true)", 0}},
            truth);
}

TEST_F(ExpressionValues, LogicIsWrittenInSignsAndWords) {
  ExpectAll({{L"true && false", 0},
             {L"true || false", 1},
             {L"!true", 0},
             {L"true and not false", 1},
             {L"TRUE AND NOT FALSE", 1},
             {L"true or true and false", 1},
             {L"(true or true) and false", 0},
             {L"not 1 > 2", 1},
             {L"!1 > 2", 1},
             {L"not -1 > 2", 1},
             {L"!-2*3 + 1 < -4", 0},
             {L"not true or true", 1},
             {L"false == not true", 1},
             {L"!(!true)", 1}},
            truth);
}

TEST_F(ExpressionValues, VariablesHaveTheirValues) {
  ExpectAll({{L"TS1.VL1", 231.5},
             {L"[TS1.VL1]", 231.5},
             {L"TS1.VL1+[TS1.VL2]", 251.5},
             {L"TS1.max", 3},
             {L"min.and", 5},
             {L"min(min.and,TS1.max)", 3},
             {L"[Línea 1.a]]b.c]", 11}},
            number);
}

TEST_F(ExpressionValues, WhatIsLeftOutNeedsNoFiniteResult) {
  ExpectAll({{L"TS1.VL2 == 0 or 1/TS1.VL2 > 2", 0},
             {L"true or 1/0 > 2", 1},
             {L"1/0 > 2 or true", 1},
             {L"false and sqrt(-1) > 2", 0},
             {L"if(false, 1/0 > 2, true)", 1}},
            truth);
}

TEST_F(ExpressionValues, WhatHasNoFiniteResultIsToldWithItsType) {
  for (const wchar_t* expression :
       {L"1/0", L"0/0", L"sqrt(-1)", L"1e300*1e300", L"1e400", L"(-8)^(1/3)", L"0^-1",
        L"min(1, 1/0)", L"(1/0)^0", L"1^(1/0)", L"if(1/0 > 1, 1, 2)", L"0 * (1/0)"}) {
    const Evaluation result = Evaluate(expression);
    EXPECT_EQ(result.code, ExpressionCode::NotFinite) << expression;
    EXPECT_EQ(result.type, number) << expression;
  }
  EXPECT_EQ(Evaluate(L"1/(TS1.VL2 - TS1.VL2) > 2").code, ExpressionCode::NoValue);
  EXPECT_EQ(Evaluate(L"1/(TS1.VL2 - TS1.VL2) > 2").type, truth);
  for (const wchar_t* expression :
       {L"1/0 > 5", L"true and 1/0 > 5", L"1/0 == 1/0", L"!(1/0 > 1)"}) {
    const Evaluation result = Evaluate(expression);
    EXPECT_EQ(result.code, ExpressionCode::NotFinite) << expression;
    EXPECT_EQ(result.type, truth) << expression;
  }
}

TEST_F(ExpressionValues, FollowTheTimeOfDay) {
  int minute = 0;
  DeviceModel model;
  Device device(L"D", L"");
  device.Add({.name = L"V", .values = DailyCurve({{0, 10}, {60, 20}})});
  model.Add(std::move(device));
  const ExpressionSupport timed(model, texts, [&minute] { return minute; });
  const auto evaluator = timed.NewEvaluator(L"D.V");
  double value = 0;
  int type = 0;
  for (const int now : {0, 30, 60}) {
    minute = now;
    EXPECT_EQ(evaluator->Evaluate(value, type), 0);
    EXPECT_DOUBLE_EQ(value, 10 + now / 6.0);
  }
}

}  // namespace
}  // namespace qv
