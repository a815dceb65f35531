#pragma once

#include <QWidget>

#include "timestructure/TimeGrid.h"

namespace qv {

/// Shows the grid of a slot's times inside a group box. It takes no input: the mouse goes through
/// it to the dialog.
class TimeGridView : public QWidget {
  Q_OBJECT

 public:
  /// Lies over `box`, which it needs as its parent.
  explicit TimeGridView(QWidget* box);

  /// The minute under a place of the box, if there is one.
  std::optional<int> MinuteAt(const QPoint& placeInBox) const;

  /// Shows the selection in its colour on the colour of the day. Ground, labels and lines follow
  /// the palette.
  void Show(std::optional<MinuteRange> selection, Canvas::Colour selectionColour,
            Canvas::Colour dayColour);

  /// Takes the place in the box that its size now gives.
  void FitIntoBox();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  TimeGrid Grid() const;

  TimeGrid::Picture m_picture;
};

}  // namespace qv
