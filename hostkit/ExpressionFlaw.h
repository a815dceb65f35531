#pragma once

#include <string>
#include <string_view>

#include "host/QVEvaluator.h"
#include "host/QVLoadString.h"

namespace qv {

/// What is wrong with an expression, before it is put into a language.
struct ExpressionFlaw {
  ExpressionPlace place{};
  Text text{};
  std::wstring argument{};  ///< what the text's `%s` is; empty if it has none

  /// The same in words.
  ExpressionFault In(const QVLoadString& texts) const;

  friend bool operator==(const ExpressionFlaw&, const ExpressionFlaw&) = default;
};

/// A piece of an expression as sentences quote it: what would fill a screen is cut.
std::wstring Quoted(std::wstring_view piece);

}  // namespace qv
