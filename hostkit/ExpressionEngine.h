#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "hostkit/ExpressionRules.h"
#include "hostkit/ExpressionTokens.h"

namespace qv {

/// What came out of an expression.
struct ExpressionOutcome {
  /// Something about one of its tokens.
  struct Remark {
    std::size_t token = 0;
    Text text{};
  };

  std::optional<ExpressionOperand> result{};  ///< none if the types don't fit
  std::optional<Remark> typeFlaw{};           ///< then why not
  std::vector<std::size_t> notFinite{};  ///< the tokens that gave no finite result of known ones
};

/// Computes expressions with muparserx, which knows nothing here but the operators, functions and
/// types of `ExpressionRules`. Making one takes much longer than computing with it.
class ExpressionEngine {
 public:
  ExpressionEngine();
  ~ExpressionEngine();

  /// Computes what `SyntaxFlaw` finds nothing wrong with. `values` has one number for each token,
  /// of which those of numbers and variables count; NaN is unknown. Without a result and a flaw, it
  /// couldn't be computed.
  ExpressionOutcome Compute(const ExpressionTokens& tokens, std::span<const double> values);

 private:
  class Parser;
  std::unique_ptr<Parser> m_parser;
};

}  // namespace qv
