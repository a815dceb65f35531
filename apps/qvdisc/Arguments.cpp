#include "apps/qvdisc/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <optional>
#include <utility>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/CallDescription.h"
#include "apps/qvdisc/CallOptions.h"
#include "apps/qvdisc/ConditionArguments.h"
#include "apps/qvdisc/MarkArguments.h"
#include "apps/qvdisc/TypeArguments.h"
#include "apps/qvdisc/Words.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

constexpr const char* program = "qvdisc";

/// The environment variable that stands in for --installation.
constexpr const char* installationVariable = "QVDISC_INSTALLATION";

/// Whether the option has the first of its two values; nothing if it isn't given.
std::optional<bool> IsFirst(const std::string& text, const char* first) {
  return text.empty() ? std::nullopt : std::optional(text == first);
}

/// The installation that the call names, else the environment, else the one whose directory this
/// is. The parser would let the environment win over the call, since each verb has the option.
std::wstring Installation(const std::string& named) {
  if (!named.empty()) {
    return qv::FromUtf8(named);
  }
  const char* set = std::getenv(installationVariable);
  if (set && *set) {
    if (const std::string fault = NoDirectory(set); !fault.empty()) {
      commandline::Refuse(std::string(installationVariable) + ": " + fault);
    }
    return qv::FromUtf8(set);
  }
  std::error_code error;
  if (!std::filesystem::exists("configuration.xml", error)) {
    commandline::Refuse(std::string("No installation is named: give --installation DIR, set ") +
                        installationVariable + ", or work in the directory of one");
  }
  return L".";
}

Arguments ReadTexts(const CLI::App& app, const OptionTexts& texts) {
  const CLI::App& verb = *app.get_subcommands().front();
  Arguments arguments;
  arguments.verb = VerbNamed(verb.get_name());
  arguments.verbName = verb.get_name();
  arguments.installation = Installation(texts.installation);
  arguments.language = qv::LanguageOf(texts.language);
  arguments.json = texts.json;
  arguments.dryRun = texts.dryRun;
  if (texts.yes || texts.no || texts.dryRun) {
    arguments.answer = !texts.no;
  }
  arguments.strict = texts.strict;
  std::transform(texts.stems.begin(), texts.stems.end(), std::back_inserter(arguments.stems),
                 [](const std::string& stem) { return qv::FromUtf8(stem); });
  arguments.changes = {Given(verb, "--name", texts.name),
                       Given(verb, "--description", texts.description),
                       IsFirst(texts.type, "SLOTS"), IsFirst(texts.zero, "yes")};
  if (const auto actions = verb.get_subcommands(); !actions.empty()) {
    arguments.verbName += " " + actions.front()->get_name();
    if (arguments.verb == Verb::Condition) {
      arguments.condition = ReadConditionCall(*actions.front(), texts.conditions);
    } else {
      arguments.type = ReadTypeCall(*actions.front(), texts.types);
    }
  }
  if (arguments.verb == Verb::Mark || arguments.verb == Verb::Unmark) {
    arguments.mark = ReadMarkCall(verb, texts.marks);
  }
  if (arguments.verb == Verb::Eval) {
    arguments.expression = qv::FromUtf8(texts.conditions.expression);
  }
  return arguments;
}

/// The language that the call asks for, which the help needs before the call is read; that of
/// `system` if the call names none.
qv::Language LanguageOfCall(int count, const char* const* arguments, qv::Language system) {
  constexpr std::string_view option = "--language";
  qv::Language language = system;
  for (int i = 1; i < count; ++i) {
    const std::string_view argument = arguments[i];
    if (argument == option && i + 1 < count) {
      language = qv::LanguageOf(arguments[i + 1]).value_or(language);
    } else if (argument.starts_with(option) && argument.substr(option.size()).starts_with('=')) {
      language = qv::LanguageOf(argument.substr(option.size() + 1)).value_or(language);
    }
  }
  return language;
}

}  // namespace

std::variant<Arguments, commandline::EarlyEnd> ReadArguments(int count,
                                                             const char* const* arguments,
                                                             qv::Language system) {
  CLI::App app("", program);
  OptionTexts texts;
  Describe(app, texts, LanguageOfCall(count, arguments, system));
  Arguments read;
  app.callback([&] { read = ReadTexts(app, texts); });
  if (auto end = commandline::Read(app, count, arguments, ErrorLine)) {
    return *std::move(end);
  }
  return read;
}

std::string ErrorLine(std::string_view reason) {
  return commandline::ErrorLine(program, Utf8(OneLine(qv::FromUtf8(reason))));
}

}  // namespace qvdisc
