#include "calendar/YearLegend.h"

#include <algorithm>
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

/// Letters, as far as there are any.
wchar_t SignOf(std::size_t row) {
  constexpr std::wstring_view signs = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  return row < signs.size() ? signs[row] : L'\0';
}

int DaysOf(int year) { return 337 + DaysOfMonth(ToDateTime({year, 2, 1})); }

}  // namespace

std::vector<LegendEntry> LegendOf(const CalendarMarks& marks, const std::vector<ColouredType>& rows,
                                  int year) {
  const bool hasSigns = AnyLookAlike(rows);
  std::vector<LegendEntry> legend;
  for (const ColouredType& row : rows) {
    legend.push_back({{row.colour, row.name}, hasSigns ? SignOf(legend.size()) : L'\0', 0});
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
