#include <CLI/CLI.hpp>
#include <algorithm>
#include <vector>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/Pages.h"
#include "apps/qvdisc/VerbTree.h"

namespace qvdisc {
namespace {

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
  for (const NamedVerb& named : VerbsBelow(app)) {
    for (const CLI::Option* option : named.verb->get_options()) {
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
  const std::vector<const CLI::Option*> options = verb.get_options();
  return std::any_of(options.begin(), options.end(),
                     [](const CLI::Option* option) { return option->get_positional(); });
}

/// What can stand behind the words of `app`: its verbs and its options.
std::string Words(const CLI::App& app) {
  std::string words;
  for (const CLI::App* verb : VerbsOf(app)) {
    words += verb->get_name() + " ";
  }
  return words + OptionNames(app);
}

/// What stands behind a verb, as a case of the script.
std::string VerbCase(const NamedVerb& named) {
  const std::string start = "    '" + named.name + "') ";
  if (!VerbsOf(*named.verb).empty()) {
    return start + "_qvdisc_words \"" + Words(*named.verb) + "\"; return ;;\n";
  }
  return start + "options=\"" + OptionNames(*named.verb) + "\"" +
         (TakesStems(*named.verb) ? "; stems=yes" : "") + " ;;\n";
}

std::string VerbCases(const CLI::App& app) {
  std::string cases = VerbCase({"", &app});
  for (const NamedVerb& named : VerbsBelow(app)) {
    cases += VerbCase(named);
  }
  return cases;
}

/// The whole names of all verbs, between bars.
std::string VerbNames(const CLI::App& app) {
  std::string names = "|";
  for (const NamedVerb& named : VerbsBelow(app)) {
    names += named.name + "|";
  }
  return names;
}

constexpr const char* functions = R"bash(_qvdisc_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$current")
}
# The discriminators of the installation, as the program names them.
_qvdisc_stems() {
  local name
  while IFS= read -r name; do
    [[ $name == "$current"* ]] && COMPREPLY+=("$name")
  done < <("$program" names ${installation:+--installation "$installation"} 2>/dev/null)
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
  local program current before installation verb options stems i
  program=$(_qvdisc_plain "${COMP_WORDS[0]}")
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
    *) [[ $_qvdisc_verbs == *"|${verb:+$verb }${COMP_WORDS[i]}|"* ]] && verb+=${verb:+ }${COMP_WORDS[i]} ;;
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

constexpr const char* end = R"bash(  esac
  if [[ $current == -* ]]; then
    _qvdisc_words "$options"
  elif [[ $stems ]]; then
    compopt -o filenames 2>/dev/null
    _qvdisc_stems
  fi
}
complete -F _qvdisc qvdisc
)bash";

}  // namespace

std::string BashCompletion(const CLI::App& app) {
  return "# Completes calls of qvdisc in bash.\n_qvdisc_verbs='" + VerbNames(app) + "'\n" +
         functions + ValueCases(app) + "  esac\n  case $verb in\n" + VerbCases(app) + end;
}

}  // namespace qvdisc
