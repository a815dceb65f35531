#pragma once

#include <QWidget>
#include <vector>

#include "calendar/LegendPicture.h"

namespace qv {

/// What the colours of a year mean: each day type with the number of its days, and the days without
/// one. A click on an entry chooses its brush.
class LegendView : public QWidget {
  Q_OBJECT

 public:
  explicit LegendView(QWidget* parent);

  /// Shows these entries, the last of which is the eraser's; `brush` is the one that marks.
  void Show(std::vector<LegendEntry> legend, const Brush& brush);

  /// The height that the entries take at a width, in pixels.
  int HeightFor(int width) const;
  /// Where an entry stands, in pixels.
  QRect PlaceOf(std::size_t entry) const;

 signals:
  /// The user chose an entry: its row, or -1 for the eraser.
  void BrushWanted(int row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Density ScreenDensity() const { return {devicePixelRatioF()}; }
  LegendGeometry GeometryFor(int dots, Density density) const;
  std::optional<std::size_t> EntryAt(const QPointF& place) const;
  LegendStyle StyleFor(Density density) const;
  QString WordsOf(const LegendEntry& entry) const;

  std::vector<LegendEntry> m_legend;
  std::optional<std::size_t> m_chosen;
};

}  // namespace qv
