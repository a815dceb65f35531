#pragma once

#include <optional>

#include "host/QVEvaluator.h"
#include "host/Text.h"

namespace qv {

/// The codes that `Evaluate` gives here. If several hold, it is the one that stands first here; of
/// the flaws in the form of an expression, brackets too deep among them, and of its wrong names the
/// first one decides. `type` is set from `Unreadable` on.
enum class ExpressionCode {
  TooLarge = 9,  ///< too long, or brackets too deep in each other
  NotWellFormed = 2,
  DiscriminatorOff = 6,  ///< a discriminator's variable, while these are disabled
  UnknownDevice = 3,
  UnknownVariable = 4,  ///< the device is known
  ClassMissing = 5,     ///< a variable that isn't of the classes asked for
  TypesMixed = 7,       ///< a truth value where a number has to be, or the reverse
  Unreadable = QVEvaluator::CodeUnreadable,  ///< a variable belongs to a module
  NoValue = QVEvaluator::CodeNoValue,        ///< a variable has no value at the moment
  NotFinite = 8,  ///< no finite result, or one that depends on such; with variables it is `NoValue`
  Evaluated = QVEvaluator::CodeEvaluated,
};

/// The text that words a code; nothing for `Evaluated` and for what is no code.
std::optional<Text> WordingOf(int code);

/// What `Evaluate` gives for `type`.
enum class ExpressionType { Truth = QVEvaluator::TypeLogical, Number = 2 };

}  // namespace qv
