#pragma once

#include <array>
#include <string>

#include "calendar/CalendarDate.h"
#include "calendar/CalendarMarks.h"

namespace qv {

/// The words in which a date is told.
struct DateForms {
  std::array<std::wstring, 12> months{};
  std::array<std::wstring, 7> weekdays{};  ///< from Monday on
  std::wstring date{};     ///< by weekday, day, month and year; empty for "2026-05-17"
  std::wstring typed{};    ///< by a date and the name of its day type; empty for both with a colon
  std::wstring untyped{};  ///< by a date; empty for the date alone
};

/// A date, its weekday, and the day type that it has, if `brush` isn't null.
std::wstring DateInWords(CalendarDate date, const Brush* brush, const DateForms& forms);

}  // namespace qv
