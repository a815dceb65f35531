#pragma once

#include <string>

#include "conditions/ConditionEvaluation.h"
#include "host/QVLoadString.h"

/// What is told of an expression that was evaluated as a condition.
namespace qv {

/// What stands behind the caption of an expression while it is typed: " (" and ")" with the reason
/// between them why it is no condition, or can't be evaluated here. Empty if there is none.
std::wstring CaptionAddition(const ConditionEvaluation& evaluation, const QVLoadString& loadString);

/// The present result, or else the reason why there is none, in a few words; empty if the language
/// lacks them.
std::wstring PresentResult(const ConditionEvaluation& evaluation, const QVLoadString& loadString);

/// The same, with a result in a sentence that says that it is the present one.
std::wstring PresentResultTold(const ConditionEvaluation& evaluation,
                               const QVLoadString& loadString);

}  // namespace qv
