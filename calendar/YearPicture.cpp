#include "calendar/YearPicture.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace qv {
namespace {

/// The height of a text in a line of this height.
int TextHeight(int line) { return std::min(line, std::max(line * 7 / 10, 8)); }

/// The longest start of `text` that fits.
std::wstring_view Cut(const Canvas& canvas, std::wstring_view text, int height, int width) {
  while (!text.empty() && canvas.TextExtent(text, height).cx > width) {
    text.remove_suffix(1);
  }
  return text;
}

void PaintText(Canvas& canvas, const Rect& place, std::wstring_view text, Colour ink) {
  const int height = TextHeight(place.Height());
  const std::wstring_view shown = Cut(canvas, text, height, place.Width());
  if (!shown.empty()) {
    const Extent extent = canvas.TextExtent(shown, height);
    canvas.Text({place.left + (place.Width() - extent.cx) / 2,
                 place.top + (place.Height() - extent.cy) / 2},
                shown, height, ink);
  }
}

void PaintDate(Canvas& canvas, const Rect& cell, int day, const Brush* brush,
               const YearStyle& style) {
  const Colour ground = brush ? brush->colour : style.paper;
  canvas.Rectangle(cell, style.faintInk, ground);
  PaintText(canvas, cell, std::to_wstring(day), brush ? InkOn(ground) : style.ink);
}

void PaintMonth(Canvas& canvas, const YearGeometry& year, int month, const CalendarMarks& marks,
                const YearStyle& style) {
  PaintText(canvas, year.NameOf(month),
            style.monthNames[static_cast<std::size_t>(month - 1)].ToView(), style.ink);
  for (int weekday = 0; weekday < 7; ++weekday) {
    PaintText(canvas, year.HeadOf(month, weekday),
              style.weekdayNames[static_cast<std::size_t>(weekday)].ToView(), style.faintInk);
  }
  const int days = DaysOfMonth(ToDateTime({year.Year(), month, 1}));
  for (int day = 1; day <= days; ++day) {
    const CalendarDate date{year.Year(), month, day};
    Rect cell = year.CellOf(date);
    // Cells share their lines.
    ++cell.right;
    ++cell.bottom;
    PaintDate(canvas, cell, day, marks.BrushOf(date), style);
  }
}

}  // namespace

void PaintYear(Canvas& canvas, const YearGeometry& year, const CalendarMarks& marks,
               const YearStyle& style) {
  for (int month = 1; month <= 12; ++month) {
    PaintMonth(canvas, year, month, marks, style);
  }
}

}  // namespace qv
