#pragma once

#include <string>
#include <vector>

#include "conditions/ConditionEvaluation.h"

namespace qvdisc {

/// What became of the conditions that a call tells.
enum class ConditionFate { Listed, Made, Changed, Unchanged, Moved, Removed };

/// A condition as a call leaves it.
struct ToldCondition {
  std::wstring id;
  std::wstring name;
  std::wstring expression;
  int place = 0;  ///< in the list, from 1; 0 if it isn't there any more
  qv::ConditionEvaluation result{};
  std::wstring resultInWords{};
};

/// The conditions that a call listed, made, changed, moved or removed.
struct ToldConditions {
  ConditionFate fate = ConditionFate::Listed;
  std::vector<ToldCondition> conditions{};
};

}  // namespace qvdisc
