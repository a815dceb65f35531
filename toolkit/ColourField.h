#pragma once

#include <QWidget>

#include "tools/Colour.h"

namespace qv {

/// A field that shows a colour, and in its tooltip and accessible description the colour's value,
/// as in "#FF8000". It takes no input.
class ColourField : public QWidget {
  Q_OBJECT

 public:
  explicit ColourField(QWidget* parent = nullptr);

  /// The colour on show, white at first.
  Colour ShownColour() const { return m_colour; }
  void SetColour(Colour colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour m_colour = 0xFFFFFF;
};

/// Fills all of `field`, which is being painted, with a colour inside a frame of this breadth.
void PaintField(QWidget& field, Colour colour, const QColor& frame, int breadth);

/// The pale frame of a field that hasn't the focus.
QColor FaintFrame(const QWidget& field);

/// Tells the value of a field's colour in its tooltip and accessible description.
void DescribeColour(QWidget& field, Colour colour);

}  // namespace qv
