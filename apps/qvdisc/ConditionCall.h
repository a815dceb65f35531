#pragma once

#include <optional>
#include <string>

namespace qvdisc {

/// What a call does with the conditions of a discriminator.
enum class ConditionAction { List, Add, Modify, Remove, Up, Down };

/// What a call asks for of conditions; nothing where something stays as it is.
struct ConditionCall {
  ConditionAction action = ConditionAction::List;
  std::wstring condition;  ///< which one, by name or id, or what a new one is called
  std::optional<std::wstring> name;
  std::optional<std::wstring> expression;

  friend bool operator==(const ConditionCall&, const ConditionCall&) = default;
};

}  // namespace qvdisc
