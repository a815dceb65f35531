#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>

#include "apps/qvdisc/HelpSections.h"
#include "apps/qvdisc/Pages.h"
#include "apps/qvdisc/VerbTree.h"

namespace qvdisc {
namespace {

std::string Literal(char letter) {
  switch (letter) {
    case '-':
      return "\\-";
    case '\\':
      return "\\e";
    case '\'':
      return "\\(aq";
    default:
      return {letter};
  }
}

/// `text` as it stands on a manual page.
std::string Literal(const std::string& text) {
  std::string literal;
  for (const char letter : text) {
    literal += Literal(letter);
  }
  // A line that starts with this would be a command.
  return literal.starts_with('.') ? "\\&" + literal : literal;
}

std::string ManualOption(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const std::string name =
      option.nonpositional() ? option.get_name(false, true) : option.get_name();
  std::string page = ".TP\n\\fB" + Literal(name) + "\\fR";
  if (!type.empty() && option.nonpositional()) {
    page += " \\fI" + Literal(type) + "\\fR";
  }
  return page + "\n" + Literal(option.get_description()) + "\n";
}

std::string ManualOptions(const CLI::App& app) {
  std::string page;
  for (const CLI::Option* option : app.get_options()) {
    page += ManualOption(*option);
  }
  return page;
}

std::string ManualVerb(const NamedVerb& named) {
  return ".SS " + Literal(named.name) + "\n" + Literal(named.verb->get_description()) + ".\n" +
         ManualOptions(*named.verb);
}

std::string Heading(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return ".SH " + Literal(text) + "\n";
}

std::string ManualSection(const HelpSection& section) {
  std::string page = Heading(section.heading);
  for (const HelpItem& item : section.items) {
    page += item.term.empty() ? ".PP\n" : ".TP\n\\fB" + Literal(item.term) + "\\fR\n";
    page += Literal(item.meaning) + "\n";
  }
  return page;
}

}  // namespace

std::string ManualPage(const CLI::App& app, qv::Language language) {
  const HelpLabels& words = HelpWords(language);
  std::string page = ".TH QVDISC 1 \"\" \"QVDiscriminator " QVDISC_VERSION "\"\n" +
                     Heading(words.name) + "qvdisc \\- " + Literal(app.get_description()) + "\n" +
                     Heading(words.synopsis) + ".B qvdisc\n\\fI" + words.verb + "\\fR [\\fI" +
                     words.options + "\\fR] [\\fISTEM\\fR]...\n" + Heading(words.options) +
                     ManualOptions(app) + Heading(words.verbs);
  for (const NamedVerb& named : VerbsBelow(app)) {
    page += ManualVerb(named);
  }
  for (const HelpSection& section : ManualSections(language)) {
    page += ManualSection(section);
  }
  return page;
}

}  // namespace qvdisc
