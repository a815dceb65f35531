#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <optional>

#include "tools/Canvas.h"

namespace qv {

/// A canvas on a painter, which draws nothing smoothed but letters.
class PainterCanvas : public Canvas {
 public:
  /// Draws with `painter`, which must be active as long as this object lives and is then as it was
  /// before. Its units have to be the dots of its device. Lines are so many of them broad.
  explicit PainterCanvas(QPainter& painter, int lineBreadth = 1);
  ~PainterCanvas() override;

  void Fill(const Rect& area, Colour brush) override;
  void Rectangle(const Rect& area, Colour pen, Colour brush) override;
  void Ellipse(const Rect& area, Colour pen, Colour brush) override;
  void Polygon(std::span<const Point> points, Colour pen, Colour brush) override;
  void Line(Point from, Point to, Colour pen) override;

  /// A text in the application's face. Where it has no size that is exactly `height` high, the
  /// largest that fits stands in the middle of that height.
  void Text(Point at, std::wstring_view text, int height, Colour colour) override;
  Extent TextExtent(std::wstring_view text, int height) const override;

 private:
  struct Face {
    int height;  ///< that it was asked for
    QFont font;
    QFontMetrics metrics;
  };

  const Face& FaceOf(int height) const;

  QPainter& m_painter;
  int m_lineBreadth;
  /// The one that was used last, since texts of one height follow each other. The painter has its
  /// font: to set one takes a painter longer than a short text.
  mutable std::optional<Face> m_face;
};

}  // namespace qv
