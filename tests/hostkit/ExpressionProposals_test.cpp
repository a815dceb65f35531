#include <algorithm>

#include "hostkit/ExpressionProposer.h"
#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

class ExpressionProposalsTest : public ExpressionTest {
 protected:
  /// What is proposed where the text has a "|".
  ExpressionProposals At(std::wstring text) const {
    const auto cursor = text.find(L'|');
    text.erase(cursor, 1);
    return Evaluator(text)->ProposalsAt(static_cast<int>(cursor));
  }

  std::vector<std::wstring> TextsAt(const std::wstring& text) const {
    std::vector<std::wstring> proposed;
    for (const auto& proposal : At(text).proposals) {
      proposed.push_back(proposal.text);
    }
    return proposed;
  }
};

using Texts = std::vector<std::wstring>;

TEST_F(ExpressionProposalsTest, BetweenWordsAreDevicesFunctionsAndWords) {
  const Texts proposed = TextsAt(L"1 + |");
  for (const wchar_t* expected : {L"TS1.", L"min.", L"[Línea 1.]", L"if()", L"and", L"true"}) {
    EXPECT_EQ(std::count(proposed.begin(), proposed.end(), expected), 1) << expected;
  }
  EXPECT_EQ(std::count(proposed.begin(), proposed.end(), L"&&"), 0);
  EXPECT_EQ(At(L"1 + |").replaced, (ExpressionPlace{4, 0}));
}

TEST_F(ExpressionProposalsTest, BeginAsTheWordInEitherCaseOrHaveItInside) {
  EXPECT_EQ(TextsAt(L"1 < ts|"), (Texts{L"TS1."}));
  EXPECT_EQ(TextsAt(L"AX|"), (Texts{L"max()"}));
  EXPECT_EQ(TextsAt(L"or|"), (Texts{L"or", L"floor()"}));
  EXPECT_EQ(TextsAt(L"mi|"), (Texts{L"min.", L"min()"}));
}

TEST_F(ExpressionProposalsTest, ReplaceTheWholeWord) {
  EXPECT_EQ(At(L"1 < T|S1 ").replaced, (ExpressionPlace{4, 3}));
  EXPECT_EQ(At(L"TS1.V|L1<5").replaced, (ExpressionPlace{0, 7}));
  EXPECT_EQ(At(L"[TS1.V|L1]<5").replaced, (ExpressionPlace{0, 9}));
}

TEST_F(ExpressionProposalsTest, BehindADotAreTheDevicesVariables) {
  EXPECT_EQ(TextsAt(L"TS1.|"),
            (Texts{L"TS1.VL1", L"TS1.VL2", L"TS1.NONE", L"TS1.RELAY", L"TS1.max"}));
  EXPECT_EQ(TextsAt(L"ts1.vl|"), (Texts{L"TS1.VL1", L"TS1.VL2"}));
  EXPECT_EQ(TextsAt(L"TS1.1|"), (Texts{L"TS1.VL1"}));
  EXPECT_EQ(TextsAt(L"NO.|"), Texts());
}

TEST_F(ExpressionProposalsTest, InSquareBracketsAreNamesOnly) {
  EXPECT_EQ(TextsAt(L"[m|"), (Texts{L"min."}));
  EXPECT_EQ(TextsAt(L"[TS1.max|] > 0"), (Texts{L"TS1.max"}));
  EXPECT_EQ(TextsAt(L"[Línea 1.|]"), (Texts{L"[Línea 1.a]]b.c]"}));
  EXPECT_EQ(TextsAt(L"[Línea 1.a]]b|"), (Texts{L"[Línea 1.a]]b.c]"}));
}

TEST_F(ExpressionProposalsTest, LeaveWhatFollowsAnOpenNameAlone) {
  EXPECT_EQ(At(L"[TS1.V|L and 1 < 2").replaced, (ExpressionPlace{0, 7}));
}

TEST_F(ExpressionProposalsTest, LetOneGoOnWhereArgumentsAndVariablesStand) {
  EXPECT_EQ(At(L"sqr|").proposals.at(0).cursor, 5);
  EXPECT_EQ(At(L"Lí|").proposals.at(0).cursor, 9);
  EXPECT_EQ(At(L"TS1.VL1|").proposals.at(0).cursor, 7);
}

TEST_F(ExpressionProposalsTest, DoNotDoubleABracketThatIsThere) {
  EXPECT_EQ(TextsAt(L"sqr|(4)"), (Texts{L"sqrt"}));
}

TEST_F(ExpressionProposalsTest, TellUnitsAndPresentValues) {
  const auto proposals = At(L"TS1.|").proposals;
  EXPECT_EQ(proposals.at(0).description, L"Voltage L1 · 231.5 V");
  EXPECT_EQ(proposals.at(1).description, L"20 V");
  EXPECT_EQ(proposals.at(2).description, L"There is no value at the moment");
  EXPECT_EQ(proposals.at(3).description, L"A value of a module cannot be read here");
  EXPECT_EQ(At(L"sqr|").proposals.at(0).description, L"Square root");
  EXPECT_EQ(At(L"TS|").proposals.at(0).description, L"MODBUSTCP");
}

TEST_F(ExpressionProposalsTest, KeepToFlagsAndDiscriminators) {
  EXPECT_EQ(TextsAt(L"TS1.SET|"), Texts());
  EXPECT_EQ(TextsAt(L"R$|"), Texts());
  EXPECT_EQ(TextsAt(L"R$DISC_Tariff.|"), Texts());
  const auto evaluator = support.NewEvaluator(L"R$DISC_Tariff.");
  EXPECT_EQ(evaluator->ProposalsAt(14).proposals.size(), 1U);
  EXPECT_EQ(support.NewEvaluator(L"TS1.SET")->ProposalsAt(7).proposals.size(), 1U);
}

TEST_F(ExpressionProposalsTest, NeverStandInNumbers) {
  for (const wchar_t* text : {L"1|", L"12|3", L"1.|", L"1e|", L"1.2.|3", L"5|V"}) {
    EXPECT_EQ(TextsAt(text), Texts()) << text;
  }
}

TEST_F(ExpressionProposalsTest, AreAtMostSoMany) {
  Device device(L"MANY", L"");
  for (int i = 0; i < 1000; ++i) {
    device.Add(
        {.name = L"V" + std::to_wstring(i), .classes = ClassAlone(VariableClass::Expression)});
  }
  devices.Add(std::move(device));
  EXPECT_EQ(At(L"MANY.|").proposals.size(), ExpressionProposer::mostProposals);
  EXPECT_EQ(TextsAt(L"MANY.999|"), (Texts{L"MANY.V999"}));
}

TEST_F(ExpressionProposalsTest, TakeACursorBeyondTheTextAsItsEnd) {
  EXPECT_EQ(Evaluator(L"TS1.VL2")->ProposalsAt(100).proposals.size(), 1U);
  EXPECT_FALSE(Evaluator(L"TS1")->ProposalsAt(-5).proposals.empty());
}

}  // namespace
}  // namespace qv
