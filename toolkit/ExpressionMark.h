#pragma once

#include <QColor>
#include <QInputMethodEvent>
#include <QList>
#include <QPalette>
#include <QString>
#include <vector>

#include "host/QVEvaluator.h"

namespace qv {

/// What an edit shows at a place of its text.
struct ExpressionMark {
  enum class Kind {
    Bracket,  ///< one of a pair: on a tinted ground
    NotKept,  ///< won't be kept: grey and struck out, behind a line across the edit
    Fault,    ///< waves below it; of length 0, below the character before it or else behind it
  };

  ExpressionPlace place{};
  Kind kind = Kind::Fault;

  friend bool operator==(const ExpressionMark&, const ExpressionMark&) = default;
};

/// The colour of faults on the ground of `palette`'s edits.
QColor FaultColour(const QPalette& palette);

/// The marks as formats of a text of Qt, told from its `cursor` on. Places outside the text are
/// cut. Where marks lie on each other, a format has the looks of all of them.
QList<QInputMethodEvent::Attribute> FormatsOf(const std::vector<ExpressionMark>& marks,
                                              const QString& text, int cursor,
                                              const QPalette& palette);

}  // namespace qv
