#include "apps/qvdisc/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "apps/qvdisc/Pages.h"
#include "editor/DiscriminatorForm.h"
#include "tools/Utf8.h"
#include "tools/XmlText.h"

namespace qvdisc {
namespace {

constexpr const char* program = "qvdisc";

/// What a verb takes beside the options that all of them have.
enum Takes : unsigned {
  Nothing = 0,
  SomeStems = 1,
  OneStem = 2,
  AnyStems = 4,
  Fields = 8,
  Answers = 16
};

struct VerbName {
  const char* name;
  Verb verb;
  unsigned takes;
  const char* meaning;
};

constexpr std::array verbNames = {
    VerbName{"list", Verb::List, Nothing, "Lists the discriminators of the installation, by name"},
    VerbName{"show", Verb::Show, OneStem, "Shows what a discriminator holds"},
    VerbName{"index", Verb::Index, AnyStems,
             "Makes the index file of a discriminator anew, or those of all"},
    VerbName{"copy", Verb::Copy, SomeStems,
             "Writes discriminators to standard output, as on the clipboard"},
    VerbName{"paste", Verb::Paste, Nothing,
             "Makes new discriminators of what standard input holds, as from the clipboard"},
    VerbName{"add", Verb::Add, Fields, "Makes a new discriminator; --name is needed"},
    VerbName{"modify", Verb::Modify, OneStem | Fields,
             "Changes name, description, type or flag of a discriminator"},
    VerbName{"remove", Verb::Remove, SomeStems | Answers,
             "Removes discriminators with their files and entries"},
    VerbName{"check", Verb::Check, AnyStems,
             "Tells what is wrong with the files and entries of discriminators"},
};

constexpr const char* footer =
    R"(STEM is <id>.<name>, the name of the discriminator's file without its extension, or the
id or the name alone where only one discriminator has it.

Exit status: 0 done, 1 refused or something found, 2 the call is wrong.)";

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

std::string NotUtf8(std::string& text) {
  return qv::ToUtf8(qv::FromUtf8(text)) == text ? std::string() : "This text is not UTF-8: " + text;
}

std::string NoFieldText(std::string& text) {
  const bool fits = qv::IsXmlText(qv::FromUtf8(text));
  return fits ? NotUtf8(text) : "A file can't hold every character of: " + text;
}

std::string NoName(std::string& text) {
  const std::size_t most = qv::DiscriminatorForm::longestTypedName;
  return qv::FromUtf8(text).size() > most
             ? "A name has at most " + std::to_string(most) + " characters: " + text
             : NoFieldText(text);
}

/// Lets `option` be one of `choices` and nothing else; the pages read them from its type.
void Restrict(CLI::Option* option, const std::vector<std::string>& choices) {
  std::string joined;
  for (const std::string& choice : choices) {
    joined += (joined.empty() ? "" : "|") + choice;
  }
  const auto check = [choices, joined](std::string& text) {
    const bool known = std::find(choices.begin(), choices.end(), text) != choices.end();
    return known ? std::string() : "'" + text + "' is none of " + joined;
  };
  option->type_name(joined)->check(CLI::Validator(check, ""));
}

void AddCommonOptions(CLI::App& app, Texts& texts) {
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app.set_help_flag("--help", "Print this help, and end");
  app.add_option("--installation", texts.installation,
                 "Directory of the installation: its configuration.xml and its discriminators")
      ->type_name("DIR")
      ->required()
      ->check(CLI::Validator(CLI::ExistingDirectory).description(""))
      ->check(CLI::Validator(NotUtf8, ""));
  Restrict(app.add_option("--language", texts.language,
                          "Language of what is told; that of the system if not given"),
           {qv::languageNames[0].code, qv::languageNames[1].code});
  app.add_flag("--json", texts.json, "Print one JSON document instead of text for people");
  app.footer(footer);
}

void AddStems(CLI::App& app, unsigned takes, Texts& texts) {
  if ((takes & (SomeStems | OneStem | AnyStems)) == 0) {
    return;
  }
  CLI::Option* stems = app.add_option("STEM", texts.stems, "Which discriminators");
  stems->type_name("")->check(CLI::Validator(NotUtf8, ""));
  stems->multi_option_policy(CLI::MultiOptionPolicy::Throw);
  stems->expected((takes & AnyStems) != 0 ? 0 : 1, (takes & OneStem) != 0 ? 1 : 1 << 20);
  stems->required((takes & AnyStems) == 0);
}

void AddFields(CLI::App& app, bool nameNeeded, Texts& texts) {
  app.add_option("--name", texts.name, "Name, of at most 80 characters")
      ->type_name("NAME")
      ->required(nameNeeded)
      ->check(CLI::Validator(NoName, ""));
  app.add_option("--description", texts.description, "Description, without double quotes")
      ->type_name("TEXT")
      ->check(CLI::Validator(NoFieldText, ""));
  Restrict(app.add_option("--type", texts.type, "Time slots or conditions"),
           {"SLOTS", "CONDITIONS"});
  Restrict(app.add_option("--zero-outside", texts.zero,
                          "Whether variables are set to zero outside their slots"),
           {"yes", "no"});
}

void AddVerb(CLI::App& app, const VerbName& known, Texts& texts) {
  CLI::App& verb = *app.add_subcommand(known.name, known.meaning);
  AddCommonOptions(verb, texts);
  AddStems(verb, known.takes, texts);
  if ((known.takes & Fields) != 0) {
    AddFields(verb, known.verb == Verb::Add, texts);
  }
  if ((known.takes & Answers) != 0) {
    CLI::Option* yes = verb.add_flag("--yes", texts.yes, "Answer Yes to every question");
    verb.add_flag("--no", texts.no, "Answer No to every question")->excludes(yes);
  }
}

void Describe(CLI::App& app, Texts& texts) {
  app.set_help_flag("--help", "Print this help, and end");
  app.set_version_flag("--version", std::string(program) + " " + QVDISC_VERSION,
                       "Print the version, and end");
  app.add_flag_callback(
      "--manual-page", [&app] { throw Page(ManualPage(app)); },
      "Print the manual page, for man, and end");
  app.add_flag_callback(
      "--bash-completion", [&app] { throw Page(BashCompletion(app)); },
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

Arguments ReadTexts(const CLI::App& app, const Texts& texts) {
  const CLI::App& verb = *app.get_subcommands().front();
  const auto known = std::find_if(verbNames.begin(), verbNames.end(), [&](const VerbName& name) {
    return name.name == verb.get_name();
  });
  Arguments arguments;
  arguments.verb = known->verb;
  arguments.verbName = known->name;
  arguments.installation = qv::FromUtf8(texts.installation);
  arguments.language = qv::LanguageOf(texts.language);
  arguments.json = texts.json;
  if (texts.yes || texts.no) {
    arguments.answer = texts.yes;
  }
  std::transform(texts.stems.begin(), texts.stems.end(), std::back_inserter(arguments.stems),
                 qv::FromUtf8);
  arguments.changes = {Given(verb, "--name", texts.name),
                       Given(verb, "--description", texts.description),
                       IsFirst(texts.type, "SLOTS"), IsFirst(texts.zero, "yes")};
  return arguments;
}

}  // namespace

std::variant<Arguments, EarlyEnd> ReadArguments(int count, const char* const* arguments) {
  CLI::App app("Lists, shows, changes and checks the discriminators of an installation.", program);
  Texts texts;
  Describe(app, texts);
  try {
    app.parse(count, arguments);
    return ReadTexts(app, texts);
  } catch (const Page& page) {
    return EarlyEnd{.status = 0, .output = page.text, .error = {}};
  } catch (const CLI::CallForHelp&) {
    return EarlyEnd{.status = 0, .output = app.help(), .error = {}};
  } catch (const CLI::CallForVersion& version) {
    return EarlyEnd{.status = 0, .output = std::string(version.what()) + "\n", .error = {}};
  } catch (const CLI::ParseError& error) {
    return EarlyEnd{
        .status = badCall, .output = {}, .error = ErrorLine(error.what()) + "Try qvdisc --help.\n"};
  }
}

std::string ErrorLine(const std::string& reason) {
  return std::string(program) + ": " + reason + "\n";
}

}  // namespace qvdisc
