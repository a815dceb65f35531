#include "calendar/YearLegend.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "calendar/Contrast.h"

namespace qv {
namespace {

bool AnyLookAlike(const std::vector<ColouredType>& rows) {
  for (auto row = rows.begin(); row != rows.end(); ++row) {
    const auto looksLikeRow = [row](const ColouredType& other) {
      return LookAlike(row->colour, other.colour);
    };
    if (std::any_of(row + 1, rows.end(), looksLikeRow)) {
      return true;
    }
  }
  return false;
}

/// Gives out signs, each once.
class FreeSigns {
 public:
  /// The sign at the start of `text`, if it is one and free.
  wchar_t Take(std::wstring_view text) {
    const std::size_t sign = text.empty() ? std::wstring::npos : m_free.find(Capital(text[0]));
    return sign == std::wstring::npos ? L'\0' : TakeAt(sign);
  }

  /// The first one in `name` that is free, or else the first that is; none if all are gone.
  wchar_t TakeAny(std::wstring_view name) {
    while (!name.empty()) {
      if (const wchar_t sign = Take(name)) {
        return sign;
      }
      name.remove_prefix(1);
    }
    return m_free.empty() ? L'\0' : TakeAt(0);
  }

 private:
  static wchar_t Capital(wchar_t letter) {
    return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
  }

  wchar_t TakeAt(std::size_t place) {
    const wchar_t sign = m_free[place];
    m_free.erase(place, 1);
    return sign;
  }

  // Letters, but for those that look like digits beside a number, or are too broad for a date.
  std::wstring m_free = L"ABCDEFGHJKLNPQRSTUVXYZabcdefghijknpqrstuvxyz";
};

/// A sign for each row: the first letter of its name where that is free.
std::vector<wchar_t> SignsOf(const std::vector<ColouredType>& rows) {
  FreeSigns free;
  std::vector<wchar_t> signs;
  for (const ColouredType& row : rows) {
    signs.push_back(free.Take(row.name.ToView()));
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    signs[i] = signs[i] ? signs[i] : free.TakeAny(rows[i].name.ToView());
  }
  return signs;
}

int DaysOf(int year) { return 337 + DaysIn(year, 2); }

}  // namespace

std::vector<LegendEntry> LegendOf(const CalendarMarks& marks, const std::vector<ColouredType>& rows,
                                  int year) {
  const std::vector<wchar_t> signs =
      AnyLookAlike(rows) ? SignsOf(rows) : std::vector<wchar_t>(rows.size(), L'\0');
  std::vector<LegendEntry> legend;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    legend.push_back({{rows[i].colour, rows[i].name}, signs[i], 0});
  }
  int unmarked = DaysOf(year);
  marks.ForEach([&](const CalendarMarks::Mark& mark) {
    if (mark.date.year != year) {
      return;
    }
    --unmarked;
    for (LegendEntry& entry : legend) {
      entry.days += entry.brush == mark.brush ? 1 : 0;
    }
  });
  legend.push_back({{}, L'\0', unmarked});
  return legend;
}

}  // namespace qv
