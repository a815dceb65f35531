#include "variables/VariableMatrix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FakeDriver.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::bitset<34> anyClass{~0ULL};

class VariableMatrixTest : public testing::Test {
 protected:
  std::unique_ptr<VariableMatrix> Read(int maximum = 0, std::bitset<34> mask = anyClass) {
    return VariableMatrix::Read(driver, mask, maximum, prompter);
  }

  /// Adds items with quantities Q1, Q2, … in the order of the keys.
  void AddItems(const std::vector<std::wstring>& items, int quantities) {
    for (const std::wstring& item : items) {
      for (int i = 1; i <= quantities; ++i) {
        const std::wstring quantity = L"Q" + std::to_wstring(i);
        driver.Add(std::to_wstring(1000 + m_next++), item + L"." + quantity,
                   "Quantity " + std::to_string(i));
      }
    }
  }

  /// One letter for each cell: ticked or not, in capitals if it is locked.
  static std::vector<std::string> Ticks(const VariableMatrix& matrix) {
    std::vector<std::string> rows;
    for (const VariableRow& row : matrix.Rows()) {
      std::string& ticks = rows.emplace_back();
      for (const VariableCell& cell : row.cells) {
        ticks += cell.isLocked ? (cell.isTicked ? 'X' : 'O') : (cell.isTicked ? 'x' : 'o');
      }
    }
    return rows;
  }

  static std::vector<std::wstring> Selected(const VariableMatrix& matrix) {
    std::vector<std::wstring> names;
    for (const QVWideString& name : matrix.SelectVariables()) {
      names.emplace_back(name.ToView());
    }
    return names;
  }

  FakeDriver driver;
  ScriptedPrompter prompter;

 private:
  int m_next = 0;
};

TEST_F(VariableMatrixTest, ADeviceWithNoneOfTheClassesGivesNone) {
  AddItems({L"DAY.Work"}, 1);
  driver.classes = 2;
  EXPECT_FALSE(Read(0, 1));
  EXPECT_TRUE(Read(0, 3));
}

TEST_F(VariableMatrixTest, ADeviceWithNothingToOfferGivesNone) {
  EXPECT_FALSE(Read());
  driver.Add(L"1", L"OTHER.Work.Q1");
  EXPECT_FALSE(Read());
}

TEST_F(VariableMatrixTest, RowsStandInTheOrderOfTheirFirstVariable) {
  driver.Add(L"1", L"HOUR.Peak.Q1");
  driver.Add(L"2", L"DAY.Work.Q1");
  driver.Add(L"3", L"HOUR.Peak.Q2");
  driver.Add(L"4", L"COND.Peak.Q1");
  const auto matrix = Read();
  ASSERT_EQ(matrix->Rows().size(), 3U);
  EXPECT_EQ(matrix->Rows()[0].item, L"Peak");
  EXPECT_EQ(matrix->Rows()[0].category, ItemCategory::HourType);
  EXPECT_EQ(matrix->Rows()[0].cells[1].variable, L"HOUR.Peak.Q2");
  EXPECT_EQ(matrix->Rows()[1].category, ItemCategory::DayType);
  EXPECT_EQ(matrix->Rows()[2].category, ItemCategory::Condition);
  EXPECT_EQ(driver.open, 0);
}

TEST_F(VariableMatrixTest, KeysOfEveryDeviceAreNotOffered) {
  driver.Add(L"STATUS", L"DAY.A.Q1");
  driver.Add(L"VDTTM", L"DAY.B.Q1");
  driver.Add(L"Status", L"DAY.C.Q1");
  EXPECT_THAT(Ticks(*Read()), ElementsAre("o"));
}

TEST_F(VariableMatrixTest, NamesOfAnotherFormAreNotOffered) {
  driver.Add(L"0", L"DAY.A.Q1");
  for (const wchar_t* name : {L"", L"DAY", L"DAY.", L"DAY..Q1", L"day.A.Q1", L"DAYS.A.Q1", L".A"}) {
    driver.Add(L"1" + std::wstring(name), name);
  }
  EXPECT_THAT(Ticks(*Read()), ElementsAre("o"));
}

TEST_F(VariableMatrixTest, ANameWithoutAQuantityIsOffered) {
  driver.Add(L"1", L"DAY.A");
  EXPECT_EQ(Read()->Rows().front().cells.front().variable, L"DAY.A");
}

TEST_F(VariableMatrixTest, WhatTheDriverCannotOpenOrDescribeIsNotOffered) {
  AddItems({L"DAY.A"}, 3);
  driver.closed = {L"1000"};
  driver.undescribed = {L"1001"};
  const auto matrix = Read();
  ASSERT_EQ(matrix->Rows().front().cells.size(), 1U);
  EXPECT_EQ(matrix->Rows().front().cells.front().variable, L"DAY.A.Q3");
  EXPECT_EQ(driver.open, 0);
}

TEST_F(VariableMatrixTest, ADriverThatThrowsKeepsNoVariableOpen) {
  AddItems({L"DAY.A"}, 3);
  driver.throws = true;
  EXPECT_THROW(Read(), std::runtime_error);
  EXPECT_EQ(driver.open, 0);
}

TEST_F(VariableMatrixTest, OnlyVariablesOfTheWantedClassesAreOffered) {
  driver.classes = 3;
  driver.Add(L"1", L"DAY.A.Q1", "", 1);
  driver.Add(L"2", L"DAY.A.Q2", "", 2);
  EXPECT_EQ(Read(0, 2)->Rows().front().cells.front().variable, L"DAY.A.Q2");
}

TEST_F(VariableMatrixTest, HeadingsAreTheWordsOfTheFirstRow) {
  driver.Add(L"1", L"DAY.A.Q1", "Energy &lt;kWh&gt;");
  driver.Add(L"2", L"DAY.B.Q1", "Other");
  driver.Add(L"3", L"DAY.B.Q2", "More");
  EXPECT_THAT(Read()->Headings(), ElementsAre(L"Energy <kWh>"));
}

TEST_F(VariableMatrixTest, WhatWasSelectedBeforeIsLocked) {
  AddItems({L"DAY.A", L"DAY.B"}, 2);
  const auto matrix = Read();
  matrix->CheckInitialVariables({L"R$DISC_Tariff.DAY.A.Q2", L"R$DISC_Tariff.DAY.A.Q2",
                                 L"R$DISC_Tarif.DAY.A.Q1", L"R$DISC_Tariff2.DAY.B.Q1",
                                 L"R$DISC_Tariff.DAY.C.Q1", L"R$DISC_Tariff", L""});
  EXPECT_THAT(Ticks(*matrix), ElementsAre("oX", "oo"));
  EXPECT_THAT(Selected(*matrix), IsEmpty());
}

TEST_F(VariableMatrixTest, OfAVariableThatStandsTwiceInARowTheFirstIsLocked) {
  driver.Add(L"1", L"DAY.A.Q1");
  driver.Add(L"2", L"DAY.A.Q1");
  const auto matrix = Read();
  matrix->CheckInitialVariables({L"R$DISC_Tariff.DAY.A.Q1"});
  EXPECT_THAT(Ticks(*matrix), ElementsAre("Xo"));
}

TEST_F(VariableMatrixTest, WithoutACapAnythingCanBeTicked) {
  AddItems({L"DAY.A", L"DAY.B"}, 3);
  const auto matrix = Read(0);
  matrix->OnVariableSelect(0);
  matrix->OnVariableSelect(1);
  EXPECT_EQ(Selected(*matrix).size(), 6U);
  EXPECT_FALSE(matrix->Fault());
}

TEST_F(VariableMatrixTest, ASecondTickBeyondACapOfOneIsRefused) {
  AddItems({L"DAY.A"}, 2);
  const auto matrix = Read(1);
  EXPECT_TRUE(matrix->OnCheckVariable(0, 0, true));
  prompter.ExpectShow(Text::OneVariableAtMost);
  EXPECT_FALSE(matrix->OnCheckVariable(0, 1, true));
  EXPECT_THAT(Ticks(*matrix), ElementsAre("xo"));
  EXPECT_TRUE(matrix->OnCheckVariable(0, 0, false));
  EXPECT_TRUE(matrix->OnCheckVariable(0, 1, true));
}

TEST_F(VariableMatrixTest, ARowBeyondTheCapIsRefusedAsAWhole) {
  AddItems({L"DAY.A"}, 5);
  const auto matrix = Read(3);
  prompter.ExpectShow(Text::VariablesAtMost);
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("ooooo"));
  EXPECT_THAT(prompter.Heard().front().arguments, ElementsAre(L"3"));
}

TEST_F(VariableMatrixTest, ARowCountsOnlyTheCellsThatItTicks) {
  AddItems({L"DAY.A"}, 4);
  const auto matrix = Read(4);
  matrix->OnCheckVariable(0, 1, true);
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("xxxx"));
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("oooo"));
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("xxxx"));
}

TEST_F(VariableMatrixTest, LockedCellsDoNotCountAgainstTheCap) {
  AddItems({L"DAY.A"}, 4);
  const auto matrix = Read(1);
  matrix->CheckInitialVariables(
      {L"R$DISC_Tariff.DAY.A.Q1", L"R$DISC_Tariff.DAY.A.Q2", L"R$DISC_Tariff.DAY.A.Q3"});
  EXPECT_TRUE(matrix->OnCheckVariable(0, 3, true));
  EXPECT_FALSE(matrix->Fault());
}

TEST_F(VariableMatrixTest, AFullRowIsUntickedWithItsLockedCells) {
  AddItems({L"DAY.A"}, 3);
  const auto matrix = Read();
  matrix->CheckInitialVariables({L"R$DISC_Tariff.DAY.A.Q2"});
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("xXx"));
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("oOo"));
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Selected(*matrix), ElementsAre(L"R$DISC_Tariff.DAY.A.Q1", L"R$DISC_Tariff.DAY.A.Q3"));
}

TEST_F(VariableMatrixTest, AColumnGoesThroughAllCategories) {
  AddItems({L"DAY.A", L"HOUR.B", L"COND.C"}, 2);
  const auto matrix = Read();
  matrix->OnSelectVar(1);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("ox", "ox", "ox"));
  matrix->OnSelectVar(1);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("oo", "oo", "oo"));
}

TEST_F(VariableMatrixTest, AColumnBeyondARowDoesNothing) {
  AddItems({L"DAY.A"}, 3);
  AddItems({L"DAY.B"}, 2);
  const auto matrix = Read(1);
  matrix->OnSelectVar(2);
  matrix->OnSelectVar(7);
  matrix->OnVariableSelect(2);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("ooo", "oo"));
}

TEST_F(VariableMatrixTest, TheCounterMayLoseCountButTheEndCountsAnew) {
  AddItems({L"DAY.A"}, 3);
  const auto matrix = Read(2);
  matrix->CheckInitialVariables({L"R$DISC_Tariff.DAY.A.Q1"});
  EXPECT_TRUE(matrix->OnCheckVariable(0, 1, true));
  EXPECT_TRUE(matrix->OnCheckVariable(0, 2, true));
  // All three go although two were counted; ticking them again counts the locked one as well.
  matrix->OnVariableSelect(0);
  prompter.ExpectShow(Text::VariablesAtMost);
  matrix->OnVariableSelect(0);
  EXPECT_THAT(Ticks(*matrix), ElementsAre("Ooo"));
}

TEST_F(VariableMatrixTest, TooManyAreFoundAtTheEnd) {
  AddItems({L"DAY.A", L"DAY.B"}, 2);
  const auto matrix = Read(2);
  matrix->CheckInitialVariables({L"R$DISC_Tariff.DAY.A.Q1", L"R$DISC_Tariff.DAY.A.Q2"});
  matrix->OnCheckVariable(1, 0, true);
  matrix->OnVariableSelect(0);  // takes two off the count that were never in it
  matrix->OnCheckVariable(1, 1, true);
  EXPECT_FALSE(matrix->Fault());
  EXPECT_EQ(Selected(*matrix).size(), 2U);
}

TEST_F(VariableMatrixTest, ACapBelowZeroLetsNothingPass) {
  AddItems({L"DAY.A"}, 1);
  const auto matrix = Read(-1);
  EXPECT_EQ(matrix->Fault()->text, Text::VariablesAtMost);
  prompter.ExpectShow(Text::VariablesAtMost);
  EXPECT_FALSE(matrix->OnCheckVariable(0, 0, true));
}

}  // namespace
}  // namespace qv
