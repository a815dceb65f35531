#pragma once

#include <string>

#include "host/QVEvaluator.h"
#include "host/QVLoadString.h"
#include "tools/Format.h"

namespace qv {

/// What is wrong with an expression, before it is put into a language.
struct ExpressionFlaw {
  ExpressionPlace place{};
  Text text{};
  std::wstring argument{};  ///< what the text's `%s` is; empty if it has none

  /// The same in words.
  ExpressionFault In(const QVLoadString& texts) const {
    return {place, Format(texts.Load(text).ToView(), {std::wstring_view(argument)})};
  }

  friend bool operator==(const ExpressionFlaw&, const ExpressionFlaw&) = default;
};

}  // namespace qv
