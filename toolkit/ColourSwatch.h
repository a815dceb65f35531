#pragma once

#include <QAbstractButton>

#include "tools/Colour.h"

namespace qv {

/// A field that shows a colour. A click and the Space key emit `clicked`. Its accessible name is
/// up to the dialog, since a colour has none.
class ColourSwatch : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  /// The colour on show, white at first.
  Colour ShownColour() const { return m_colour; }
  void SetColour(Colour colour);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour m_colour = 0xFFFFFF;
};

}  // namespace qv
