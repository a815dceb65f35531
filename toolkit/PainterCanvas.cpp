#include "toolkit/PainterCanvas.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>

#include "toolkit/PaintBox.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

QFont FontOfPixels(int pixels) {
  QFont font;
  // Pictures are measured for a narrow face; a broad one would not fit beside a dial.
  font.setFamilies(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")} +
                   QGuiApplication::font().families());
  font.setStyleHint(QFont::SansSerif);
  font.setWeight(QFont::Normal);
  font.setStyle(QFont::StyleNormal);
  font.setPixelSize(pixels);
  return font;
}

int HeightOf(const QFontMetrics& metrics) { return metrics.ascent() + metrics.descent(); }

/// The largest font that is at most `height` high. Its size in pixels is less than its height.
QFont FontOfHeight(int height) {
  for (int pixels = height; pixels > 1; --pixels) {
    const QFont font = FontOfPixels(pixels);
    if (HeightOf(QFontMetrics(font)) <= height) {
      return font;
    }
  }
  return FontOfPixels(1);
}

/// `area` without an outline of one dot.
Rect Inside(const Rect& area) {
  return {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1};
}

bool IsLevel(Point from, Point to) { return std::abs(to.x - from.x) > std::abs(to.y - from.y); }

/// The last dot of a line that ends before `to`. It lies on the line itself, so that the slope
/// stays.
QPointF LastDot(Point from, Point to) {
  const double dots = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
  const QPointF way(to.x - from.x, to.y - from.y);
  return QPointF(from.x, from.y) + way * ((dots - 1) / dots);
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, int lineBreadth)
    : m_painter(painter), m_lineBreadth(lineBreadth) {
  m_painter.save();
  m_painter.setRenderHint(QPainter::Antialiasing, false);
}

PainterCanvas::~PainterCanvas() { m_painter.restore(); }

void PainterCanvas::Fill(const Rect& area, Colour brush) {
  if (!area.IsEmpty()) {
    m_painter.fillRect(area.left, area.top, area.Width(), area.Height(), ToQColor(brush));
  }
}

void PainterCanvas::Rectangle(const Rect& area, Colour pen, Colour brush) {
  Fill(area, pen);
  Fill(Inside(area), brush);
}

void PainterCanvas::Ellipse(const Rect& area, Colour pen, Colour brush) {
  if (area.Width() < 2 || area.Height() < 2) {
    Fill(area, pen);
    return;
  }
  m_painter.setPen(QPen(ToQColor(pen), 1));
  m_painter.setBrush(ToQColor(brush));
  // The painter's ellipse reaches one dot further than the size that it is given.
  m_painter.drawEllipse(area.left, area.top, area.Width() - 1, area.Height() - 1);
}

void PainterCanvas::Polygon(std::span<const Point> points, Colour pen, Colour brush) {
  QPolygon polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const Point point : points) {
    polygon.append(QPoint(point.x, point.y));
  }
  m_painter.setPen(QPen(ToQColor(pen), 1));
  m_painter.setBrush(ToQColor(brush));
  m_painter.drawPolygon(polygon);
}

void PainterCanvas::Line(Point from, Point to, Colour pen) {
  if (from == to) {
    return;
  }
  const QLineF line(QPointF(from.x, from.y), LastDot(from, to));
  m_painter.setPen(QPen(ToQColor(pen), 1));
  for (int beside = 0; beside < m_lineBreadth; ++beside) {
    m_painter.drawLine(IsLevel(from, to) ? line.translated(0, beside) : line.translated(beside, 0));
  }
}

void PainterCanvas::Text(Point at, std::wstring_view text, int height, Colour colour) {
  const Face& face = FaceOf(height);
  const int baseline = (height - HeightOf(face.metrics)) / 2 + face.metrics.ascent();
  m_painter.setPen(ToQColor(colour));
  m_painter.drawText(QPoint(at.x, at.y + baseline), ToQString(text));
}

Extent PainterCanvas::TextExtent(std::wstring_view text, int height) const {
  return {FaceOf(height).metrics.horizontalAdvance(ToQString(text)), height};
}

const PainterCanvas::Face& PainterCanvas::FaceOf(int height) const {
  if (!m_face || m_face->height != height) {
    const QFont font = FontOfHeight(height);
    m_face = Face{height, font, QFontMetrics(font)};
    m_painter.setFont(font);
  }
  return *m_face;
}

}  // namespace qv
