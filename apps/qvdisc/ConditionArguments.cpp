#include "apps/qvdisc/ConditionArguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ArgumentChecks.h"
#include "apps/qvdisc/HelpSections.h"
#include "apps/qvdisc/Meaning.h"
#include "conditions/ConditionForm.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using commandline::AddText;
using commandline::Check;

struct ActionRow {
  const char* name;
  ConditionAction action;
  Meaning meaning;
  const char* example;
};

constexpr std::array actions = {
    ActionRow{"list",
              ConditionAction::List,
              {"Lista las condiciones de un discriminador en su orden, con su resultado actual",
               "Lists the conditions of a discriminator in their order, with their present result"},
              "qvdisc condition list 'Transformer station state'"},
    ActionRow{"add",
              ConditionAction::Add,
              {"Crea una condición al final; necesita --expression",
               "Makes a new condition at the end; --expression is needed"},
              "qvdisc condition add 'Transformer station state' 'Hot oil' "
              "--expression '[TS1_TEMP.OIL] > 85'"},
    ActionRow{"modify",
              ConditionAction::Modify,
              {"Cambia el nombre o la expresión de una condición",
               "Changes name or expression of a condition"},
              "qvdisc condition modify 'Transformer station state' Overload "
              "--expression '[TS1.S] > 500'"},
    ActionRow{"remove",
              ConditionAction::Remove,
              {"Elimina una condición", "Removes a condition"},
              "qvdisc condition remove 'Transformer station state' Overload --yes"},
    ActionRow{"up",
              ConditionAction::Up,
              {"Sube una condición un puesto; no hace una revisión nueva",
               "Moves a condition up by one place; makes no new revision"},
              "qvdisc condition up 'Transformer station state' Overload"},
    ActionRow{"down",
              ConditionAction::Down,
              {"Baja una condición un puesto; no hace una revisión nueva",
               "Moves a condition down by one place; makes no new revision"},
              "qvdisc condition down 'Transformer station state' Overload"},
};

constexpr int most = qv::ConditionForm::longestKept;

std::string NoConditionName(const std::string& text) { return NoName(text, most); }

std::string NoExpression(const std::string& text) {
  return qv::FromUtf8(text).size() > most
             ? "An expression has at most " + std::to_string(most) + " characters: " + text
             : NoFieldText(text);
}

void AddCondition(CLI::App& verb, ConditionAction action, ConditionTexts& texts,
                  qv::Language language) {
  constexpr Meaning called{"Cómo se llama, con 64 caracteres como máximo",
                           "What it is called, of at most 64 characters"};
  constexpr Meaning which{"Cuál: su nombre o su identificador", "Which one: its name or its id"};
  const bool isNew = action == ConditionAction::Add;
  // Otherwise all that stands there would be STEMs.
  verb.get_option("STEM")->allow_extra_args(false);
  Check(AddText(verb, "NAME", texts.condition, (isNew ? called : which).In(language))
            ->type_name("")
            ->required(),
        isNew ? NoConditionName : NoText);
}

void AddNewName(CLI::App& verb, ConditionTexts& texts, qv::Language language) {
  constexpr Meaning name{"Nombre nuevo, de 64 caracteres como máximo",
                         "New name, of at most 64 characters"};
  Check(AddText(verb, "--name", texts.name, name.In(language))->type_name("NAME"), NoConditionName);
}

void AddExpression(CLI::App& verb, ConditionAction action, ConditionTexts& texts,
                   qv::Language language) {
  constexpr Meaning expression{"Expresión que da verdadero o falso, de 64 caracteres como máximo",
                               "Expression that gives true or false, of at most 64 characters"};
  CLI::Option* option = AddText(verb, "--expression", texts.expression, expression.In(language))
                            ->type_name("EXPRESSION")
                            ->required(action == ConditionAction::Add);
  Check(option, NoExpression);
}

void AddFields(CLI::App& verb, ConditionAction action, OptionTexts& texts, qv::Language language) {
  switch (action) {
    case ConditionAction::List:
      break;
    case ConditionAction::Modify:
      AddNewName(verb, texts.conditions, language);
      [[fallthrough]];
    case ConditionAction::Add:
      AddExpression(verb, action, texts.conditions, language);
      [[fallthrough]];
    case ConditionAction::Up:
    case ConditionAction::Down:
      AddDryRun(verb, texts, language);
      break;
    case ConditionAction::Remove:
      AddAnswers(verb, texts, language);
      break;
  }
}

void AddAction(CLI::App& verb, const ActionRow& row, OptionTexts& texts, qv::Language language) {
  constexpr Stems oneStem{1, 1};
  CLI::App& action = *verb.add_subcommand(row.name, row.meaning.In(language));
  action.group(HelpWords(language).verbs);
  AddCommonOptions(action, texts, language);
  AddStems(action, oneStem, texts, language);
  if (row.action != ConditionAction::List) {
    AddCondition(action, row.action, texts.conditions, language);
  }
  AddFields(action, row.action, texts, language);
  action.footer(VerbFooter({row.example, true, false}, language));
}

}  // namespace

void AddConditionVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  verb.require_subcommand(1);
  for (const ActionRow& row : actions) {
    AddAction(verb, row, texts, language);
  }
}

ConditionCall ReadConditionCall(const CLI::App& action, const ConditionTexts& texts) {
  const auto row = std::find_if(actions.begin(), actions.end(), [&](const ActionRow& known) {
    return known.name == action.get_name();
  });
  return {.action = row->action,
          .condition = qv::FromUtf8(texts.condition),
          .name = Given(action, "--name", texts.name),
          .expression = Given(action, "--expression", texts.expression)};
}

void AddEvaluated(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning expression{"La expresión; entre comillas, que son del intérprete de órdenes",
                               "The expression; in quotes, which are the shell's"};
  Check(AddText(verb, "EXPRESSION", texts.conditions.expression, expression.In(language))
            ->type_name("")
            ->required(),
        NoText);
}

}  // namespace qvdisc
