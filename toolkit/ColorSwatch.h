#pragma once

#include <QAbstractButton>

#include "toolkit/Types.h"

namespace qv {

/// A field that shows a colour. A click and the Space key emit `clicked`. Its accessible name is
/// up to the dialog, since a colour has none.
class ColorSwatch : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColorSwatch(QWidget* parent = nullptr);

  /// The colour on show, white at first.
  COLORREF Colour() const { return m_colour; }
  void SetColour(COLORREF colour);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  COLORREF m_colour = 0xFFFFFF;
};

}  // namespace qv
