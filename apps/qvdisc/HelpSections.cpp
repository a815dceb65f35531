#include "apps/qvdisc/HelpSections.h"

#include <algorithm>
#include <sstream>

#include "apps/qvdisc/FindingWords.h"
#include "apps/qvdisc/Meaning.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

constexpr HelpLabels spanish{.usage = "Uso",
                             .options = "OPCIONES",
                             .verb = "VERBO",
                             .positionals = "Argumentos",
                             .required = "(necesario)",
                             .excludes = "sin",
                             .optionGroup = "Opciones",
                             .verbs = "Verbos",
                             .help = "Escribe esta ayuda y termina",
                             .name = "NOMBRE",
                             .synopsis = "SINOPSIS"};

constexpr HelpLabels english{.usage = "Usage",
                             .options = "OPTIONS",
                             .verb = "VERB",
                             .positionals = "Arguments",
                             .required = "(needed)",
                             .excludes = "without",
                             .optionGroup = "Options",
                             .verbs = "Verbs",
                             .help = "Print this help, and end",
                             .name = "NAME",
                             .synopsis = "SYNOPSIS"};

HelpSection StemSection(qv::Language language) {
  constexpr Meaning stem{
      "<id>.<nombre>, el nombre del archivo sin su extensión; o solo el id o el nombre, si un "
      "único\n"
      "discriminador lo tiene",
      "<id>.<name>, the name of the file without its extension; or the id or the name alone, "
      "where\n"
      "only one discriminator has it"};
  return {"STEM", {{"", stem.In(language)}}};
}

HelpSection Environment(qv::Language language) {
  constexpr Meaning heading{"Entorno", "Environment"};
  constexpr Meaning installation{
      "el directorio de la instalación, si falta --installation; sin ninguno de los dos es el\n"
      "directorio de trabajo, si contiene configuration.xml",
      "the directory of the installation, without --installation; without both it is the working\n"
      "directory, if configuration.xml is there"};
  constexpr Meaning locale{"el idioma, si falta --language: español o, con cualquier otro, inglés",
                           "the language, without --language: Spanish or, for any other, English"};
  constexpr Meaning colour{"si existe, nada sale en color ni en negrita",
                           "if there is such a variable, nothing is coloured or bold"};
  return {heading.In(language),
          {{"QVDISC_INSTALLATION", installation.In(language)},
           {"LC_ALL, LC_MESSAGES, LANG", locale.In(language)},
           {"NO_COLOR", colour.In(language)}}};
}

HelpSection ExitStatus(qv::Language language) {
  constexpr Meaning heading{"Estado de salida", "Exit status"};
  constexpr Meaning done{"hecho", "done"};
  constexpr Meaning refused{
      "rechazado, o no se ha podido escribir; de check: hay fallos o,\ncon --strict, notas; de "
      "mark y unmark: se han perdido fechas",
      "refused, or something could not be written; of check: there are faults\nor, with --strict, "
      "notes; of mark and unmark: dates were lost"};
  constexpr Meaning wrong{"la llamada está mal", "the call is wrong"};
  return {heading.In(language),
          {{"0", done.In(language)}, {"1", refused.In(language)}, {"2", wrong.In(language)}}};
}

HelpSection KindsOfFinding(qv::Language language) {
  constexpr Meaning heading{"Clases de incidencia", "Kinds of finding"};
  constexpr Meaning note{"nota: ", "note: "};
  HelpSection section{heading.In(language), {}};
  for (int i = 0; i < static_cast<int>(qv::FindingKind::Count); ++i) {
    const qv::Finding finding{.kind = static_cast<qv::FindingKind>(i)};
    const char* const before = finding.IsFault() ? "" : note.In(language);
    section.items.push_back(
        {KindName(finding.kind), before + std::string(KindMeaning(finding.kind, language))});
  }
  return section;
}

HelpSection ProgramExamples(qv::Language language) {
  return Examples(
      "qvdisc list --installation examples/installation\n"
      "qvdisc show 'Day and night' --json\n"
      "qvdisc copy 'Day and night' --installation A | qvdisc paste --installation B\n"
      "qvdisc check --language es",
      language);
}

/// The section as text of the help: terms in one column, what they mean in the next.
std::string InHelp(const HelpSection& section) {
  std::size_t width = 0;
  for (const HelpItem& item : section.items) {
    width = std::max(width, item.term.size());
  }
  const std::size_t indent = width == 0 ? 2 : width + 4;
  std::string text = section.heading + ":\n";
  for (const HelpItem& item : section.items) {
    std::string before = "  " + item.term;
    std::istringstream lines(item.meaning);
    for (std::string line; std::getline(lines, line); before.clear()) {
      before.resize(line.empty() ? before.size() : indent, ' ');
      text += before + line + "\n";
    }
  }
  return text;
}

std::string Footer(const std::vector<HelpSection>& sections) {
  std::string footer;
  for (const HelpSection& section : sections) {
    footer += (footer.empty() ? "" : "\n") + InHelp(section);
  }
  footer.pop_back();
  return footer;
}

}  // namespace

const HelpLabels& HelpWords(qv::Language language) {
  return language == qv::Language::Spanish ? spanish : english;
}

HelpSection Examples(const std::string& examples, qv::Language language) {
  constexpr Meaning heading{"Ejemplos", "Examples"};
  HelpSection section{heading.In(language), {}};
  std::istringstream lines(examples);
  for (std::string line; std::getline(lines, line);) {
    section.items.push_back({"", line});
  }
  return section;
}

std::vector<HelpSection> ManualSections(qv::Language language) {
  return {StemSection(language), KindsOfFinding(language), ExitStatus(language),
          Environment(language), ProgramExamples(language)};
}

std::string ProgramFooter(qv::Language language) {
  return Footer({StemSection(language), Environment(language), ExitStatus(language),
                 ProgramExamples(language)});
}

std::string VerbFooter(const VerbHelp& verb, qv::Language language) {
  std::vector<HelpSection> sections = {Examples(verb.examples, language)};
  if (verb.takesStems) {
    sections.push_back(StemSection(language));
  }
  if (verb.tellsFindings) {
    sections.push_back(KindsOfFinding(language));
  }
  sections.push_back(ExitStatus(language));
  return Footer(sections);
}

}  // namespace qvdisc
