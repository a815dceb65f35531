#include "toolkit/AskColour.h"

#include <QColorDialog>

#include "toolkit/PaintBox.h"

namespace qv {

std::optional<COLORREF> AskColour(QWidget* parent, COLORREF colour, const QString& title) {
  const QColor chosen = QColorDialog::getColor(ColourOf(colour), parent, title);
  return chosen.isValid() ? std::optional(NumberOf(chosen)) : std::nullopt;
}

}  // namespace qv
