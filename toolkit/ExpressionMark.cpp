#include "toolkit/ExpressionMark.h"

#include <QTextCharFormat>
#include <algorithm>

#include "toolkit/WidePlaces.h"

namespace qv {
namespace {

constexpr int mediumLightness = 128;
constexpr int bracketTint = 90;  ///< of the selection's colour, from 0 to 255

struct Span {
  int start;
  int end;
};

/// A mark's place in units of Qt, never empty unless the text is.
Span SpanOf(const ExpressionMark& mark, const QString& text) {
  const int start = std::max(mark.place.start, 0);
  Span span{ToQtPlace(text, start),
            ToQtPlace(text, start + std::min(mark.place.length, WideLength(text)))};
  if (mark.kind == ExpressionMark::Kind::Fault && span.start == span.end) {
    const int before = ToQtPlace(text, ToWidePlace(text, span.start) - 1);
    span = before < span.start ? Span{before, span.start} : Span{0, ToQtPlace(text, 1)};
  }
  return span;
}

void AddLook(QTextCharFormat& format, ExpressionMark::Kind kind, const QPalette& palette) {
  switch (kind) {
    case ExpressionMark::Kind::Bracket: {
      QColor tint = palette.color(QPalette::Highlight);
      tint.setAlpha(bracketTint);
      format.setBackground(tint);
      break;
    }
    case ExpressionMark::Kind::NotKept:
      format.setForeground(palette.color(QPalette::PlaceholderText));
      format.setFontStrikeOut(true);
      break;
    case ExpressionMark::Kind::Fault:
      format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
      format.setUnderlineColor(FaultColour(palette));
      break;
  }
}

/// The places at which a mark begins or ends, in order: between two of them the looks are equal.
std::vector<int> BordersOf(const std::vector<ExpressionMark>& marks, const QString& text) {
  std::vector<int> borders;
  for (const auto& mark : marks) {
    const Span span = SpanOf(mark, text);
    borders.push_back(span.start);
    borders.push_back(span.end);
  }
  std::ranges::sort(borders);
  borders.erase(std::unique(borders.begin(), borders.end()), borders.end());
  return borders;
}

/// How the marks show what stands at `place`.
QTextCharFormat FormatAt(int place, const std::vector<ExpressionMark>& marks, const QString& text,
                         const QPalette& palette) {
  QTextCharFormat format;
  for (const auto& mark : marks) {
    const Span span = SpanOf(mark, text);
    if (span.start <= place && place < span.end) {
      AddLook(format, mark.kind, palette);
    }
  }
  return format;
}

}  // namespace

QColor FaultColour(const QPalette& palette) {
  const bool isDark = palette.color(QPalette::Base).lightness() < mediumLightness;
  return isDark ? QColor(0xFF, 0x7B, 0x72) : QColor(0xC8, 0x1E, 0x1E);
}

QList<QInputMethodEvent::Attribute> FormatsOf(const std::vector<ExpressionMark>& marks,
                                              const QString& text, int cursor,
                                              const QPalette& palette) {
  QList<QInputMethodEvent::Attribute> formats;
  const std::vector<int> borders = BordersOf(marks, text);
  for (std::size_t i = 1; i < borders.size(); ++i) {
    const int start = borders[i - 1];
    const QTextCharFormat format = FormatAt(start, marks, text, palette);
    if (!format.isEmpty()) {
      formats.append({QInputMethodEvent::TextFormat, start - cursor, borders[i] - start, format});
    }
  }
  return formats;
}

}  // namespace qv
