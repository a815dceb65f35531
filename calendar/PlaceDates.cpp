#include "calendar/PlaceDates.h"

#include <algorithm>

#include "calendar/Weeks.h"
#include "calendar/YearDates.h"

namespace qv {
namespace {

/// Tells what a place stands for by its kind.
struct Finder {
  int year;

  std::vector<CalendarDate> operator()(CalendarDate date) const { return {date}; }

  std::vector<CalendarDate> operator()(const MonthName& name) const {
    return DatesOfMonth(year, name.month);
  }

  std::vector<CalendarDate> operator()(const WeekdayHead& head) const {
    return DatesOfWeekday(year, head.month, head.weekday);
  }

  std::vector<CalendarDate> operator()(const WeekNumber& number) const {
    const auto month = DatesOfMonth(year, number.month);
    const auto first = std::find_if(month.begin(), month.end(), [&](CalendarDate date) {
      return WeekNumberOf(date) == number.week;
    });
    if (first == month.end()) {
      return {};
    }
    std::vector<CalendarDate> week = DatesOfWeek(*first);
    // What isn't seen isn't marked.
    std::erase_if(week, [this](CalendarDate date) { return date.year != year; });
    return week;
  }
};

}  // namespace

std::vector<CalendarDate> DatesOfPlace(const YearPlace& place, int year) {
  return std::visit(Finder{year}, place);
}

}  // namespace qv
