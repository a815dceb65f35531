#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

struct Case {
  const wchar_t* expression;
  ExpressionPlace place;
  const wchar_t* words;
};

class ExpressionFaults : public ExpressionTest {
 protected:
  void ExpectAll(ExpressionCode code, std::initializer_list<Case> cases) const {
    for (const auto& [expression, place, words] : cases) {
      const Evaluation result = Evaluate(expression);
      EXPECT_EQ(result.code, code) << expression;
      ASSERT_TRUE(result.fault) << expression;
      EXPECT_EQ(result.fault->words, words) << expression;
      EXPECT_EQ(result.fault->place.start, place.start) << expression;
      EXPECT_EQ(result.fault->place.length, place.length) << expression;
      EXPECT_EQ(IsWellFormed(expression), code != ExpressionCode::NotWellFormed) << expression;
    }
  }
};

TEST_F(ExpressionFaults, OfWhatIsMissing) {
  ExpectAll(ExpressionCode::NotWellFormed,
            {{L"", {0, 0}, L"Enter an expression"},
             {L" \t", {0, 0}, L"Enter an expression"},
             {L"1 +", {3, 0}, L"Nothing stands behind “+”"},
             {L"1 + ", {3, 0}, L"Nothing stands behind “+”"},
             {L"1 < * 2", {3, 0}, L"Nothing stands behind “<”"},
             {L"true and", {8, 0}, L"Nothing stands behind “and”"},
             {L"()", {1, 0}, L"Nothing stands behind “(”"},
             {L"min(1,)", {6, 0}, L"Nothing stands behind “,”"},
             {L"-", {1, 0}, L"Nothing stands behind “-”"},
             {L"* 2", {0, 0}, L"Nothing stands before “*”"},
             {L", 2", {0, 0}, L"Nothing stands before “,”"},
             {L"1 2", {2, 0}, L"An operator is missing here"},
             {L"(1)(2)", {3, 0}, L"An operator is missing here"},
             {L"TS1.VL1 min(1,2)", {8, 0}, L"An operator is missing here"},
             {L"true not false", {5, 0}, L"An operator is missing here"},
             {L"1 true", {2, 0}, L"An operator is missing here"},
             {L"TS1.", {4, 0}, L"Nothing stands behind “TS1.”"}});
}

TEST_F(ExpressionFaults, OfBracketsAndCommas) {
  ExpectAll(
      ExpressionCode::NotWellFormed,
      {{L"(1", {0, 1}, L"The closing bracket is missing"},
       {L"((1)", {0, 1}, L"The closing bracket is missing"},
       {L"(1+(2", {3, 1}, L"The closing bracket is missing"},
       {L"1)", {1, 1}, L"This closing bracket has no opening one"},
       {L")", {0, 1}, L"This closing bracket has no opening one"},
       {L"1 + )", {4, 1}, L"This closing bracket has no opening one"},
       {L"[TS1.VL1 < 5", {0, 1}, L"The closing bracket is missing"},
       {L"[TS1.VL1]] < 5", {0, 1}, L"The closing bracket is missing"},
       {L"1,5", {1, 1}, L"Commas only separate the arguments of a function; decimals take a point"},
       {L"min((1,5),2)",
        {6, 1},
        L"Commas only separate the arguments of a function; decimals take a point"}});
}

TEST_F(ExpressionFaults, OfFunctionsTellHowTheyAreWritten) {
  ExpectAll(ExpressionCode::NotWellFormed,
            {{L"min", {0, 3}, L"Write it like this: min(a, b, …)"},
             {L"1 + min + 2", {4, 3}, L"Write it like this: min(a, b, …)"},
             {L"min(1)", {0, 3}, L"Write it like this: min(a, b, …)"},
             {L"abs()", {0, 3}, L"Write it like this: abs(a)"},
             {L"abs(", {0, 3}, L"Write it like this: abs(a)"},
             {L"abs(1,2)", {0, 3}, L"Write it like this: abs(a)"},
             {L"2*IF(true,1)", {2, 2}, L"Write it like this: if(condition, a, b)"}});
}

TEST_F(ExpressionFaults, OfSignsTellWhatIsWrittenHere) {
  ExpectAll(ExpressionCode::NotWellFormed,
            {{L"TS1.VL1=1", {7, 1}, L"Write it like this: =="},
             {L"true & true", {5, 1}, L"Write it like this: &&"},
             {L"true | true", {5, 1}, L"Write it like this: ||"},
             {L"- -1", {0, 1}, L"Write it like this: -(-…)"},
             {L"not !true", {0, 3}, L"Write it like this: not(!…)"}});
}

TEST_F(ExpressionFaults, OfPiecesThatMeanNothing) {
  ExpectAll(
      ExpressionCode::NotWellFormed,
      {{L"1.2.3", {0, 5}, L"“1.2.3” is not a number"},
       {L"1e", {0, 2}, L"“1e” is not a number"},
       {L"0x10", {0, 4}, L"“0x10” is not a number"},
       {L"1 + 5V", {4, 2}, L"“5V” is not a number"},
       {L"TS1 < 5",
        {0, 3},
        L"“TS1” is neither a function nor a variable, which is written DEVICE.VARIABLE"},
       {L"[TS1]",
        {0, 5},
        L"“[TS1]” is neither a function nor a variable, which is written DEVICE.VARIABLE"},
       {L"[.A]",
        {0, 4},
        L"“[.A]” is neither a function nor a variable, which is written DEVICE.VARIABLE"},
       {L"Línea.Tensión", {0, 13}, L"Write it like this: [Línea.Tensión]"},
       {L"TS1.A.B", {0, 7}, L"Write it like this: [TS1.A.B]"},
       {L"TS1.1A", {0, 6}, L"Write it like this: [TS1.1A]"},
       {L"1 ≤ 2",
        {2, 1},
        L"“≤” means nothing here; names with such characters stand in square brackets"},
       {L"\x7",
        {0, 1},
        L"“U+0007” means nothing here; names with such characters stand in square brackets"},
       {L"1 \x202E",
        {2, 1},
        L"“U+202E” means nothing here; names with such characters stand in square brackets"},
       {L"\xD800",
        {0, 1},
        L"“U+D800” means nothing here; names with such characters stand in square brackets"},
       {L"\x7FFFFFFF",
        {0, 1},
        L"“U+7FFFFFFF” means nothing here; names with such characters stand in square brackets"},
       {L"'a'",
        {0, 1},
        L"“'” means nothing here; names with such characters stand in square brackets"},
       {L"{1}",
        {0, 1},
        L"“{” means nothing here; names with such characters stand in square brackets"}});
}

TEST_F(ExpressionFaults, OfNamesHaveCodesOfTheirOwn) {
  ExpectAll(ExpressionCode::UnknownDevice,
            {{L"1 < NO.VL1", {4, 6}, L"There is no such device: “NO”"},
             {L"[ts1.VL1]", {0, 9}, L"There is no such device: “ts1”"}});
  ExpectAll(ExpressionCode::UnknownVariable,
            {{L"TS1.NO", {0, 6}, L"The device has no such variable: “TS1.NO”"}});
  ExpectAll(ExpressionCode::ClassMissing,
            {{L"TS1.SETUP", {0, 9}, L"This variable cannot be used here: “TS1.SETUP”"}});
  ExpectAll(
      ExpressionCode::DiscriminatorOff,
      {{L"R$DISC_Tariff.PEAK", {0, 18}, L"Discriminators cannot be used here: “R$DISC_Tariff”"},
       {L"[R$DISC_Old one.X]", {0, 18}, L"Discriminators cannot be used here: “R$DISC_Old one”"}});
}

TEST_F(ExpressionFaults, OfTypesStandAtTheOperator) {
  ExpectAll(ExpressionCode::TypesMixed,
            {{L"1 and 2", {2, 3}, L"“and” takes truth values, not numbers"},
             {L"true && TS1.VL1", {5, 2}, L"“&&” takes truth values, not numbers"},
             {L"!1", {0, 1}, L"“!” takes truth values, not numbers"},
             {L"1 + 2 + true", {6, 1}, L"“+” takes numbers, not truth values"},
             {L"-true", {0, 1}, L"“-” takes numbers, not truth values"},
             {L"1 < 2 < 3", {6, 1}, L"“<” takes numbers, not truth values"},
             {L"false < true", {6, 1}, L"“<” takes numbers, not truth values"},
             {L"max(1,true)", {0, 3}, L"“max” takes numbers, not truth values"},
             {L"1 == true", {2, 2}, L"Numbers and truth values are mixed"},
             {L"if(1,2,3)", {0, 2}, L"“if” takes truth values, not numbers"},
             {L"if(true,2,false)", {0, 2}, L"Numbers and truth values are mixed"}});
}

TEST_F(ExpressionFaults, OfValuesStandAtTheirVariables) {
  ExpectAll(ExpressionCode::Unreadable,
            {{L"TS1.RELAY > 0", {0, 9}, L"A value of a module cannot be read here: “TS1.RELAY”"}});
  ExpectAll(ExpressionCode::NoValue,
            {{L"TS1.NONE > 0", {0, 8}, L"There is no value at the moment: “TS1.NONE”"}});
}

TEST_F(ExpressionFaults, OfResultsStandAtWhatHasNone) {
  constexpr wchar_t words[] = L"The result is not a number, as after a division by zero";
  ExpectAll(ExpressionCode::NotFinite, {{L"2 + 1/0", {5, 1}, words},
                                        {L" 1/0 + sqrt(-1)", {1, 14}, words},
                                        {L"1 < sqrt(-1)", {4, 4}, words},
                                        {L"1e999", {0, 5}, words},
                                        {L"1e999 > 0", {0, 5}, words},
                                        {L"if(true, 1e999, 1/0)", {9, 5}, words}});
  ExpectAll(ExpressionCode::NoValue, {{L"1/(TS1.VL2 - TS1.VL2) > 2", {1, 1}, words}});
}

TEST_F(ExpressionFaults, OfAnEarlierCheckAreForgotten) {
  const auto evaluator = Evaluator(L"TS1.NO");
  double value = 0;
  int type = 0;
  EXPECT_NE(evaluator->Evaluate(value, type), 0);
  EXPECT_TRUE(evaluator->Fault());
  EXPECT_EQ(evaluator->AnalizeExpression(), 1);
  EXPECT_FALSE(evaluator->Fault());
}

TEST_F(ExpressionFaults, SpeakTheLanguageOfTheUser) {
  ASSERT_TRUE(texts.Load(QV_LANGUAGES L"es.txt"));
  EXPECT_EQ(Evaluate(L"NO.VL1").fault->words, L"No existe ese dispositivo: «NO»");
}

TEST_F(ExpressionFaults, QuoteLongPiecesShortened) {
  const Evaluation result = Evaluate(std::wstring(500, L'1') + L"x");
  EXPECT_EQ(result.fault->words, L"“" + std::wstring(60, L'1') + L"…” is not a number");
}

}  // namespace
}  // namespace qv
