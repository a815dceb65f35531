#include "apps/qvdisc/Pages.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <vector>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/HelpSections.h"

namespace qvdisc {
namespace {

using Options = std::vector<const CLI::Option*>;

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

std::vector<const CLI::App*> VerbsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

/// The verb and those below it, each under its whole name.
std::string ManualVerb(const CLI::App& verb, const std::string& before = {}) {
  const std::string name = before + verb.get_name();
  std::string page =
      ".SS " + Literal(name) + "\n" + Literal(verb.get_description()) + ".\n" + ManualOptions(verb);
  for (const CLI::App* below : VerbsOf(verb)) {
    page += ManualVerb(*below, name + " ");
  }
  return page;
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

std::string OptionNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) {
      names.push_back("--" + name);
    }
  }
  return commandline::Joined(names, " ");
}

/// The values that an option is restricted to, with blanks between them; empty for any other.
std::string ChoicesOf(const CLI::Option& option) {
  std::string type = option.get_type_name();
  if (type.find('|') == std::string::npos) {
    return {};
  }
  std::replace(type.begin(), type.end(), '|', ' ');
  return type;
}

/// A line for each option of any verb that is restricted to some values.
std::string ValueCases(const CLI::App& app) {
  std::vector<std::string> lines;
  for (const CLI::App* verb : VerbsOf(app)) {
    for (const CLI::Option* option : verb->get_options()) {
      const std::string choices = ChoicesOf(*option);
      if (!choices.empty()) {
        lines.push_back("    --" + option->get_lnames().front() + ") _qvdisc_words \"" + choices +
                        "\"; return ;;\n");
      }
    }
  }
  std::sort(lines.begin(), lines.end());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  std::string cases;
  for (const std::string& line : lines) {
    cases += line;
  }
  return cases;
}

bool TakesStems(const CLI::App& verb) {
  const Options options = verb.get_options();
  return std::any_of(options.begin(), options.end(),
                     [](const CLI::Option* option) { return option->get_positional(); });
}

std::string VerbCases(const CLI::App& app) {
  std::string cases;
  for (const CLI::App* verb : VerbsOf(app)) {
    cases += "    " + verb->get_name() + ") options=\"" + OptionNames(*verb) + "\"" +
             (TakesStems(*verb) ? "; stems=yes" : "") + " ;;\n";
  }
  return cases;
}

constexpr const char* completionStart = R"bash(# Completes calls of qvdisc in bash.
_qvdisc_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$current")
}
_qvdisc_stems() {
  local file stem
  for file in "$1"/*.xdct; do
    stem=${file##*/}
    stem=${stem%.xdct}
    if [[ -e $file && $stem == "$current"* ]]; then
      COMPREPLY+=("$stem")
    fi
  done
}
# A word of the line without quotes and backslashes, and with the home directory for ~.
_qvdisc_plain() {
  local word=${1#[\"\']}
  word=${word%[\"\']}
  word=${word//\\/}
  [[ $word == "~/"* ]] && word=$HOME/${word#"~/"}
  printf '%s' "$word"
}
_qvdisc() {
  local current before installation verb options stems i
  current=$(_qvdisc_plain "${COMP_WORDS[COMP_CWORD]}")
  before=${COMP_WORDS[COMP_CWORD - 1]}
  # Bash takes --option=value for three words.
  if [[ $before == = ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  elif [[ $current == = ]]; then
    current=
  fi
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
    --installation)
      [[ ${COMP_WORDS[i + 1]} == = ]] && ((i++))
      installation=$(_qvdisc_plain "${COMP_WORDS[++i]}")
      ;;
    -* | =) ;;
    *) verb=${verb:-${COMP_WORDS[i]}} ;;
    esac
  done
  COMPREPLY=()
  case $before in
    --installation)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -d -- "$current")
      return
      ;;
)bash";

constexpr const char* completionEnd = R"bash(  esac
  if [[ $current == -* ]]; then
    _qvdisc_words "$options"
  elif [[ $stems && $installation ]]; then
    compopt -o filenames 2>/dev/null
    _qvdisc_stems "$installation"
  fi
}
complete -F _qvdisc qvdisc
)bash";

}  // namespace

std::string ManualPage(const CLI::App& app, qv::Language language) {
  const HelpLabels& words = HelpWords(language);
  std::string page = ".TH QVDISC 1 \"\" \"QVDiscriminator " QVDISC_VERSION "\"\n" +
                     Heading(words.name) + "qvdisc \\- " + Literal(app.get_description()) + "\n" +
                     Heading(words.synopsis) + ".B qvdisc\n\\fI" + words.verb + "\\fR [\\fI" +
                     words.options + "\\fR] [\\fISTEM\\fR]...\n" + Heading(words.options) +
                     ManualOptions(app) + Heading(words.verbs);
  for (const CLI::App* verb : VerbsOf(app)) {
    page += ManualVerb(*verb);
  }
  for (const HelpSection& section : ManualSections(language)) {
    page += ManualSection(section);
  }
  return page;
}

std::string BashCompletion(const CLI::App& app) {
  std::vector<std::string> verbs;
  for (const CLI::App* verb : VerbsOf(app)) {
    verbs.push_back(verb->get_name());
  }
  return completionStart + ValueCases(app) + "  esac\n  case $verb in\n    '') _qvdisc_words \"" +
         commandline::Joined(verbs, " ") + " " + OptionNames(app) + "\"; return ;;\n" +
         VerbCases(app) + completionEnd;
}

}  // namespace qvdisc
