#include "calendar/LegendPicture.h"

#include <algorithm>
#include <string>

#include "calendar/Contrast.h"
#include "calendar/Mixed.h"

namespace qv {
namespace {

/// In heights of a line: what an entry needs at least, and the field of its colour.
constexpr int leastEntry = 8;
constexpr double swatchWidth = 1.25;

/// The text, or as much of it as fits with three dots behind it.
std::wstring Elided(const Canvas& canvas, std::wstring_view text, int height, int width) {
  if (canvas.TextExtent(text, height).cx <= width) {
    return std::wstring(text);
  }
  std::wstring shown(text);
  do {
    shown.pop_back();
  } while (!shown.empty() && canvas.TextExtent(shown + L"…", height).cx > width);
  return shown + L"…";
}

class LegendPainter {
 public:
  LegendPainter(Canvas& canvas, const LegendStyle& style, int lineHeight)
      : m_canvas(canvas),
        m_style(style),
        m_line(style.density.LineBreadth()),
        m_textHeight(lineHeight * 4 / 5) {}

  void Paint(const Rect& place, const LegendEntry& entry, bool isChosen) {
    const int swatch = static_cast<int>(place.Height() * swatchWidth);
    const Rect field{place.left, place.top, place.left + swatch, place.bottom - 2 * m_line};
    PaintField(field, entry, isChosen);
    PaintWords({field.right + 3 * m_line, field.top, place.right - 3 * m_line, field.bottom},
               entry);
  }

 private:
  void PaintField(const Rect& field, const LegendEntry& entry, bool isChosen) {
    const bool isEraser = entry.brush.IsEraser();
    const Colour colour = isEraser ? m_style.paper : entry.brush.colour;
    m_canvas.Fill(field, isChosen ? m_style.ink : Mixed(m_style.ground, m_style.ink, 35));
    const int frame = isChosen ? 2 * m_line : m_line;
    m_canvas.Fill(
        {field.left + frame, field.top + frame, field.right - frame, field.bottom - frame}, colour);
    if (entry.sign) {
      const std::wstring_view sign(&entry.sign, 1);
      const int width = m_canvas.TextExtent(sign, m_textHeight).cx;
      m_canvas.Text({field.left + (field.Width() - width) / 2, TextTop(field)}, sign, m_textHeight,
                    LegibleInkOn(colour));
    }
  }

  void PaintWords(const Rect& room, const LegendEntry& entry) {
    const std::wstring days = std::to_wstring(entry.days);
    const int gap = m_textHeight / 2;
    const int daysWidth = m_canvas.TextExtent(days, m_textHeight).cx;
    const QVWideString& name = entry.brush.IsEraser() ? m_style.withoutType : entry.brush.text;
    const std::wstring shown =
        Elided(m_canvas, name.ToView(), m_textHeight, room.Width() - gap - daysWidth);
    m_canvas.Text({room.left, TextTop(room)}, shown, m_textHeight, m_style.ink);
    const int width = m_canvas.TextExtent(shown, m_textHeight).cx;
    m_canvas.Text({room.left + width + gap, TextTop(room)}, days, m_textHeight,
                  Mixed(m_style.ink, m_style.ground, 35));
  }

  int TextTop(const Rect& room) const { return room.top + (room.Height() - m_textHeight) / 2; }

  Canvas& m_canvas;
  const LegendStyle& m_style;
  int m_line;  // breadth
  int m_textHeight;
};

}  // namespace

LegendGeometry::LegendGeometry(int width, int lineHeight, std::size_t entries)
    : m_lineHeight(std::max(1, lineHeight)), m_entries(static_cast<int>(entries)) {
  const int most = std::max(1, width / (leastEntry * m_lineHeight));
  const int rows = (m_entries + most - 1) / most;
  // Rows of equal length look calmer than a full one above a few that are left.
  m_columns = rows == 0 ? 1 : (m_entries + rows - 1) / rows;
  m_entryWidth = std::max(0, width) / m_columns;
}

int LegendGeometry::Height() const {
  return (m_entries + m_columns - 1) / m_columns * m_lineHeight;
}

Rect LegendGeometry::PlaceOf(std::size_t entry) const {
  const int index = static_cast<int>(entry);
  const int left = index % m_columns * m_entryWidth;
  const int top = index / m_columns * m_lineHeight;
  return {left, top, left + m_entryWidth, top + m_lineHeight};
}

std::optional<std::size_t> LegendGeometry::EntryAt(Point place) const {
  if (place.x < 0 || place.y < 0 || place.x >= m_columns * m_entryWidth) {
    return std::nullopt;
  }
  const int index = place.y / m_lineHeight * m_columns + place.x / m_entryWidth;
  return index < m_entries ? std::optional(static_cast<std::size_t>(index)) : std::nullopt;
}

void PaintLegend(Canvas& canvas, const LegendGeometry& geometry,
                 std::span<const LegendEntry> legend, const LegendStyle& style) {
  LegendPainter painter(canvas, style, geometry.LineHeight());
  for (std::size_t i = 0; i < legend.size(); ++i) {
    painter.Paint(geometry.PlaceOf(i), legend[i], style.chosen == i);
  }
}

}  // namespace qv
