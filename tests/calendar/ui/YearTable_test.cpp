// The year as assistive technology meets it, through Qt's interface for that.
#include "calendar/ui/YearTable.h"

#include <QAccessible>

#include "calendar/YearDates.h"
#include "calendar/YearGrid.h"
#include "calendar/ui/YearNews.h"
#include "tests/calendar/ui/CalendarOnScreen.h"

namespace qv {
namespace {

class YearTableTest : public CalendarOnScreen {
 protected:
  YearTableTest() { Key(Qt::Key_Home, Qt::ControlModifier); }

  QAccessibleInterface* Table() const { return QAccessible::queryAccessibleInterface(View()); }
  QAccessibleTableInterface* Rows() const { return Table()->tableInterface(); }

  QAccessibleInterface* Cell(CalendarDate date) const {
    return Table()->child(YearGrid(date.year).CellOf(date));
  }

  static QString NameOf(const QAccessibleInterface* cell) { return cell->text(QAccessible::Name); }
};

TEST_F(YearTableTest, IsATableOfWeeksAndWeekdays) {
  ASSERT_TRUE(Table());
  EXPECT_EQ(Table()->role(), QAccessible::Table);
  EXPECT_EQ(NameOf(Table()), "[60060]");
  ASSERT_TRUE(Rows());
  EXPECT_EQ(Rows()->rowCount(), 53);
  EXPECT_EQ(Rows()->columnCount(), 7);
  EXPECT_EQ(Table()->childCount(), 53 * 7);
  EXPECT_EQ(Rows()->columnDescription(0), "[449]");
  EXPECT_EQ(Rows()->columnDescription(6), "[448]");
  EXPECT_EQ(Rows()->columnDescription(7), "");
}

TEST_F(YearTableTest, RowsAreCalledByTheirWeeks) {
  host->loadString.additions.clear();
  EXPECT_EQ(Rows()->rowDescription(0), "1");
  EXPECT_EQ(Rows()->rowDescription(20), "21");
  EXPECT_EQ(Rows()->rowDescription(52), "53");
}

TEST_F(YearTableTest, CellsTellDateAndDayType) {
  host->loadString.additions.clear();
  EXPECT_EQ(NameOf(Cell({2026, 5, 17})), "2026-05-17");
  EXPECT_TRUE(calendar->Select(ToDateTime({2026, 5, 17})));
  EXPECT_EQ(NameOf(Cell({2026, 5, 17})), "2026-05-17: Work");
  EXPECT_EQ(Cell({2026, 5, 17})->role(), QAccessible::Cell);
  EXPECT_EQ(Cell({2026, 5, 17})->parent(), Table());
}

TEST_F(YearTableTest, EachDateHasOneCellAndEachCellItsPlace) {
  for (const CalendarDate date : DatesOfYear(2026)) {
    QAccessibleInterface* cell = Cell(date);
    ASSERT_TRUE(cell);
    const auto* place = cell->tableCellInterface();
    EXPECT_EQ(Rows()->cellAt(place->rowIndex(), place->columnIndex()), cell);
    EXPECT_EQ(Table()->indexOfChild(cell), YearGrid(2026).CellOf(date));
    const QPoint middle = cell->rect().center();
    EXPECT_EQ(Table()->childAt(middle.x(), middle.y()), cell);
  }
}

TEST_F(YearTableTest, CellsOfOtherYearsAreEmptyAndThereAreNoneBeyond) {
  QAccessibleInterface* empty = Table()->child(0);
  ASSERT_TRUE(empty);
  EXPECT_EQ(NameOf(empty), "");
  EXPECT_TRUE(empty->state().invisible);
  EXPECT_TRUE(empty->rect().isEmpty());
  EXPECT_TRUE(empty->actionInterface()->actionNames().empty());
  EXPECT_FALSE(Table()->child(-1));
  EXPECT_FALSE(Table()->child(53 * 7));
  EXPECT_FALSE(Rows()->cellAt(0, 7));
}

TEST_F(YearTableTest, TheCursorIsTheFocus) {
  EXPECT_EQ(Table()->focusChild(), Cell({2026, 1, 1}));
  EXPECT_TRUE(Cell({2026, 1, 1})->state().focused);
  Key(Qt::Key_Down);
  EXPECT_TRUE(Table()->text(QAccessible::Description).contains("[60063]"));
  EXPECT_EQ(Table()->focusChild(), Cell({2026, 1, 8}));
  EXPECT_FALSE(Cell({2026, 1, 1})->state().focused);
  View()->clearFocus();
  EXPECT_FALSE(Table()->focusChild());
}

TEST_F(YearTableTest, TheRangeIsTheSelection) {
  EXPECT_EQ(Rows()->selectedCellCount(), 1);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Rows()->selectedCells(),
            (QList{Cell({2026, 1, 1}), Cell({2026, 1, 2}), Cell({2026, 1, 3})}));
  EXPECT_TRUE(Cell({2026, 1, 2})->state().selected);
  EXPECT_TRUE(Cell({2026, 1, 2})->tableCellInterface()->isSelected());
  EXPECT_FALSE(Cell({2026, 1, 4})->state().selected);
}

TEST_F(YearTableTest, ACellCanBePressedAndGivenTheFocus) {
  QAccessibleInterface* cell = Cell({2026, 5, 17});
  const auto focus = QAccessibleActionInterface::setFocusAction();
  const auto press = QAccessibleActionInterface::pressAction();
  EXPECT_EQ(cell->actionInterface()->actionNames(), QStringList({press, focus}));
  cell->actionInterface()->doAction(focus);
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 5, 17}));
  EXPECT_TRUE(Marked().empty());
  Cell({2026, 5, 18})->actionInterface()->doAction(press);
  EXPECT_EQ(Marked(), (std::vector<CalendarDate>{{2026, 5, 18}}));
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 5, 18}));
}

TEST_F(YearTableTest, AnotherYearHasOtherCells) {
  host->loadString.additions.clear();
  Cell({2026, 1, 1});
  calendar->SetYear(2012);
  EXPECT_EQ(Rows()->rowCount(), 54);
  EXPECT_EQ(NameOf(Cell({2012, 1, 1})), "2012-01-01");
}

TEST_F(YearTableTest, OtherControlsAreAsQtHasThem) {
  QWidget plain;
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(&plain)->tableInterface());
  YearSheet sheet(nullptr, marks, {2026, 1, 1});
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(&sheet)->tableInterface());
}

TEST_F(YearTableTest, EachOfSeveralYearsHasItsTableUntilTheLastGoes) {
  auto second = std::make_unique<QVCalendar>(nullptr, marks, ToDateTime({2030, 1, 1}));
  calendar.reset();
  auto* view = second->findChild<YearView*>();
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(view)->tableInterface());
  second.reset();
  const QVCalendar third(nullptr, marks, ToDateTime({2030, 1, 1}));
  view = third.findChild<YearView*>();
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(view)->tableInterface());
}

/// What assistive technology hears.
class YearNewsTest : public YearTableTest {
 protected:
  struct News {
    QAccessible::Event what;
    int child;
  };

  YearNewsTest() {
    m_heard = &news;
    ListenInstead(Hear);
  }

  ~YearNewsTest() override { ListenInstead(nullptr); }

  /// The cells of the events of this kind, in order.
  std::vector<int> Cells(QAccessible::Event what) const {
    std::vector<int> cells;
    for (const News& each : news) {
      if (each.what == what) {
        cells.push_back(each.child);
      }
    }
    return cells;
  }

  static int CellOf(CalendarDate date) { return YearGrid(date.year).CellOf(date); }

  std::vector<News> news;

 private:
  static void Hear(const QAccessibleEvent& event) {
    // The children of a model's event are rows and columns.
    const bool isOfCell = event.type() != QAccessible::TableModelChanged;
    m_heard->push_back({event.type(), isOfCell ? event.child() : 0});
  }

  static inline std::vector<News>* m_heard = nullptr;
};

TEST_F(YearNewsTest, TheCursorIsFollowed) {
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  EXPECT_EQ(Cells(QAccessible::Focus), (std::vector{CellOf({2026, 1, 8}), CellOf({2026, 1, 9})}));
}

TEST_F(YearNewsTest, TheSelectionIsFollowed) {
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Cells(QAccessible::SelectionWithin).size(), 2U);
}

TEST_F(YearNewsTest, NewMarksAreTold) {
  Drag({2026, 5, 17}, {2026, 5, 18});
  EXPECT_EQ(Cells(QAccessible::NameChanged),
            (std::vector{CellOf({2026, 5, 17}), CellOf({2026, 5, 18})}));
}

TEST_F(YearNewsTest, ManyNewMarksAreToldAsOne) {
  Drag({2026, 5, 1}, {2026, 6, 1});
  EXPECT_TRUE(Cells(QAccessible::NameChanged).empty());
  EXPECT_EQ(Cells(QAccessible::TableModelChanged).size(), 1U);
  calendar->ShowMarks();
  EXPECT_EQ(Cells(QAccessible::TableModelChanged).size(), 2U);
}

TEST_F(YearNewsTest, AKeyThatLeadsToAnotherYearTellsItsDateOnce) {
  Key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Cells(QAccessible::Focus), std::vector{CellOf({2027, 1, 1})});
}

TEST_F(YearNewsTest, AnotherYearIsTold) {
  calendar->SetYear(2012);
  EXPECT_EQ(Cells(QAccessible::TableModelChanged).size(), 1U);
  EXPECT_EQ(Cells(QAccessible::Focus), (std::vector{CellOf({2012, 1, 1})}));
}

}  // namespace
}  // namespace qv
