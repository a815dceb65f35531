#include "apps/qvdisc/CallDescription.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <climits>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ConditionArguments.h"
#include "apps/qvdisc/HelpSections.h"
#include "apps/qvdisc/MarkArguments.h"
#include "apps/qvdisc/Meaning.h"
#include "apps/qvdisc/Pages.h"
#include "apps/qvdisc/TypeArguments.h"

namespace qvdisc {
namespace {

constexpr Stems noStems{0, 0};
constexpr Stems oneStem{1, 1};
constexpr Stems someStems{1, INT_MAX};
constexpr Stems anyStems{0, INT_MAX};

/// Adds what a verb takes beside the options that all verbs have.
using AddOptions = void (*)(CLI::App&, OptionTexts&, qv::Language);

void AddNothing(CLI::App&, OptionTexts&, qv::Language) {}

struct VerbRow {
  const char* name;
  Verb verb;
  Stems stems;
  AddOptions addOptions;
  Meaning meaning;
  const char* examples;   ///< a call a line
  bool isHidden = false;  ///< whether it isn't for people
};

constexpr std::array verbs = {
    VerbRow{"list",
            Verb::List,
            noStems,
            AddNothing,
            {"Lista los discriminadores de la instalación por su nombre",
             "Lists the discriminators of the installation, by name"},
            "qvdisc list --installation examples/installation"},
    VerbRow{"show",
            Verb::Show,
            oneStem,
            AddNothing,
            {"Muestra lo que contiene un discriminador", "Shows what a discriminator holds"},
            "qvdisc show 'Day and night' --json"},
    VerbRow{"index",
            Verb::Index,
            anyStems,
            AddDryRun,
            {"Rehace el archivo de índice de un discriminador, o los de todos",
             "Makes the index file of a discriminator anew, or those of all"},
            "qvdisc index 'Day and night'"},
    VerbRow{"copy",
            Verb::Copy,
            someStems,
            AddNothing,
            {"Escribe discriminadores en la salida estándar, como en el portapapeles",
             "Writes discriminators to standard output, as on the clipboard"},
            "qvdisc copy 'Day and night' > payload.xml"},
    VerbRow{"paste",
            Verb::Paste,
            noStems,
            AddDryRun,
            {"Crea los discriminadores que contiene la entrada estándar, como del portapapeles",
             "Makes new discriminators of what standard input holds, as from the clipboard"},
            "qvdisc paste < mail.txt\n"
            "qvdisc copy 'Day and night' --installation A | qvdisc paste --installation B"},
    VerbRow{
        "add",
        Verb::Add,
        noStems,
        AddNewFields,
        {"Crea un discriminador; necesita --name", "Makes a new discriminator; --name is needed"},
        "qvdisc add --name 'Tariff 2027' --type SLOTS"},
    VerbRow{"modify",
            Verb::Modify,
            oneStem,
            AddChangedFields,
            {"Cambia el nombre, la descripción, el tipo o la opción de un discriminador",
             "Changes name, description, type or flag of a discriminator"},
            "qvdisc modify 'Tariff 2027' --name 'Tariff 2028' --description="},
    VerbRow{"hour-type",
            Verb::HourType,
            noStems,
            AddHourTypeVerbs,
            {"Lista, crea, cambia o elimina tipos de hora",
             "Lists, adds, modifies or removes hour types"},
            "qvdisc hour-type list 'Day and night'"},
    VerbRow{"day-type",
            Verb::DayType,
            noStems,
            AddDayTypeVerbs,
            {"Lista, crea, cambia o elimina tipos de día con sus franjas",
             "Lists, adds, modifies or removes day types with their slots"},
            "qvdisc day-type list 'Day and night' --json"},
    VerbRow{"condition",
            Verb::Condition,
            noStems,
            AddConditionVerbs,
            {"Lista, crea, cambia, elimina u ordena condiciones",
             "Lists, adds, modifies, removes or orders conditions"},
            "qvdisc condition list 'Transformer station state'"},
    VerbRow{"mark",
            Verb::Mark,
            oneStem,
            AddMark,
            {"Da un tipo de día a fechas del calendario; siempre hace una revisión nueva",
             "Gives dates of the calendar a day type; always makes a new revision"},
            "qvdisc mark 'Day and night' 2026-01-01..2026-01-06 2026-12-24 'Winter day'\n"
            "qvdisc mark 'Day and night' --weekdays sat,sun --months 1-3,10-12 --year 2027 "
            "'Winter day'"},
    VerbRow{"unmark",
            Verb::Unmark,
            oneStem,
            AddUnmark,
            {"Deja fechas del calendario sin tipo de día; siempre hace una revisión nueva",
             "Leaves dates of the calendar without a day type; always makes a new revision"},
            "qvdisc unmark 'Day and night' 2026-01-06\n"
            "qvdisc unmark 'Day and night' --weekdays mon-sun --months 8 --year 2026"},
    VerbRow{"remove",
            Verb::Remove,
            someStems,
            AddAnswers,
            {"Elimina discriminadores con sus archivos y sus entradas",
             "Removes discriminators with their files and entries"},
            "qvdisc remove 'Tariff 2027' --dry-run\n"
            "qvdisc remove 'Tariff 2027' 'Tariff 2028' --yes"},
    VerbRow{"check",
            Verb::Check,
            anyStems,
            AddStrict,
            {"Dice qué está mal en los archivos y las entradas de los discriminadores",
             "Tells what is wrong with the files and entries of discriminators"},
            "qvdisc check --strict\n"
            "qvdisc check 'Day and night' --json"},
    VerbRow{"eval",
            Verb::Eval,
            noStems,
            AddEvaluated,
            {"Evalúa una expresión con los valores actuales de la instalación",
             "Evaluates an expression on the present values of the installation"},
            "qvdisc eval '[TS1.S] > 630'\n"
            "qvdisc eval 'max(TS1.VL1, TS1.VL2) - 230' --json"},
    VerbRow{"names",
            Verb::Names,
            noStems,
            AddNothing,
            {"Escribe cómo se pueden nombrar los discriminadores, para completar llamadas",
             "Prints what discriminators can be called, to complete calls"},
            "qvdisc names",
            true},
};

void AddVerb(CLI::App& app, const VerbRow& row, OptionTexts& texts, qv::Language language) {
  CLI::App& verb = *app.add_subcommand(row.name, row.meaning.In(language));
  verb.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  verb.group(row.isHidden ? "" : HelpWords(language).verbs);
  AddCommonOptions(verb, texts, language);
  AddStems(verb, row.stems, texts, language);
  row.addOptions(verb, texts, language);
  verb.footer(VerbFooter({row.examples, row.stems.most > 0, row.verb == Verb::Check}, language));
}

void AddPages(CLI::App& app, qv::Language language) {
  constexpr Meaning version{"Escribe la versión y termina", "Print the version, and end"};
  constexpr Meaning manual{"Escribe la página de manual, para man, y termina",
                           "Print the manual page, for man, and end"};
  constexpr Meaning completion{
      "Escribe lo que bash ha de leer para completar llamadas a este programa, y termina",
      "Print what bash has to source to complete calls of this program, and end"};
  commandline::AddVersion(app, QVDISC_VERSION, version.In(language));
  commandline::AddPage(
      app, "--manual-page", [&app, language] { return ManualPage(app, language); },
      manual.In(language));
  commandline::AddPage(
      app, "--bash-completion", [&app] { return BashCompletion(app); }, completion.In(language));
}

/// The words that the parser puts around ours.
void WordHelp(CLI::App& app, qv::Language language) {
  const HelpLabels& words = HelpWords(language);
  const auto formatter = app.get_formatter();
  formatter->label("Usage", words.usage);
  formatter->label("OPTIONS", words.options);
  formatter->label("SUBCOMMAND", words.verb);
  formatter->label("Positionals", words.positionals);
  formatter->label("REQUIRED", words.required);
  formatter->label("Excludes", words.excludes);
  app.option_defaults()->group(words.optionGroup);
}

}  // namespace

void Describe(CLI::App& app, OptionTexts& texts, qv::Language language) {
  constexpr Meaning meaning{
      "Lista, muestra, cambia y comprueba los discriminadores de una instalación.",
      "Lists, shows, changes and checks the discriminators of an installation."};
  app.description(meaning.In(language));
  WordHelp(app, language);
  commandline::AddHelp(app, HelpWords(language).help);
  AddPages(app, language);
  AddLanguage(app, texts, language);
  app.require_subcommand(1);
  app.footer(ProgramFooter(language));
  for (const VerbRow& row : verbs) {
    AddVerb(app, row, texts, language);
  }
}

Verb VerbNamed(const std::string& name) {
  return std::find_if(verbs.begin(), verbs.end(),
                      [&](const VerbRow& row) { return row.name == name; })
      ->verb;
}

}  // namespace qvdisc
