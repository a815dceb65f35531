// What stands around the year: its header, its legend, and the tooltips.
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolTip>

#include "calendar/ui/LegendView.h"
#include "calendar/ui/YearButton.h"
#include "tests/calendar/ui/CalendarOnScreen.h"

namespace qv {
namespace {

class YearHeader : public CalendarOnScreen {
 protected:
  YearButton* Button(int index) const { return calendar->findChildren<YearButton*>().at(index); }
  LegendView* Legend() const { return calendar->findChild<LegendView*>(); }

  void ClickEntry(std::size_t entry) const {
    QTest::mouseClick(Legend(), Qt::LeftButton, {}, Legend()->PlaceOf(entry).center());
  }

  static QString ToolTipAt(QWidget& widget, QPoint place) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::text();
  }

  void TurnWheelAt(QPointF place, int eighths) const {
    QWheelEvent event(place, calendar->mapToGlobal(place), {}, {0, eighths}, {}, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(calendar.get(), &event);
  }
};

TEST_F(YearHeader, ADotTellsThatOtherYearsHoldMarks) {
  EXPECT_FALSE(Button(0)->HasDot());
  EXPECT_FALSE(Button(1)->HasDot());
  EXPECT_TRUE(calendar->Select(ToDateTime({2024, 5, 17})));
  EXPECT_TRUE(Button(0)->HasDot());
  EXPECT_FALSE(Button(1)->HasDot());
  EXPECT_TRUE(Button(0)->toolTip().contains("[60067]"));
  calendar->SetYear(2020);
  EXPECT_FALSE(Button(0)->HasDot());
  EXPECT_TRUE(Button(1)->HasDot());
  EXPECT_EQ(Button(0)->toolTip(), "");
  calendar->SetYear(2024);
  EXPECT_FALSE(Button(0)->HasDot());
  EXPECT_FALSE(Button(1)->HasDot());
}

TEST_F(YearHeader, ADotIsSeen) {
  const QImage before = Button(0)->grab().toImage();
  EXPECT_TRUE(calendar->Select(ToDateTime({2024, 5, 17})));
  EXPECT_NE(Button(0)->grab().toImage(), before);
}

TEST_F(YearHeader, TheWheelOverItGoesToAnotherYear) {
  TurnWheelAt(QPointF(3, 3), 120);
  EXPECT_EQ(calendar->GetYear(), 2027);
  TurnWheelAt(QPointF(3, 3), -120);
  TurnWheelAt(QPointF(3, 3), -120);
  EXPECT_EQ(calendar->GetYear(), 2025);
  TurnWheelAt(QPointF(3, calendar->height() - 3), -120);
  EXPECT_EQ(calendar->GetYear(), 2025);
}

TEST_F(YearHeader, AClickInTheLegendChoosesABrush) {
  QSignalSpy wanted(calendar.get(), &QVCalendar::BrushWanted);
  ClickEntry(0);
  ClickEntry(1);
  ClickEntry(2);
  ASSERT_EQ(wanted.size(), 3);
  EXPECT_EQ(wanted[0][0].toInt(), 0);
  EXPECT_EQ(wanted[1][0].toInt(), 1);
  EXPECT_EQ(wanted[2][0].toInt(), -1);
}

TEST_F(YearHeader, TheLegendCountsTheDaysOfTheYear) {
  host->loadString.additions.clear();
  Drag({2026, 5, 1}, {2026, 5, 31});
  EXPECT_EQ(Legend()->accessibleDescription(), "Rest: 0; Work: 31; : 334");
  calendar->SetYear(2024);
  EXPECT_EQ(Legend()->accessibleDescription(), "Rest: 0; Work: 0; : 366");
}

TEST_F(YearHeader, TheLegendShowsTheBrush) {
  const QImage before = Legend()->grab().toImage();
  calendar->SetSelType(0x00FF00, L"Rest");
  const QImage after = Legend()->grab().toImage();
  EXPECT_NE(after, before);
  calendar->SetSelType(0x0000FF, L"Work");
  EXPECT_EQ(Legend()->grab().toImage(), before);
}

TEST_F(YearHeader, WithoutDayTypesThereIsNoLegend) {
  EXPECT_GT(Legend()->height(), 0);
  calendar->SetDayTypes({});
  EXPECT_EQ(Legend()->height(), 0);
}

TEST_F(YearHeader, ATooltipTellsDateWeekdayAndDayType) {
  host->loadString.additions.clear();
  EXPECT_TRUE(calendar->Select(ToDateTime({2026, 5, 17})));
  EXPECT_TRUE(ToolTipAt(*View(), PlaceOf({2026, 5, 17})).contains("2026-05-17: Work"));
  EXPECT_TRUE(ToolTipAt(*View(), PlaceOf({2026, 5, 18})).contains("2026-05-18"));
  ToolTipAt(*View(), Middle(View()->Geometry().NameOf(1)));
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); })) << "a head isn't a date";
  EXPECT_TRUE(ToolTipAt(*Legend(), Legend()->PlaceOf(1).center()).contains("Work: 1"));
}

TEST_F(YearHeader, AScrollBarStandsBesideMonthsThatDoNotAllFit) {
  auto* bar = calendar->findChild<QScrollBar*>();
  EXPECT_FALSE(bar->isVisible());
  calendar->resize(320, 300);
  EXPECT_TRUE(bar->isVisible());
  EXPECT_LE(View()->geometry().right(), bar->x());
  bar->setValue(bar->maximum());
  EXPECT_TRUE(View()->Geometry().Shows(12));
  View()->SetFirstMonth(1);
  EXPECT_EQ(bar->value(), 1);
  calendar->resize(900, 650);
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(YearHeader, IsAsGoodFromRightToLeft) {
  calendar->setLayoutDirection(Qt::RightToLeft);
  Drag({2026, 5, 30}, {2026, 6, 2});
  EXPECT_EQ(Marked().size(), 4U);
}

}  // namespace
}  // namespace qv
