#pragma once

#include <QWidget>
#include <functional>

#include "timestructure/TimeGrid.h"

namespace qv {

/// Shows the grid of a slot's times inside a group box. It takes no input: the mouse goes through
/// it to the dialog.
class TimeGridView : public QWidget {
  Q_OBJECT

 public:
  /// Gives the picture to paint; ground and ink of it follow the palette instead.
  using Source = std::function<TimeGrid::Picture()>;

  /// Lies over `box`, which it needs as its parent. `picture` is asked at each paint.
  TimeGridView(QWidget* box, Source picture);

  /// The minute under a place of the box, if there is one.
  std::optional<int> MinuteAt(const QPoint& placeInBox) const;

  /// Takes the place in the box that its size now gives.
  void FitIntoBox();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  TimeGrid Grid() const;

  Source m_picture;
};

}  // namespace qv
