#include "apps/qvdisc/ConditionReport.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>

#include "apps/qvdisc/ConditionWords.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;
using qv::ConditionState;

const char* NameOf(ConditionFate fate) {
  constexpr std::array names = {"listed", "made", "changed", "unchanged", "moved", "removed"};
  return names.at(static_cast<std::size_t>(fate));
}

const char* NameOf(ConditionState state) {
  constexpr std::array names = {"missing", "invalid",  "not-logical", "false",
                                "true",    "no-value", "module",      "failed"};
  return names.at(static_cast<std::size_t>(state));
}

Json FaultAsJson(const std::optional<qv::ExpressionFault>& fault) {
  return fault ? Json{{"start", fault->place.start},
                      {"length", fault->place.length},
                      {"words", Utf8(fault->words)}}
               : Json(nullptr);
}

Json ConditionAsJson(const ToldCondition& told, ConditionFate fate) {
  return {{"outcome", NameOf(fate)},
          {"id", Utf8(told.id)},
          {"name", Utf8(told.name)},
          {"expression", Utf8(told.expression)},
          {"place", told.place},
          {"result", NameOf(told.result.state)},
          {"resultInWords", Utf8(told.resultInWords)},
          {"fault", FaultAsJson(told.result.fault)}};
}

/// A listed condition on one line.
std::wstring ListedAsLine(const ToldCondition& told) {
  return std::to_wstring(told.place) + L"  " + told.name + L": " + told.expression + L"  [" +
         told.resultInWords + L"]";
}

/// The condition that is the first to be true, or that none is.
std::wstring FirstAsLine(const ToldConditions& told, qv::Language language) {
  const auto& all = told.conditions;
  const auto first = std::find_if(all.begin(), all.end(), [](const ToldCondition& condition) {
    return condition.result.state == ConditionState::True;
  });
  return first == all.end() ? Words(ConditionWord::NoneIsTrue, language)
                            : Words(ConditionWord::ListedFirst, language, {first->name.c_str()});
}

std::wstring FateAsLine(const ToldCondition& told, ConditionFate fate, qv::Language language) {
  const auto worded = [&](ConditionWord word) {
    return Words(word, language, {told.name.c_str(), told.place});
  };
  switch (fate) {
    case ConditionFate::Made:
      return worded(ConditionWord::Made);
    case ConditionFate::Changed:
      return worded(ConditionWord::Changed);
    case ConditionFate::Moved:
      return worded(ConditionWord::Moved);
    case ConditionFate::Removed:
      return worded(ConditionWord::Removed);
    case ConditionFate::Listed:
    case ConditionFate::Unchanged:
      break;
  }
  return worded(ConditionWord::Unchanged);
}

bool IsLogical(const EvaluatedExpression& evaluated) {
  return evaluated.type == QVEvaluator::TypeLogical;
}

/// The shortest text that is read as this number again.
std::wstring ExactNumberText(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

Json ValueAsJson(const EvaluatedExpression& evaluated) {
  if (!evaluated.value) {
    return nullptr;
  }
  return IsLogical(evaluated) ? Json(*evaluated.value != 0) : Json(*evaluated.value);
}

}  // namespace

Json ConditionsAsJson(const ToldConditions& told) {
  Json conditions = Json::array();
  for (const ToldCondition& condition : told.conditions) {
    conditions.push_back(ConditionAsJson(condition, told.fate));
  }
  return conditions;
}

std::vector<std::wstring> ConditionsAsLines(const ToldConditions& told, qv::Language language) {
  std::vector<std::wstring> lines;
  for (const ToldCondition& condition : told.conditions) {
    lines.push_back(told.fate == ConditionFate::Listed
                        ? ListedAsLine(condition)
                        : FateAsLine(condition, told.fate, language));
  }
  if (told.fate == ConditionFate::Listed && !lines.empty()) {
    lines.push_back(FirstAsLine(told, language));
  }
  return lines;
}

Json EvaluatedAsJson(const EvaluatedExpression& evaluated) {
  const auto type = [&]() -> Json {
    return evaluated.type ? Json(IsLogical(evaluated) ? "logical" : "number") : Json(nullptr);
  };
  return {{"expression", Utf8(evaluated.expression)},
          {"code", evaluated.code ? Json(*evaluated.code) : Json(nullptr)},
          {"type", type()},
          {"value", ValueAsJson(evaluated)},
          {"fault", FaultAsJson(evaluated.fault)}};
}

std::wstring EvaluatedAsLine(const EvaluatedExpression& evaluated, qv::Language language) {
  if (!evaluated.value) {
    return {};
  }
  if (IsLogical(evaluated)) {
    return Words(*evaluated.value != 0 ? ConditionWord::True : ConditionWord::False, language);
  }
  return ExactNumberText(*evaluated.value);
}

}  // namespace qvdisc
