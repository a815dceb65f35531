#include "calendar/ui/CDlgFastSelection.h"

#include <QCheckBox>

#include "tests/support/DialogTest.h"
#include "tests/support/Parsed.h"

namespace qv {
namespace {

class FastSelectionDialog : public DialogTest {
 protected:
  static void Tick(std::initializer_list<int> checks) {
    for (const int check : checks) {
      TopControl<QCheckBox>(check)->click();
    }
  }

  static QStringList Items() {
    QStringList items;
    for (int i = 0; i < Combo(fastDayType)->count(); ++i) {
      items << Combo(fastDayType)->itemText(i);
    }
    return items;
  }

  static QColor IconColour(int item) {
    QComboBox* combo = Combo(fastDayType);
    return combo->itemIcon(item).pixmap(combo->iconSize()).toImage().pixelColor(3, 3);
  }

  std::vector<DWORD> colours = {0x0000FF, 0xFFFFFF, 0xFF0000};
  std::vector<QVWideString> names = {L"work", L"Rest", L"feast"};
  std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>1</id><name>zeta</name><color>0000ff</color></day><other/>"
      "<day><name>alpha</name></day></dayTypes>");
};

TEST_F(FastSelectionDialog, OpensWithNothingTickedAndTheFirstDayType) {
  CDlgFastSelection dialog(nullptr, &colours, &names, 2026);
  const int result = Play(dialog, [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::FastSelectionTitle));
    EXPECT_EQ(Caption(fastYear), TitleOf(Text::Year) + " : 2026");
    EXPECT_EQ(Items(), QStringList({"work", "Rest", "feast"}));
    EXPECT_EQ(Combo(fastDayType)->currentIndex(), 0);
    EXPECT_EQ(IconColour(0), QColor(Qt::red));
    EXPECT_EQ(IconColour(1), QColor(Qt::white));
    EXPECT_EQ(IconColour(2), QColor(Qt::blue));
    for (const auto* checks : TopWindow()->findChildren<QCheckBox*>()) {
      EXPECT_FALSE(checks->isChecked());
      EXPECT_TRUE(checks->isEnabled());
    }
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(dialog.m_dwMonths, 0U);
  EXPECT_EQ(dialog.m_dwWeekDays, 0U);
  EXPECT_EQ(dialog.m_nDayType, 0);
}

TEST_F(FastSelectionDialog, BoxesAreNamedAfterTheirDaysAndMonths) {
  constexpr Text weekDays[] = {Text::Monday, Text::Tuesday,  Text::Wednesday, Text::Thursday,
                               Text::Friday, Text::Saturday, Text::Sunday};
  constexpr Text months[] = {Text::January,   Text::February, Text::March,    Text::April,
                             Text::May,       Text::June,     Text::July,     Text::August,
                             Text::September, Text::October,  Text::November, Text::December};
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [&] {
    for (std::size_t i = 0; i < std::size(weekDays); ++i) {
      EXPECT_EQ(Caption(weekDayChecks[i]), TitleOf(weekDays[i]));
    }
    for (std::size_t i = 0; i < std::size(months); ++i) {
      EXPECT_EQ(Caption(monthChecks[i]), TitleOf(months[i]));
    }
    EXPECT_EQ(Caption(5273), TitleOf(Text::Weekdays));
    EXPECT_EQ(Caption(5274), TitleOf(Text::Months));
    EXPECT_EQ(Caption(5275), TitleOf(Text::DayType));
    EXPECT_EQ(Combo(fastDayType)->accessibleName(), TitleOf(Text::DayType));
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, EachBoxSetsItsBit) {
  for (std::size_t i = 0; i < std::size(weekDayChecks); ++i) {
    CDlgFastSelection dialog(nullptr, days.get(), 2026);
    EXPECT_EQ(Play(dialog,
                   [&] {
                     Tick({weekDayChecks[i]});
                     Click(IDOK);
                   }),
              IDOK);
    EXPECT_EQ(dialog.m_dwWeekDays, 1U << i);
    EXPECT_EQ(dialog.m_dwMonths, 0U);
  }
  for (std::size_t i = 0; i < std::size(monthChecks); ++i) {
    CDlgFastSelection dialog(nullptr, days.get(), 2026);
    EXPECT_EQ(Play(dialog,
                   [&] {
                     Tick({monthChecks[i]});
                     Click(IDOK);
                   }),
              IDOK);
    EXPECT_EQ(dialog.m_dwMonths, 1U << i);
    EXPECT_EQ(dialog.m_dwWeekDays, 0U);
  }
}

TEST_F(FastSelectionDialog, OfANodeDayTypesStandInTheOrderOfTheDocument) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [] {
    EXPECT_EQ(Items(), QStringList({"zeta", "alpha"}));
    EXPECT_EQ(IconColour(0), QColor(Qt::red));
    Combo(fastDayType)->setCurrentIndex(1);
    Click(IDOK);
  });
  EXPECT_EQ(dialog.m_nDayType, 1);
}

TEST_F(FastSelectionDialog, AfterACancelTheMasksAreZero) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  EXPECT_EQ(Play(dialog,
                 [] {
                   Tick({weekDayChecks[0], monthChecks[0]});
                   QTest::keyClick(TopWindow(), Qt::Key_Escape);
                 }),
            IDCANCEL);
  EXPECT_EQ(dialog.m_dwMonths, 0U);
  EXPECT_EQ(dialog.m_dwWeekDays, 0U);
}

TEST_F(FastSelectionDialog, MasksOfTwoRunsAddUpAlthoughNothingIsTickedAtTheStart) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [] {
    Tick({weekDayChecks[0], monthChecks[11]});
    Click(IDOK);
  });
  Play(dialog, [] {
    EXPECT_FALSE(TopControl<QCheckBox>(weekDayChecks[0])->isChecked());
    EXPECT_EQ(Items().size(), 2);
    Tick({weekDayChecks[6]});
    Click(IDOK);
  });
  EXPECT_EQ(dialog.m_dwWeekDays, 0x41U);
  EXPECT_EQ(dialog.m_dwMonths, 0x800U);
}

TEST_F(FastSelectionDialog, OnlyMonthsInTheRangeCanBeTicked) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  EXPECT_TRUE(dialog.SetMaxMinMonth(3, 6));
  Play(dialog, [] {
    for (const int check : weekDayChecks) {
      EXPECT_TRUE(TopControl(check)->isEnabled());
    }
    for (const int check : monthChecks) {
      TopControl<QCheckBox>(check)->click();
    }
    Click(IDOK);
  });
  EXPECT_EQ(dialog.m_dwMonths, 0x3CU);
}

TEST_F(FastSelectionDialog, AWrongRangeLeavesTheWholeYear) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  EXPECT_TRUE(dialog.SetMaxMinMonth(3, 3));
  EXPECT_FALSE(dialog.SetMaxMinMonth(6, 3));
  Play(dialog, [] {
    for (const int check : monthChecks) {
      EXPECT_TRUE(TopControl(check)->isEnabled());
    }
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, OfOneMonthOnlyThatOneCanBeTickedByKeyboard) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  EXPECT_TRUE(dialog.SetMaxMinMonth(3, 3));
  EXPECT_EQ(Play(dialog,
                 [] {
                   for (const int check : monthChecks) {
                     QTest::keyClick(TopControl(check), Qt::Key_Space);
                   }
                   Press(weekDayChecks[4], Qt::Key_Space);
                   Press(fastDayType, Qt::Key_Down);
                   Press(weekDayChecks[4], Qt::Key_Return);
                 }),
            IDOK);
  EXPECT_EQ(dialog.m_dwMonths, 0x4U);
  EXPECT_EQ(dialog.m_dwWeekDays, 0x10U);
  EXPECT_EQ(dialog.m_nDayType, 1);
}

TEST_F(FastSelectionDialog, ARunThatIsCancelledKeepsWhatTheOneBeforeGave) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [] {
    Tick({weekDayChecks[0], monthChecks[0]});
    Combo(fastDayType)->setCurrentIndex(1);
    Click(IDOK);
  });
  EXPECT_TRUE(dialog.SetMaxMinMonth(2, 2));
  Play(dialog, [] {
    EXPECT_FALSE(TopControl(monthChecks[0])->isEnabled());
    EXPECT_TRUE(TopControl(monthChecks[1])->isEnabled());
    Tick({monthChecks[1]});
    Click(IDCANCEL);
  });
  EXPECT_EQ(dialog.m_dwMonths, 1U);
  EXPECT_EQ(dialog.m_dwWeekDays, 1U);
  EXPECT_EQ(dialog.m_nDayType, 1);
}

TEST_F(FastSelectionDialog, OfANodeDayTypesAreReadWhenItRuns) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  days->NewChild(L"day", nullptr)->SetValue(L"name", L"late");
  Play(dialog, [] {
    EXPECT_EQ(Items(), QStringList({"zeta", "alpha", "late"}));
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, WithoutDayTypesTheIndexIsNone) {
  std::vector<DWORD> none;
  std::vector<QVWideString> nothing;
  CDlgFastSelection dialog(nullptr, &none, &nothing, 2026);
  EXPECT_EQ(Play(dialog,
                 [] {
                   EXPECT_TRUE(Items().isEmpty());
                   Click(IDOK);
                 }),
            IDOK);
  EXPECT_EQ(dialog.m_nDayType, -1);
}

TEST_F(FastSelectionDialog, BuiltByDefaultShowsMinusOneAndNoDayTypes) {
  CDlgFastSelection dialog;
  Play(dialog, [] {
    EXPECT_EQ(Caption(fastYear), TitleOf(Text::Year) + " : -1");
    EXPECT_TRUE(Items().isEmpty());
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, KeepsCopiesOfTheLists) {
  CDlgFastSelection dialog(nullptr, &colours, &names, 2026);
  names.clear();
  colours.clear();
  Play(dialog, [] {
    EXPECT_EQ(Items().size(), 3);
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, OfListsOfUnequalLengthTheSurplusIsLeftOut) {
  colours.pop_back();
  CDlgFastSelection dialog(nullptr, &colours, &names, 2026);
  Play(dialog, [] {
    EXPECT_EQ(Items(), QStringList({"work", "Rest"}));
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, IsOfOneSize) {
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [] {
    EXPECT_EQ(TopWindow()->minimumSize(), TopWindow()->maximumSize());
    Click(IDCANCEL);
  });
}

TEST_F(FastSelectionDialog, TouchesNoDocument) {
  const XmlNode before(*days);
  CDlgFastSelection dialog(nullptr, days.get(), 2026);
  Play(dialog, [] {
    Tick({weekDayChecks[0], monthChecks[0]});
    Click(IDOK);
  });
  EXPECT_EQ(*days, before);
}

}  // namespace
}  // namespace qv
