#include "calendar/CalendarMarks.h"

#include <algorithm>
#include <utility>

namespace qv {

void CalendarMarks::SetBrush(const Brush& brush) {
  m_brush = brush;
  if (brush.IsEraser()) {
    m_index.reset();
    return;
  }
  const auto known = std::find(m_brushes.begin(), m_brushes.end(), brush);
  m_index = static_cast<BrushIndex>(known - m_brushes.begin());
  if (known == m_brushes.end()) {
    m_brushes.push_back(brush);
  }
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

bool CalendarMarks::Apply(const std::vector<CalendarDate>& dates) {
  Step step;
  for (const CalendarDate date : dates) {
    const auto before = At(date);
    if (before != m_index && ToDateTime(date).Valid()) {
      step.push_back({date, before, m_index});
      Put(date, m_index);
    }
  }
  if (step.empty()) {
    return false;
  }
  m_done.push_back(std::move(step));
  m_undone.clear();
  return true;
}

bool CalendarMarks::Undo() {
  if (m_done.empty()) {
    return false;
  }
  for (const Change& change : m_done.back()) {
    Put(change.date, change.before);
  }
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
