#include "apps/commandline/CommandLine.h"

#include <CLI/CLI.hpp>
#include <utility>

#include "hostkit/Language.h"
#include "tools/Utf8.h"

namespace commandline {
namespace {

/// What the reading of the command line is broken off with to print a text instead.
struct Page {
  std::string text;
};

/// Where several values may stand the parser takes "[a,b]" for two. This character in front keeps
/// it from doing so.
constexpr char guard = '\x1f';

bool NeedsGuard(char first) { return first == '[' || first == guard; }

std::string Guarded(const std::string& argument) {
  return !argument.empty() && NeedsGuard(argument[0]) ? guard + argument : argument;
}

std::string Unguarded(const std::string& text) {
  return !text.empty() && text[0] == guard ? text.substr(1) : text;
}

/// The words of the parser, which may quote a guarded argument at any place.
std::string WithoutGuards(const std::string& words) {
  std::string plain;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const bool isGuard = words[i] == guard && i + 1 < words.size() && NeedsGuard(words[i + 1]);
    plain += words[isGuard ? ++i : i];
  }
  return plain;
}

/// Whether an option is given an empty value, as in "--name=". The parser would take the next
/// argument for it.
bool HasEmptyValue(const std::string& argument) {
  return argument.starts_with("--") && argument.find('=') == argument.size() - 1;
}

/// The arguments in the order in which the parser takes them: from the last to the first, without
/// the program's name.
std::vector<std::string> GuardedArguments(int count, const char* const* arguments) {
  std::vector<std::string> guarded;
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    if (HasEmptyValue(argument)) {
      guarded.push_back(argument.substr(0, argument.size() - 1));
      guarded.emplace_back(1, guard);
    } else {
      guarded.push_back(Guarded(argument));
    }
  }
  std::reverse(guarded.begin(), guarded.end());
  return guarded;
}

/// Takes the guards away before any check sees the values.
CLI::Option* Unguard(CLI::Option* option) {
  const auto unguard = [](std::string& value) {
    value = Unguarded(value);
    return std::string();
  };
  return option->transform(CLI::Validator(unguard, ""));
}

}  // namespace

std::optional<EarlyEnd> Read(CLI::App& app, int count, const char* const* arguments,
                             std::string (*errorLine)(std::string_view reason)) {
  try {
    app.parse(GuardedArguments(count, arguments));
    return std::nullopt;
  } catch (const Page& page) {
    return EarlyEnd{.status = 0, .output = page.text, .error = {}};
  } catch (const CLI::CallForHelp&) {
    return EarlyEnd{.status = 0, .output = app.help(), .error = {}};
  } catch (const CLI::ParseError& error) {
    return EarlyEnd{
        .status = badCall,
        .output = {},
        .error = errorLine(WithoutGuards(error.what())) + "Try " + app.get_name() + " --help.\n"};
  }
}

void Refuse(const std::string& reason) { throw CLI::ValidationError(reason); }

std::string ErrorLine(std::string_view program, std::string_view reason) {
  return std::string(program) + ": " + std::string(reason) + "\n";
}

void AddHelp(CLI::App& app, const std::string& description) {
  app.set_help_flag("-h,--help", description);
}

void AddPage(CLI::App& app, const std::string& flag, std::function<std::string()> text,
             const std::string& description) {
  const auto print = [text = std::move(text)] { throw Page{text()}; };
  app.add_flag_callback(flag, print, description);
}

void AddVersion(CLI::App& app, const std::string& version, const std::string& description) {
  AddPage(
      app, "--version", [&app, version] { return app.get_name() + " " + version + "\n"; },
      description);
}

CLI::Option* AddText(CLI::App& app, const std::string& name, std::string& value,
                     const std::string& description) {
  return Unguard(app.add_option(name, value, description));
}

CLI::Option* AddTexts(CLI::App& app, const std::string& name, std::vector<std::string>& values,
                      const std::string& description) {
  return Unguard(app.add_option(name, values, description));
}

void Check(CLI::Option* option, Refusal refusal) {
  const auto check = [refusal = std::move(refusal)](std::string& value) { return refusal(value); };
  option->check(CLI::Validator(check, ""));
}

void Restrict(CLI::Option* option, const std::vector<std::string>& choices, NoneOf noneOf) {
  option->type_name(Joined(choices, "|"));
  Check(option, [choices, noneOf](const std::string& value) {
    const bool isKnown = std::find(choices.begin(), choices.end(), value) != choices.end();
    return isKnown ? std::string() : noneOf(value, choices);
  });
}

std::string NotUtf8(const std::string& what, const std::string& text) {
  const bool isUtf8 = qv::ToUtf8(qv::FromUtf8(text)) == text;
  return isUtf8 ? std::string() : "This " + what + " is not UTF-8: " + text;
}

std::vector<std::string> LanguageCodes() {
  return Column(qv::languageNames, &qv::LanguageName::code);
}

std::string Joined(const std::vector<std::string>& texts, const std::string& separator) {
  std::string joined;
  for (const std::string& text : texts) {
    joined += (joined.empty() ? std::string() : separator) + text;
  }
  return joined;
}

}  // namespace commandline
