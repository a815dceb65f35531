#include "toolkit/AskColour.h"

#include <QColorDialog>

#include "toolkit/PaintBox.h"

namespace qv {

std::optional<Colour> AskColour(QWidget* parent, Colour colour, const QString& title) {
  const QColor chosen = QColorDialog::getColor(ToQColor(colour), parent, title);
  return chosen.isValid() ? std::optional(FromQColor(chosen)) : std::nullopt;
}

}  // namespace qv
