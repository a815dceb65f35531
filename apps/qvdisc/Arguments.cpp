#include "apps/qvdisc/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <optional>
#include <utility>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/Pages.h"
#include "apps/qvdisc/Words.h"
#include "editor/DiscriminatorForm.h"
#include "tools/Utf8.h"
#include "tools/XmlText.h"

namespace qvdisc {
namespace {

using commandline::AddText;
using commandline::Check;
using commandline::Restrict;

constexpr const char* program = "qvdisc";

/// How many STEMs a verb takes.
struct Stems {
  int least = 0;
  int most = 0;
};
constexpr Stems noStems{0, 0};
constexpr Stems oneStem{1, 1};
constexpr Stems someStems{1, INT_MAX};
constexpr Stems anyStems{0, INT_MAX};

/// What else it takes beside the options that all verbs have.
enum class Takes { Nothing, Fields, Answers };

struct VerbName {
  const char* name;
  Verb verb;
  Stems stems;
  Takes takes;
  const char* meaning;
};

constexpr std::array verbNames = {
    VerbName{"list", Verb::List, noStems, Takes::Nothing,
             "Lists the discriminators of the installation, by name"},
    VerbName{"show", Verb::Show, oneStem, Takes::Nothing, "Shows what a discriminator holds"},
    VerbName{"index", Verb::Index, anyStems, Takes::Nothing,
             "Makes the index file of a discriminator anew, or those of all"},
    VerbName{"copy", Verb::Copy, someStems, Takes::Nothing,
             "Writes discriminators to standard output, as on the clipboard"},
    VerbName{"paste", Verb::Paste, noStems, Takes::Nothing,
             "Makes new discriminators of what standard input holds, as from the clipboard"},
    VerbName{"add", Verb::Add, noStems, Takes::Fields,
             "Makes a new discriminator; --name is needed"},
    VerbName{"modify", Verb::Modify, oneStem, Takes::Fields,
             "Changes name, description, type or flag of a discriminator"},
    VerbName{"remove", Verb::Remove, someStems, Takes::Answers,
             "Removes discriminators with their files and entries"},
    VerbName{"check", Verb::Check, anyStems, Takes::Nothing,
             "Tells what is wrong with the files and entries of discriminators"},
};

constexpr const char* footer =
    R"(STEM is <id>.<name>, the name of the discriminator's file without its extension, or the
id or the name alone where only one discriminator has it.

Without --installation DIR the environment variable QVDISC_INSTALLATION names the directory;
without that it is the working directory, if configuration.xml is there.

Exit status: 0 done, 1 refused or something found, 2 the call is wrong.)";

/// The environment variable that stands in for --installation.
constexpr const char* installationVariable = "QVDISC_INSTALLATION";

/// The options as their texts, to be turned into values once all of them are known to be good.
struct Texts {
  std::string installation;
  std::string language;
  std::vector<std::string> stems;
  std::string name;
  std::string description;
  std::string type;
  std::string zero;
  bool json = false;
  bool yes = false;
  bool no = false;
};

std::string NoText(const std::string& text) { return commandline::NotUtf8("text", text); }

std::string NoDirectory(const std::string& text) {
  std::error_code error;
  const std::filesystem::directory_iterator content(text, error);
  return error ? "This directory can't be read: " + text : NoText(text);
}

std::string NoFieldText(const std::string& text) {
  const bool fits = qv::IsXmlText(qv::FromUtf8(text));
  return fits ? NoText(text) : "A file can't hold every character of: " + text;
}

std::string NoName(const std::string& text) {
  const std::size_t most = qv::DiscriminatorForm::longestTypedName;
  return qv::FromUtf8(text).size() > most
             ? "A name has at most " + std::to_string(most) + " characters: " + text
             : NoFieldText(text);
}

std::string NoneOf(const std::string& value, const std::vector<std::string>& choices) {
  return "'" + value + "' is none of " + commandline::Joined(choices, "|");
}

void AddCommonOptions(CLI::App& app, Texts& texts) {
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  commandline::AddHelp(app);
  Check(AddText(app, "--installation", texts.installation,
                "Directory of the installation: its configuration.xml and its discriminators")
            ->type_name("DIR"),
        NoDirectory);
  Restrict(AddText(app, "--language", texts.language,
                   "Language of what is told; that of the system if not given"),
           commandline::LanguageCodes(), NoneOf);
  app.add_flag("--json", texts.json, "Print one JSON document instead of text for people");
  app.footer(footer);
}

void AddStems(CLI::App& app, const Stems& stems, Texts& texts) {
  if (stems.most > 0) {
    Check(commandline::AddTexts(app, "STEM", texts.stems, "Which discriminators")
              ->type_name("")
              ->multi_option_policy(CLI::MultiOptionPolicy::Throw)
              ->expected(stems.least, stems.most)
              ->required(stems.least > 0),
          NoText);
  }
}

void AddFields(CLI::App& app, bool nameNeeded, Texts& texts) {
  Check(AddText(app, "--name", texts.name, "Name, of at most 80 characters")
            ->type_name("NAME")
            ->required(nameNeeded),
        NoName);
  Check(AddText(app, "--description", texts.description, "Description, without double quotes")
            ->type_name("TEXT"),
        NoFieldText);
  Restrict(AddText(app, "--type", texts.type, "Time slots or conditions"), {"SLOTS", "CONDITIONS"},
           NoneOf);
  Restrict(AddText(app, "--zero-outside", texts.zero,
                   "Whether variables are set to zero outside their slots"),
           {"yes", "no"}, NoneOf);
}

void AddVerb(CLI::App& app, const VerbName& known, Texts& texts) {
  CLI::App& verb = *app.add_subcommand(known.name, known.meaning);
  AddCommonOptions(verb, texts);
  AddStems(verb, known.stems, texts);
  if (known.takes == Takes::Fields) {
    AddFields(verb, known.verb == Verb::Add, texts);
  }
  if (known.takes == Takes::Answers) {
    CLI::Option* yes = verb.add_flag("--yes", texts.yes, "Answer Yes to every question");
    verb.add_flag("--no", texts.no, "Answer No to every question")->excludes(yes);
  }
}

void Describe(CLI::App& app, Texts& texts) {
  commandline::AddHelp(app);
  commandline::AddVersion(app, QVDISC_VERSION);
  commandline::AddPage(
      app, "--manual-page", [&app] { return ManualPage(app); },
      "Print the manual page, for man, and end");
  commandline::AddPage(
      app, "--bash-completion", [&app] { return BashCompletion(app); },
      "Print what bash has to source to complete calls of this program, and end");
  app.require_subcommand(1);
  app.footer(footer);
  for (const VerbName& known : verbNames) {
    AddVerb(app, known, texts);
  }
}

std::optional<std::wstring> Given(const CLI::App& verb, const char* option,
                                  const std::string& text) {
  const CLI::Option* found = verb.get_option_no_throw(option);
  return found && found->count() > 0 ? std::optional(qv::FromUtf8(text)) : std::nullopt;
}

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

Arguments ReadTexts(const CLI::App& app, const Texts& texts) {
  const CLI::App& verb = *app.get_subcommands().front();
  const auto known = std::find_if(verbNames.begin(), verbNames.end(), [&](const VerbName& name) {
    return name.name == verb.get_name();
  });
  Arguments arguments;
  arguments.verb = known->verb;
  arguments.verbName = known->name;
  arguments.installation = Installation(texts.installation);
  arguments.language = qv::LanguageOf(texts.language);
  arguments.json = texts.json;
  if (texts.yes || texts.no) {
    arguments.answer = texts.yes;
  }
  std::transform(texts.stems.begin(), texts.stems.end(), std::back_inserter(arguments.stems),
                 [](const std::string& stem) { return qv::FromUtf8(stem); });
  arguments.changes = {Given(verb, "--name", texts.name),
                       Given(verb, "--description", texts.description),
                       IsFirst(texts.type, "SLOTS"), IsFirst(texts.zero, "yes")};
  return arguments;
}

}  // namespace

std::variant<Arguments, commandline::EarlyEnd> ReadArguments(int count,
                                                             const char* const* arguments) {
  CLI::App app("Lists, shows, changes and checks the discriminators of an installation.", program);
  Texts texts;
  Describe(app, texts);
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
