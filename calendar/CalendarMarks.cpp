#include "calendar/CalendarMarks.h"

#include <algorithm>
#include <utility>

namespace qv {

void CalendarMarks::SetBrush(const Brush& brush) {
  m_brush = brush;
  m_index = IndexOf(brush);
}

std::optional<CalendarMarks::BrushIndex> CalendarMarks::IndexOf(const Brush& brush) {
  if (brush.IsEraser()) {
    return std::nullopt;
  }
  const auto known = std::find(m_brushes.begin(), m_brushes.end(), brush);
  const auto index = static_cast<BrushIndex>(known - m_brushes.begin());
  if (known == m_brushes.end()) {
    m_brushes.push_back(brush);
  }
  return index;
}

std::optional<CalendarMarks::BrushIndex> CalendarMarks::At(CalendarDate date) const {
  const auto mark = m_marks.find(date);
  return mark == m_marks.end() ? std::nullopt : std::optional(mark->second);
}

void CalendarMarks::Put(CalendarDate date, std::optional<BrushIndex> brush) {
  if (brush) {
    m_marks.insert_or_assign(date, *brush);
  } else {
    m_marks.erase(date);
  }
}

bool CalendarMarks::Select(const QVDateTime& date) {
  if (!date.Valid()) {
    return false;
  }
  Put(KeyOf(date), m_index);
  return true;
}

void CalendarMarks::Put(CalendarDate date, std::optional<BrushIndex> brush, Step& step) {
  const auto before = At(date);
  if (before != brush && ToDateTime(date).Valid()) {
    step.push_back({date, before, brush});
    Put(date, brush);
  }
}

bool CalendarMarks::Finish(Step step) {
  if (step.empty()) {
    return false;
  }
  m_done.push_back(std::move(step));
  m_undone.clear();
  return true;
}

bool CalendarMarks::Apply(const std::vector<CalendarDate>& dates) {
  Step step;
  for (const CalendarDate date : dates) {
    Put(date, m_index, step);
  }
  return Finish(std::move(step));
}

bool CalendarMarks::ApplyEach(const std::vector<DateBrush>& dates) {
  Step step;
  for (const DateBrush& each : dates) {
    Put(each.date, IndexOf(each.brush), step);
  }
  return Finish(std::move(step));
}

bool CalendarMarks::Undo() {
  if (m_done.empty()) {
    return false;
  }
  // A date that the step met twice was first what it has to be again.
  const Step& step = m_done.back();
  std::for_each(step.rbegin(), step.rend(),
                [this](const Change& change) { Put(change.date, change.before); });
  m_undone.push_back(std::move(m_done.back()));
  m_done.pop_back();
  return true;
}

bool CalendarMarks::Redo() {
  if (m_undone.empty()) {
    return false;
  }
  for (const Change& change : m_undone.back()) {
    Put(change.date, change.after);
  }
  m_done.push_back(std::move(m_undone.back()));
  m_undone.pop_back();
  return true;
}

std::vector<CalendarDate> CalendarMarks::DatesToUndo() const {
  return m_done.empty() ? std::vector<CalendarDate>() : DatesOf(m_done.back());
}

std::vector<CalendarDate> CalendarMarks::DatesToRedo() const {
  return m_undone.empty() ? std::vector<CalendarDate>() : DatesOf(m_undone.back());
}

std::vector<CalendarDate> CalendarMarks::DatesOf(const Step& step) {
  std::vector<CalendarDate> dates;
  for (const Change& change : step) {
    dates.push_back(change.date);
  }
  return dates;
}

const Brush* CalendarMarks::BrushOf(CalendarDate date) const {
  const auto index = At(date);
  return index ? &m_brushes[*index] : nullptr;
}

std::optional<CalendarDate> CalendarMarks::First() const {
  return m_marks.empty() ? std::nullopt : std::optional(m_marks.begin()->first);
}

std::optional<CalendarDate> CalendarMarks::Last() const {
  return m_marks.empty() ? std::nullopt : std::optional(m_marks.rbegin()->first);
}

}  // namespace qv
