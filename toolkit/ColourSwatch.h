#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "tools/Colour.h"

namespace qv {

/// A field that shows a colour, and in tooltip and description its value, as in "#FF8000". A click,
/// also on its label, and the Space key emit `clicked`. Its accessible name is up to the dialog,
/// since a colour has none.
class ColourSwatch : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  /// The colour on show, white at first.
  Colour ShownColour() const { return m_colour; }
  void SetColour(Colour colour);

  /// Lets a click on `label`, which dies with the window of the swatch, be one on the swatch.
  void TakeLabel(QLabel* label);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Colour m_colour = 0xFFFFFF;
};

}  // namespace qv
