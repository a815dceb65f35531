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

  /// Shows this picture, but for ground and ink, which follow the palette.
  void SetPicture(TimeGrid::Picture picture);

  /// Takes the place in the box that its size now gives.
  void FitIntoBox();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  TimeGrid Grid() const;

  TimeGrid::Picture m_picture;
};

}  // namespace qv
