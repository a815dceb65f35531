#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "apps/qvdisc/EvaluatedExpression.h"
#include "apps/qvdisc/ToldConditions.h"
#include "hostkit/Language.h"

/// The conditions that a call tells, and what an expression gave, in both forms of output.
namespace qvdisc {

nlohmann::ordered_json ConditionsAsJson(const ToldConditions& told);
std::vector<std::wstring> ConditionsAsLines(const ToldConditions& told, qv::Language language);

nlohmann::ordered_json EvaluatedAsJson(const EvaluatedExpression& evaluated);
/// The result alone; empty if there is none.
std::wstring EvaluatedAsLine(const EvaluatedExpression& evaluated, qv::Language language);

}  // namespace qvdisc
