#include "calendar/YearPicture.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "calendar/DateCoats.h"
#include "calendar/Mixed.h"
#include "calendar/Weeks.h"
#include "calendar/YearDates.h"

namespace qv {
namespace {

/// In hundredths of the way to the ground.
constexpr unsigned faintness = 35;

bool Contains(const std::vector<CalendarDate>& sorted, CalendarDate date) {
  return std::binary_search(sorted.begin(), sorted.end(), date);
}

Rect Inset(const Rect& area, int dots) {
  return {area.left + dots, area.top + dots, area.right - dots, area.bottom - dots};
}

/// A text with the width that it takes. To measure one takes as long as to draw it.
struct Label {
  std::wstring text;
  int width = 0;
};

/// A date as it is to be painted.
struct Tile {
  CalendarDate date;
  Rect cell;
  DateCoat coat;
};

/// Paints parts of the year. Texts of one height follow each other, since a canvas is slow to
/// change its face.
class YearPainter {
 public:
  YearPainter(Canvas& canvas, const YearGeometry& year, const YearLook& look)
      : m_canvas(canvas),
        m_year(year),
        m_look(look),
        m_style(look.style),
        m_line(look.style.density.LineBreadth()),
        m_ring(std::max(m_line, year.CellHeight() / 10)),
        m_focusRing(std::max(m_line, year.CellHeight() / 20)),
        m_faintInk(Mixed(look.style.ink, look.style.ground, faintness)) {
    const int least = std::min(year.CellHeight(), look.style.density.Dots(11));
    m_numberHeight =
        std::max(least, std::min(year.CellHeight(), year.CellWidth() * 2 / 3) * 7 / 10);
    const int leastSmall = std::min(least, look.style.density.Dots(10));
    m_smallHeight = std::max(leastSmall, m_numberHeight * 5 / 6);
    m_signHeight = std::max(leastSmall, m_numberHeight * 3 / 4);
  }

  void PaintNames() {
    const int height = std::max(m_numberHeight, m_year.CellHeight() * 8 / 10);
    ForEachMonth([&](int month) {
      const Rect place = m_year.NameOf(month);
      const auto& name = m_style.monthNames[static_cast<std::size_t>(month - 1)];
      Centre(place, Fitted(name.ToView(), height, place.Width()), height, m_style.ink);
    });
  }

  void PaintHeads() {
    for (int weekday = 0; weekday < 7; ++weekday) {
      const auto& name = m_style.weekdayNames[static_cast<std::size_t>(weekday)];
      const Label label = Fitted(name.ToView(), m_smallHeight, m_year.CellWidth());
      ForEachMonth([&](int month) {
        Centre(m_year.HeadOf(month, weekday), label, m_smallHeight, m_faintInk);
      });
    }
  }

  void PaintWeeks() {
    if (!m_year.HasWeeks()) {
      return;
    }
    const std::vector<Label> numbers = NumbersTo(53, m_smallHeight);
    ForEachMonth([&](int month) {
      for (const CalendarDate first : FirstDatesOfWeeks(month)) {
        const int week = WeekNumberOf(first);
        Centre(m_year.WeekOf(month, week).value_or(Rect()), numbers[static_cast<std::size_t>(week)],
               m_smallHeight, m_faintInk);
      }
    });
  }

  void Paint(const std::vector<CalendarDate>& dates) {
    const std::vector<Tile> tiles = TilesOf(dates);
    for (const Tile& tile : tiles) {
      PaintGround(tile);
    }
    const std::vector<Label> numbers = NumbersTo(31, m_numberHeight);
    for (const Tile& tile : tiles) {
      PaintNumber(tile, numbers[static_cast<std::size_t>(tile.date.day)]);
    }
    for (const Tile& tile : tiles) {
      PaintSign(tile);
    }
  }

  std::vector<CalendarDate> DatesOnShow() const {
    std::vector<CalendarDate> dates;
    ForEachMonth([&](int month) {
      const auto ofMonth = DatesOfMonth(m_year.Year(), month);
      dates.insert(dates.end(), ofMonth.begin(), ofMonth.end());
    });
    return dates;
  }

 private:
  template <class Visit>
  void ForEachMonth(Visit visit) const {
    for (int i = 0; i < m_year.MonthsShown(); ++i) {
      visit(m_year.FirstMonth() + i);
    }
  }

  /// The 1st and the Mondays behind it.
  std::vector<CalendarDate> FirstDatesOfWeeks(int month) const {
    std::vector<CalendarDate> dates{{m_year.Year(), month, 1}};
    for (int day = 8 - WeekdayOf(dates.front()); day <= DaysIn(m_year.Year(), month);
         day += daysOfWeek) {
      dates.push_back({m_year.Year(), month, day});
    }
    return dates;
  }

  std::vector<Tile> TilesOf(const std::vector<CalendarDate>& dates) const {
    DateCoats coats(m_look);
    std::vector<Tile> tiles;
    tiles.reserve(dates.size());
    for (const CalendarDate date : dates) {
      tiles.push_back({date, m_year.CellOf(date), coats.Of(date)});
    }
    return tiles;
  }

  void PaintGround(const Tile& tile) {
    Rect area{tile.cell.left, tile.cell.top, tile.cell.right - m_line, tile.cell.bottom - m_line};
    if (tile.date == m_look.focused) {
      m_canvas.Fill(tile.cell, m_style.ink);
      m_canvas.Fill(Inset(tile.cell, m_focusRing), m_style.paper);
      area = Inset(tile.cell, 2 * m_focusRing);
    } else if (Contains(m_look.selected, tile.date) || Contains(m_look.preview, tile.date)) {
      m_canvas.Fill(tile.cell, tile.coat.ring);
      area = Inset(tile.cell, m_ring);
    }
    if (tile.coat.frame) {
      m_canvas.Fill(area, *tile.coat.frame);
      area = Inset(area, m_line);
    }
    m_canvas.Fill(area, tile.coat.ground);
  }

  /// By the widths of the digits: what kerning makes of it can't be seen in the middle of a cell.
  std::vector<Label> NumbersTo(int last, int height) const {
    std::array<int, 10> widths{};
    for (std::size_t digit = 0; digit < widths.size(); ++digit) {
      widths[digit] = m_canvas.TextExtent(std::to_wstring(digit), height).cx;
    }
    std::vector<Label> numbers(1);
    for (int number = 1; number <= last; ++number) {
      const int width = widths[static_cast<std::size_t>(number % 10)];
      const int tens = number < 10 ? 0 : widths[static_cast<std::size_t>(number / 10)];
      numbers.push_back({std::to_wstring(number), tens + width});
    }
    return numbers;
  }

  int SignWidth(const Tile& tile) const { return tile.coat.sign ? m_signHeight * 2 / 3 : 0; }

  /// Today's number is the other way round: the ground's colour on a plate of ink.
  void PaintNumber(const Tile& tile, const Label& number) {
    const int room = tile.cell.Width() - m_ring - SignWidth(tile);
    const Point at{tile.cell.left + std::max(0, room - number.width) / 2,
                   tile.cell.top + (tile.cell.Height() - m_line - m_numberHeight) / 2};
    const bool isToday = tile.date == m_look.today;
    if (isToday) {
      m_canvas.Fill({at.x - m_line, at.y, at.x + number.width + m_line, at.y + m_numberHeight},
                    tile.coat.ink);
    }
    m_canvas.Text(at, number.text, m_numberHeight, isToday ? tile.coat.ground : tile.coat.ink);
  }

  void PaintSign(const Tile& tile) {
    if (tile.coat.sign) {
      m_canvas.Text(
          {tile.cell.right - m_ring - SignWidth(tile), tile.cell.bottom - m_ring - m_signHeight},
          {&tile.coat.sign, 1}, m_signHeight, tile.coat.ink);
    }
  }

  /// The longest start of a text that fits.
  Label Fitted(std::wstring_view text, int height, int room) const {
    int width = m_canvas.TextExtent(text, height).cx;
    while (!text.empty() && width > room) {
      text.remove_suffix(1);
      width = m_canvas.TextExtent(text, height).cx;
    }
    return {std::wstring(text), width};
  }

  void Centre(const Rect& place, const Label& label, int height, Colour ink) {
    if (!label.text.empty()) {
      m_canvas.Text({place.left + (place.Width() - label.width) / 2,
                     place.top + (place.Height() - height) / 2},
                    label.text, height, ink);
    }
  }

  Canvas& m_canvas;
  const YearGeometry& m_year;
  const YearLook& m_look;
  const YearStyle& m_style;
  int m_line;       // breadth, also of the gap between dates
  int m_ring;       // breadth, around a selected date
  int m_focusRing;  // of each of its two colours
  Colour m_faintInk;
  int m_numberHeight;
  int m_smallHeight;  // of weekdays and weeks
  int m_signHeight;
};

}  // namespace

void PaintYear(Canvas& canvas, const YearGeometry& year, const YearLook& look) {
  YearPainter painter(canvas, year, look);
  painter.PaintNames();
  painter.PaintHeads();
  painter.PaintWeeks();
  painter.Paint(painter.DatesOnShow());
}

void PaintDates(Canvas& canvas, const YearGeometry& year, const YearLook& look,
                std::span<const CalendarDate> dates) {
  std::vector<CalendarDate> shown;
  for (const CalendarDate date : dates) {
    if (date.year == year.Year() && year.Shows(date.month)) {
      shown.push_back(date);
      canvas.Fill(year.CellOf(date), look.style.ground);
    }
  }
  YearPainter(canvas, year, look).Paint(shown);
}

}  // namespace qv
