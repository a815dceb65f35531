#include "calendar/ui/YearView.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "calendar/PlaceDates.h"
#include "calendar/YearDates.h"
#include "calendar/ui/YearKeys.h"
#include "calendar/ui/YearNews.h"
#include "calendar/ui/YearWords.h"
#include "toolkit/Caption.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

const CalendarDate* DateIn(const std::optional<YearPlace>& place) {
  return place ? std::get_if<CalendarDate>(&*place) : nullptr;
}

}  // namespace

YearView::YearView(QWidget* parent, CalendarMarks& marks, CalendarDate today)
    : YearSheet(parent, marks, today), m_marks(marks), m_gestures(marks, today) {
  setFocusPolicy(Qt::StrongFocus);
}

void YearView::GoToYear(int year) {
  const CalendarDate at = m_gestures.Cursor().Date();
  const bool isLedThere = at.year == year;  // by the cursor, which is told of for itself
  if (!isLedThere) {
    m_gestures.Cancel();
    m_gestures.Cursor().GoTo(MonthsAfter(at, (year - at.year) * monthsOfYear));
  }
  if (year != Year()) {
    SetYear(year);
    TellYear(*this);
    if (!isLedThere) {
      TellCursor(*this);
    }
  }
  ShowGestures();
}

void YearView::Do(const std::function<bool(YearGestures&)>& gesture) {
  const CalendarCursor before = m_gestures.Cursor();
  if (gesture(m_gestures)) {
    ShowChanged(m_marks.DatesToUndo());
  }
  if (const int year = m_gestures.Cursor().Date().year; year != Year()) {
    emit YearWanted(year);
  }
  if (m_gestures.Cursor().Date() != before.Date() && !m_gestures.IsDrawing()) {
    Reveal(m_gestures.Cursor().Date().month);
  }
  ShowGestures();
  TellWhatMoved(before);
}

void YearView::TellWhatMoved(const CalendarCursor& before) {
  const CalendarCursor& cursor = m_gestures.Cursor();
  if (cursor.Date() != before.Date()) {
    TellCursor(*this);
  }
  if (cursor.HasRange() || before.HasRange()) {
    TellSelection(*this);
  }
}

void YearView::Undo() {
  if (!m_gestures.IsDrawing() && m_marks.Undo()) {
    ShowChanged(m_marks.DatesToRedo());
  }
}

void YearView::Redo() {
  if (!m_gestures.IsDrawing() && m_marks.Redo()) {
    ShowChanged(m_marks.DatesToUndo());
  }
}

void YearView::ShowChanged(const std::vector<CalendarDate>& dates) {
  emit Marked();
  const bool isSeen = std::any_of(dates.begin(), dates.end(),
                                  [this](CalendarDate date) { return date.year == Year(); });
  if (!isSeen) {
    emit YearWanted(dates.front().year);
  }
  const YearGeometry geometry = Geometry();
  const bool isInSight = std::any_of(dates.begin(), dates.end(), [&](CalendarDate date) {
    return date.year == Year() && geometry.Shows(date.month);
  });
  if (!isInSight) {
    Reveal(dates.front().month);
  }
  Repaint(dates);
  TellMarks(*this, dates);
}

void YearView::Reveal(int month) {
  const YearGeometry geometry = Geometry();
  if (!geometry.Shows(month)) {
    const bool isBefore = month < geometry.FirstMonth();
    SetFirstMonth(isBefore ? month : month - geometry.MonthsShown() + 1);
  }
}

void YearView::ShowGestures() {
  const CalendarCursor& cursor = m_gestures.Cursor();
  YearState state{m_gestures.Covered(), {}, {}};
  if (cursor.HasRange()) {
    state.selected = cursor.Selected();
  }
  if (hasFocus()) {
    state.focused = cursor.Date();
  }
  ShowState(std::move(state));
}

QString YearView::WordsOf(CalendarDate date) const {
  const std::wstring words = DateInWords(date, m_marks.BrushOf(date), HostDateForms());
  return ToQString(words);
}

bool YearView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return YearSheet::event(event);
  }
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const auto place = PlaceAt(help.pos());
  const CalendarDate* date = DateIn(place);
  const QString words = date ? WordsOf(*date) : QString();
  QToolTip::showText(help.globalPos(), PlainToolTip(words), this, date ? CellOf(*date) : QRect());
  return true;
}

void YearView::focusInEvent(QFocusEvent* event) {
  YearSheet::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
    // A pointer is where it is, and goes on to press what it sees there.
    Reveal(m_gestures.Cursor().Date().month);
  }
  ShowGestures();
  TellCursor(*this);
}

void YearView::focusOutEvent(QFocusEvent* event) {
  YearSheet::focusOutEvent(event);
  // The release may go elsewhere now.
  m_gestures.Cancel();
  ShowGestures();
}

void YearView::mousePressEvent(QMouseEvent* event) {
  const auto place = PlaceAt(event->position());
  if (const CalendarDate* date = DateIn(place); date && event->button() == Qt::LeftButton) {
    m_isOutside = false;
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
    Do([&](YearGestures& gestures) {
      gestures.Press(*date, extends);
      return false;
    });
  }
}

void YearView::mouseMoveEvent(QMouseEvent* event) {
  if (m_gestures.IsDrawing()) {
    ScrollPast(event->position());
    DragTo(*event);
  }
}

void YearView::DragTo(const QMouseEvent& event) {
  if (const auto date = NearestDate(event.position())) {
    const bool asBlock = event.modifiers().testFlag(Qt::ControlModifier);
    Do([&](YearGestures& gestures) {
      gestures.DragTo(*date, asBlock);
      return false;
    });
  }
}

void YearView::ScrollPast(const QPointF& place) {
  const bool wasOutside = m_isOutside;
  m_isOutside = !QRectF(rect()).contains(place);
  if (m_isOutside && !wasOutside) {
    const bool isBefore = place.y() < 0 || (place.x() < 0 && place.y() < height());
    const YearGeometry geometry = Geometry();
    SetFirstMonth(std::clamp(geometry.FirstMonth() + (isBefore ? -1 : 1), 1,
                             monthsOfYear + 1 - geometry.MonthsShown()));
  }
}

void YearView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && m_gestures.IsDrawing()) {
    // Control may have been pressed or let go without a move.
    DragTo(*event);
    Do([](YearGestures& gestures) { return gestures.Release(); });
  }
}

void YearView::mouseDoubleClickEvent(QMouseEvent* event) {
  const auto place = PlaceAt(event->position());
  if (!place || DateIn(place) || event->button() != Qt::LeftButton) {
    mousePressEvent(event);
    return;
  }
  Do([&](YearGestures& gestures) { return gestures.Mark(DatesOfPlace(*place, Year())); });
}

void YearView::wheelEvent(QWheelEvent* event) {
  const YearGeometry geometry = Geometry();
  if (geometry.MonthsShown() == monthsOfYear) {
    event->ignore();
    return;
  }
  const int steps = m_wheel.Turn(event->angleDelta().y());
  SetFirstMonth(
      std::clamp(geometry.FirstMonth() - steps, 1, monthsOfYear + 1 - geometry.MonthsShown()));
  event->accept();
}

void YearView::keyPressEvent(QKeyEvent* event) {
  if (!HandleKey(*event)) {
    YearSheet::keyPressEvent(event);
  }
}

bool YearView::HandleKey(const QKeyEvent& event) {
  if (m_gestures.IsDrawing()) {
    if (event.key() == Qt::Key_Escape) {
      Do([](YearGestures& gestures) {
        gestures.Cancel();
        return false;
      });
    }
    return true;
  }
  if (event.modifiers().testAnyFlags(Qt::AltModifier | Qt::MetaModifier)) {
    return false;
  }
  if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier) {
    AskForMenuAtCursor();
    return true;
  }
  if (const auto key = CursorKeyOf(event.key())) {
    const bool byYear = event.modifiers().testFlag(Qt::ControlModifier);
    const bool extends = event.modifiers().testFlag(Qt::ShiftModifier);
    Do([&](YearGestures& gestures) {
      gestures.Cursor().Move(*key, byYear, extends);
      return false;
    });
    return true;
  }
  const auto row = BrushKeyOf(event.key());
  if (row && !event.modifiers().testFlag(Qt::ControlModifier)) {
    emit BrushWanted(*row);
    return true;
  }
  return HandleVerb(event.key());
}

bool YearView::HandleVerb(int key) {
  const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (key == Qt::Key_Space || (isReturn && m_gestures.Cursor().HasRange())) {
    Do([](YearGestures& gestures) { return gestures.MarkSelected(); });
    return true;
  }
  if (key == Qt::Key_Delete) {
    Do([](YearGestures& gestures) { return gestures.EraseSelected(); });
    return true;
  }
  return false;
}

void YearView::contextMenuEvent(QContextMenuEvent* event) {
  const auto place = PlaceAt(event->pos());
  const CalendarDate* date = DateIn(place);
  const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
  if (isByMouse && date) {
    Do([&](YearGestures& gestures) {
      gestures.Cursor().GoTo(*date);
      return false;
    });
  }
  if (isByMouse) {
    emit MenuWanted(event->globalPos());
  } else {
    AskForMenuAtCursor();
  }
}

void YearView::AskForMenuAtCursor() {
  const CalendarDate date = m_gestures.Cursor().Date();
  Reveal(date.month);
  emit MenuWanted(mapToGlobal(CellOf(date).center()));
}

}  // namespace qv
