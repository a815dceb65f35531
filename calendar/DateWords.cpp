#include "calendar/DateWords.h"

#include "calendar/Weeks.h"
#include "tools/Format.h"

namespace qv {
namespace {

std::wstring_view FormOr(const std::wstring& form, std::wstring_view plain) {
  return form.empty() ? plain : std::wstring_view(form);
}

std::wstring Words(CalendarDate date, const DateForms& forms) {
  if (forms.date.empty()) {
    return Format(L"%d-%02d-%02d", {date.year, date.month, date.day});
  }
  return Format(
      forms.date,
      {std::wstring_view(forms.weekdays.at(static_cast<std::size_t>(WeekdayOf(date)))), date.day,
       std::wstring_view(forms.months.at(static_cast<std::size_t>(date.month - 1))), date.year});
}

}  // namespace

std::wstring DateInWords(CalendarDate date, const Brush* brush, const DateForms& forms) {
  const std::wstring words = Words(date, forms);
  return brush ? Format(FormOr(forms.typed, L"%s: %s"), {std::wstring_view(words), brush->text})
               : Format(FormOr(forms.untyped, L"%s"), {std::wstring_view(words)});
}

}  // namespace qv
