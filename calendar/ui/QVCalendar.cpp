#include "calendar/ui/QVCalendar.h"

#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "calendar/ui/LegendView.h"
#include "calendar/ui/YearButton.h"
#include "calendar/ui/YearField.h"
#include "calendar/ui/YearMenu.h"
#include "calendar/ui/YearNews.h"
#include "calendar/ui/YearView.h"
#include "calendar/ui/YearWords.h"

namespace {

/// No file and no name can hold this character.
constexpr wchar_t noDayType[] = L"\xFFFF";

constexpr int firstYearOnOffer = 1;
constexpr int lastYearOnOffer = 9999;

QVDateTime DateOrNone(const std::optional<qv::CalendarDate>& date) {
  return date ? qv::ToDateTime(*date) : QVDateTime();
}

}  // namespace

QVCalendar::QVCalendar(QWidget* parent, qv::CalendarMarks& marks, const QVDateTime& today)
    : QWidget(parent),
      m_marks(marks),
      m_before(new qv::YearButton(this, Qt::LeftArrow)),
      m_after(new qv::YearButton(this, Qt::RightArrow)),
      m_year(new qv::YearField(this)),
      m_view(new qv::YearView(this, marks, qv::KeyOf(today))),
      m_months(new QScrollBar(Qt::Vertical, this)),
      m_legend(new qv::LegendView(this)) {
  setWindowTitle(QStringLiteral("Calendar"));
  m_year->setRange(firstYearOnOffer, lastYearOnOffer);
  connect(m_year, &QSpinBox::valueChanged, this, &QVCalendar::OnYear);
  connect(m_before, &QToolButton::clicked, m_year, &QSpinBox::stepDown);
  connect(m_after, &QToolButton::clicked, m_year, &QSpinBox::stepUp);
  connect(m_view, &qv::YearView::Marked, this, &QVCalendar::OnMarked);
  connect(m_view, &qv::YearView::YearWanted, this, &QVCalendar::OnYearWanted);
  connect(m_view, &qv::YearView::BrushWanted, this, &QVCalendar::BrushWanted);
  connect(m_view, &qv::YearView::MonthsChanged, this, &QVCalendar::OnMonths);
  connect(m_view, &qv::YearView::MenuWanted, m_view,
          [this](const QPoint& place) { qv::ShowYearMenu(*m_view, place); });
  connect(m_months, &QScrollBar::valueChanged, m_view, &qv::YearView::SetFirstMonth);
  connect(m_legend, &qv::LegendView::BrushWanted, this, &QVCalendar::BrushWanted);
  AddShortcuts();
  NameParts();
  SetYear(today.Year());
  OnMarked();
  setFocusProxy(m_view);
}

QVCalendar::~QVCalendar() {
  // The part that has the focus loses it when the calendar has gone but for its parts.
  m_year->disconnect(this);
  m_view->disconnect(this);
}

void QVCalendar::AddShortcuts() {
  const auto add = [this](QKeyCombination key, void (qv::YearView::*verb)()) {
    connect(new QShortcut(key, this), &QShortcut::activated, m_view, verb);
  };
  add(Qt::CTRL | Qt::Key_Z, &qv::YearView::Undo);
  add(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &qv::YearView::Redo);
  add(Qt::CTRL | Qt::Key_Y, &qv::YearView::Redo);
}

void QVCalendar::NameParts() {
  m_before->setAccessibleName(qv::YearWord(Text::YearBefore));
  m_after->setAccessibleName(qv::YearWord(Text::YearAfter));
  m_view->setAccessibleName(qv::YearWord(Text::YearName));
  m_legend->setAccessibleName(qv::YearWord(Text::LegendName));
  m_year->setAccessibleName(qv::HostWord(Text::Year));
  m_months->setAccessibleName(qv::HostWord(Text::Months));
}

void QVCalendar::SetMonthName(int index, const QVWideString& name) {
  m_view->SetMonthName(static_cast<std::size_t>(index), name);
}

void QVCalendar::SetWeekdayName(int index, const QVWideString& name) {
  m_view->SetWeekdayName(static_cast<std::size_t>(index), name);
}

void QVCalendar::SetSelType(qv::Colour colour, const wchar_t* id) {
  m_marks.SetBrush({colour, id});
  ShowBrush();
}

bool QVCalendar::Select(const QVDateTime& date) {
  const bool isDone = m_marks.Select(date);
  ShowMarks();
  return isDone;
}

const wchar_t* QVCalendar::GetIdDay(const QVDateTime& date) const {
  const qv::Brush* brush = m_marks.BrushOf(qv::KeyOf(date));
  return brush ? brush->text.ToView().data() : noDayType;
}

void QVCalendar::GetFirstSelectedDay(QVDateTime& date) const { date = DateOrNone(m_marks.First()); }

void QVCalendar::GetLastSelectedDay(QVDateTime& date) const { date = DateOrNone(m_marks.Last()); }

int QVCalendar::GetYear() const { return m_year->value(); }

void QVCalendar::SetYear(int year) { m_year->setValue(year); }

void QVCalendar::OnYearWanted(int year) {
  // It may be one that is on offer no more, or not yet, since its last mark went or came.
  m_year->setRange(std::min(m_year->minimum(), year), std::max(m_year->maximum(), year));
  SetYear(year);
}

void QVCalendar::OnYear(int year) {
  m_view->GoToYear(year);
  OnMarked();
}

void QVCalendar::ShowMarks() {
  OnMarked();
  m_view->RepaintAll();
  qv::TellYear(*m_view);
}

void QVCalendar::OnMarked() {
  const int year = m_year->value();
  const auto first = m_marks.First();
  const auto last = m_marks.Last();
  // The year on show stays, also when its last mark goes.
  m_year->setRange(std::min({firstYearOnOffer, year, first ? first->year : 1}),
                   std::max({lastYearOnOffer, year, last ? last->year : 1}));
  m_view->SetYears(m_year->minimum(), m_year->maximum());
  m_before->SetDot(first && first->year < year, qv::YearWord(Text::MarksBefore));
  m_after->SetDot(last && last->year > year, qv::YearWord(Text::MarksAfter));
  ShowBrush();
}

void QVCalendar::SetDayTypes(const std::vector<qv::ColouredType>& rows) {
  m_dayTypes = rows;
  m_view->SetDayTypes(rows);
  ShowBrush();
  LayOut();
}

void QVCalendar::ShowBrush() {
  if (!m_dayTypes.empty()) {
    m_legend->Show(qv::LegendOf(m_marks, m_dayTypes, m_year->value()), m_marks.CurrentBrush());
  }
}

void QVCalendar::OnMonths() {
  const qv::YearGeometry geometry = m_view->Geometry();
  const QSignalBlocker quiet(m_months);
  m_months->setRange(1, qv::monthsOfYear + 1 - geometry.MonthsShown());
  m_months->setPageStep(geometry.MonthsShown());
  m_months->setValue(geometry.FirstMonth());
}

void QVCalendar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void QVCalendar::LayOut() {
  const int line = m_year->sizeHint().height();
  const int yearWidth = m_year->sizeHint().width() + line;
  const int left = (width() - yearWidth) / 2;
  m_year->setGeometry(left, 0, yearWidth, line);
  m_before->setGeometry(left - line, 0, line, line);
  m_after->setGeometry(left + yearWidth, 0, line, line);
  const int top = line + line / 4;
  // The year is what people come for; the list has all day types as well.
  const int most = std::max(0, height() - top) / 3;
  const int legendHeight = m_dayTypes.empty() ? 0 : std::min(m_legend->HeightFor(width()), most);
  m_legend->setGeometry(0, height() - legendHeight, width(), legendHeight);
  LayOutYear({0, top, width(), std::max(0, height() - top - legendHeight)});
}

void QVCalendar::LayOutYear(const QRect& room) {
  m_view->setGeometry(room);
  const bool isWhole = m_view->Geometry().MonthsShown() == qv::monthsOfYear;
  m_months->setVisible(!isWhole);
  if (!isWhole) {
    const int breadth = m_months->sizeHint().width();
    m_view->setGeometry(room.adjusted(0, 0, -breadth, 0));
    m_months->setGeometry(room.right() + 1 - breadth, room.top(), breadth, room.height());
  }
}

void QVCalendar::wheelEvent(QWheelEvent* event) {
  const bool isOverHeader = event->position().y() < m_year->height();
  if (isOverHeader) {
    m_year->stepBy(m_wheel.Turn(event->angleDelta().y()));
  }
  event->setAccepted(isOverHeader);
}
