#pragma once

#include <string>
#include <string_view>

#include "host/QVEvaluator.h"
#include "hostkit/ExpressionVocabulary.h"

namespace qv {

/// What is to be written into an expression so that something stands at a place of it.
struct ExpressionInsertion {
  std::wstring text{};
  int cursor = 0;  ///< where one goes on writing, from the start of `text`

  friend bool operator==(const ExpressionInsertion&, const ExpressionInsertion&) = default;
};

/// What to write in place of `replaced` so that the value `written`, such as a variable's name,
/// stands there: blanks keep it apart from its neighbours.
ExpressionInsertion InsertedValue(std::wstring_view expression, ExpressionPlace replaced,
                                  std::wstring_view written);

/// The same for an operator, a constant or a function. A function takes what it replaces as its
/// first argument, and the rest of its arguments are left open.
ExpressionInsertion InsertedWord(std::wstring_view expression, ExpressionPlace replaced,
                                 const ExpressionWord& word);

}  // namespace qv
