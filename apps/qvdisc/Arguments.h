#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ConditionCall.h"
#include "apps/qvdisc/MarkCall.h"
#include "apps/qvdisc/TypeCall.h"
#include "hostkit/Language.h"

namespace qvdisc {

enum class Verb {
  List,
  Show,
  Index,
  Copy,
  Paste,
  Add,
  Modify,
  HourType,
  DayType,
  Condition,
  Mark,
  Unmark,
  Remove,
  Check,
  Eval,
  Names
};

/// What is to become of the fields of a discriminator; nothing where a field stays as it is.
struct FieldChanges {
  std::optional<std::wstring> name;
  std::optional<std::wstring> description;
  std::optional<bool> slots;  ///< whether the type is time slots, or else conditions
  std::optional<bool> setZeroOutsideSlot;

  friend bool operator==(const FieldChanges&, const FieldChanges&) = default;
};

/// What the command line asks for.
struct Arguments {
  Verb verb = Verb::List;
  std::string verbName;
  std::wstring installation;             ///< an existing directory
  std::optional<qv::Language> language;  ///< nothing for that of the user's system
  bool json = false;
  std::optional<bool> answer;       ///< to every question; nothing asks the user
  bool dryRun = false;              ///< whether nothing is written
  bool strict = false;              ///< whether notes count for the exit status of a check
  std::vector<std::wstring> stems;  ///< which discriminators, as the user calls them
  FieldChanges changes;
  TypeCall type;
  MarkCall mark;
  ConditionCall condition;
  std::wstring expression;  ///< to be evaluated
};

/// Reads the command line, of which the first is the program's name. A call that can't be carried
/// out gives the status 2 and the reason in words. Arguments may hold any bytes. Help is given in
/// the language of the call, or else in that of the user's system.
[[nodiscard]] std::variant<Arguments, commandline::EarlyEnd> ReadArguments(
    int count, const char* const* arguments, qv::Language system = qv::Language::English);

/// The one line that the program puts on standard error for `reason`, which may hold any bytes.
std::string ErrorLine(std::string_view reason);

}  // namespace qvdisc
