#pragma once

#include <cstddef>
#include <string_view>

#include "host/QVEvaluator.h"
#include "hostkit/ExpressionContext.h"
#include "hostkit/VariableFilter.h"

namespace qv {

/// Proposes how an expression may be written on.
class ExpressionProposer {
 public:
  /// The most that are proposed at once.
  static constexpr std::size_t mostProposals = 200;

  /// `context` is to outlive this object.
  ExpressionProposer(const ExpressionContext& context, const VariableFilter& filter)
      : m_context(context), m_filter(filter) {}

  /// What the word up to the cursor may become: a device's variables behind its dot, else devices,
  /// functions and words; first what begins as it does, then what has it inside, letters in either
  /// case. Nothing within a number. `tokens` are those of `expression`.
  ExpressionProposals At(std::wstring_view expression, const ExpressionTokens& tokens,
                         int cursor) const;

 private:
  const ExpressionContext& m_context;
  VariableFilter m_filter;
};

}  // namespace qv
