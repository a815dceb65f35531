#pragma once

#include <string>

namespace qvdisc {

/// What the verbs for conditions take as texts, to be turned into values once all of them are known
/// to be good.
struct ConditionTexts {
  std::string condition;
  std::string name;
  std::string expression;
};

}  // namespace qvdisc
