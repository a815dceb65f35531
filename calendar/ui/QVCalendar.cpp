#include "calendar/ui/QVCalendar.h"

#include <QToolButton>
#include <algorithm>

#include "calendar/ui/YearField.h"
#include "calendar/ui/YearView.h"

namespace {

/// No file and no name can hold this character.
constexpr wchar_t noDayType[] = L"\xFFFF";

constexpr int firstYearOnOffer = 1;
constexpr int lastYearOnOffer = 9999;

QVDateTime DateOrNone(const std::optional<qv::CalendarDate>& date) {
  return date ? qv::ToDateTime(*date) : QVDateTime();
}

QToolButton* ArrowButton(QWidget* parent, Qt::ArrowType arrow) {
  auto* button = new QToolButton(parent);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

}  // namespace

QVCalendar::QVCalendar(QWidget* parent, qv::CalendarMarks& marks, const QVDateTime& today)
    : QWidget(parent),
      m_marks(marks),
      m_before(ArrowButton(this, Qt::LeftArrow)),
      m_after(ArrowButton(this, Qt::RightArrow)),
      m_year(new qv::YearField(this)),
      m_view(new qv::YearView(this, marks)) {
  setWindowTitle(QStringLiteral("Calendar"));
  connect(m_year, &QSpinBox::valueChanged, m_view, &qv::YearView::SetYear);
  connect(m_before, &QToolButton::clicked, m_year, &QSpinBox::stepDown);
  connect(m_after, &QToolButton::clicked, m_year, &QSpinBox::stepUp);
  connect(m_view, &qv::YearView::Marked, this, &QVCalendar::OfferYears);
  m_year->setRange(firstYearOnOffer, lastYearOnOffer);
  SetYear(today.Year());
  OfferYears();
  setFocusProxy(m_year);
}

void QVCalendar::SetMonthName(int index, const QVWideString& name) {
  m_view->SetMonthName(static_cast<std::size_t>(index), name);
}

void QVCalendar::SetWeekdayName(int index, const QVWideString& name) {
  m_view->SetWeekdayName(static_cast<std::size_t>(index), name);
}

void QVCalendar::SetSelType(qv::Colour colour, const wchar_t* id) {
  m_marks.SetBrush({colour, id});
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

void QVCalendar::ShowMarks() {
  OfferYears();
  m_view->update();
}

void QVCalendar::OfferYears() {
  const auto first = m_marks.First();
  const auto last = m_marks.Last();
  // The year on show stays, also when its last mark goes.
  m_year->setRange(std::min({firstYearOnOffer, m_year->value(), first ? first->year : 1}),
                   std::max({lastYearOnOffer, m_year->value(), last ? last->year : 1}));
}

void QVCalendar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int height = m_year->sizeHint().height();
  const int yearWidth = m_year->sizeHint().width() + height;
  const int left = (width() - yearWidth) / 2;
  m_year->setGeometry(left, 0, yearWidth, height);
  m_before->setGeometry(left - height, 0, height, height);
  m_after->setGeometry(left + yearWidth, 0, height, height);
  const int top = height + height / 4;
  m_view->setGeometry(0, top, width(), std::max(0, this->height() - top));
}
