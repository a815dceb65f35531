#include "apps/qvdisc/CallOptions.h"

#include <CLI/CLI.hpp>
#include <filesystem>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ArgumentChecks.h"
#include "apps/qvdisc/HelpSections.h"
#include "apps/qvdisc/Meaning.h"
#include "editor/DiscriminatorForm.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using commandline::AddText;
using commandline::Check;
using commandline::Restrict;

std::string NoDiscriminatorName(const std::string& text) {
  return NoName(text, qv::DiscriminatorForm::longestTypedName);
}

std::string NoneOf(const std::string& value, const std::vector<std::string>& choices) {
  return "'" + value + "' is none of " + commandline::Joined(choices, "|");
}

void AddFields(CLI::App& verb, bool nameNeeded, OptionTexts& texts, qv::Language language) {
  constexpr Meaning name{"Nombre, de 80 caracteres como máximo", "Name, of at most 80 characters"};
  constexpr Meaning description{"Descripción, sin comillas dobles",
                                "Description, without double quotes"};
  constexpr Meaning type{"Franjas horarias o condiciones", "Time slots or conditions"};
  constexpr Meaning zero{"Si las variables se ponen a cero fuera de sus franjas",
                         "Whether variables are set to zero outside their slots"};
  Check(AddText(verb, "--name", texts.name, name.In(language))
            ->type_name("NAME")
            ->required(nameNeeded),
        NoDiscriminatorName);
  Check(AddText(verb, "--description", texts.description, description.In(language))
            ->type_name("TEXT"),
        NoFieldText);
  Restrict(AddText(verb, "--type", texts.type, type.In(language)), {"SLOTS", "CONDITIONS"}, NoneOf);
  Restrict(AddText(verb, "--zero-outside", texts.zero, zero.In(language)), {"yes", "no"}, NoneOf);
  AddDryRun(verb, texts, language);
}

}  // namespace

std::string NoDirectory(const std::string& text) {
  std::error_code error;
  const std::filesystem::directory_iterator content(text, error);
  return error ? "This directory can't be read: " + text : NoText(text);
}

std::optional<std::wstring> Given(const CLI::App& verb, const char* option,
                                  const std::string& text) {
  const CLI::Option* found = verb.get_option_no_throw(option);
  return found && found->count() > 0 ? std::optional(qv::FromUtf8(text)) : std::nullopt;
}

void AddLanguage(CLI::App& app, OptionTexts& texts, qv::Language language) {
  constexpr Meaning meaning{"Idioma de lo que se dice; sin ella, el del sistema",
                            "Language of what is told; that of the system if not given"};
  Restrict(AddText(app, "--language", texts.language, meaning.In(language)),
           commandline::LanguageCodes(), NoneOf);
}

void AddCommonOptions(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning installation{
      "Directorio de la instalación: su configuration.xml y sus discriminadores",
      "Directory of the installation: its configuration.xml and its discriminators"};
  constexpr Meaning json{"Escribe un documento JSON en lugar de texto para personas",
                         "Print one JSON document instead of text for people"};
  commandline::AddHelp(verb, HelpWords(language).help);
  Check(AddText(verb, "--installation", texts.installation, installation.In(language))
            ->type_name("DIR"),
        NoDirectory);
  AddLanguage(verb, texts, language);
  verb.add_flag("--json", texts.json, json.In(language));
}

void AddStems(CLI::App& verb, const Stems& stems, OptionTexts& texts, qv::Language language) {
  constexpr Meaning meaning{"Qué discriminadores", "Which discriminators"};
  if (stems.most > 0) {
    Check(commandline::AddTexts(verb, "STEM", texts.stems, meaning.In(language))
              ->type_name("")
              ->multi_option_policy(CLI::MultiOptionPolicy::Throw)
              ->expected(stems.least, stems.most)
              ->required(stems.least > 0),
          NoText);
  }
}

void AddNewFields(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  AddFields(verb, true, texts, language);
}

void AddChangedFields(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  AddFields(verb, false, texts, language);
}

void AddAnswers(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning yes{"Responde que sí a toda pregunta", "Answer Yes to every question"};
  constexpr Meaning no{"Responde que no a toda pregunta", "Answer No to every question"};
  CLI::Option* answer = verb.add_flag("--yes", texts.yes, yes.In(language));
  verb.add_flag("--no", texts.no, no.In(language))->excludes(answer);
  AddDryRun(verb, texts, language);
}

void AddDryRun(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning dryRun{"Dice lo que se haría y no escribe nada",
                           "Tell what would be done, and write nothing"};
  verb.add_flag("--dry-run", texts.dryRun, dryRun.In(language));
}

void AddStrict(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning strict{"También las notas cuentan para el estado de salida",
                           "Let notes count for the exit status, as faults do"};
  verb.add_flag("--strict", texts.strict, strict.In(language));
}

}  // namespace qvdisc
