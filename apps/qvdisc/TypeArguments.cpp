#include "apps/qvdisc/TypeArguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ArgumentChecks.h"
#include "apps/qvdisc/HelpSections.h"
#include "apps/qvdisc/Meaning.h"
#include "apps/qvdisc/SlotText.h"
#include "timestructure/TypeIdentity.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using commandline::AddText;
using commandline::Check;

struct KindHelp {
  Meaning meaning;
  const char* examples;  ///< a call a line
};

struct ActionRow {
  const char* name;
  TypeAction action;
  KindHelp ofHourTypes;
  KindHelp ofDayTypes;

  const KindHelp& Of(TypeKind kind) const {
    return kind == TypeKind::Hour ? ofHourTypes : ofDayTypes;
  }
};

constexpr std::array actions = {
    ActionRow{
        "list",
        TypeAction::List,
        {{"Lista los tipos de hora de un discriminador", "Lists the hour types of a discriminator"},
         "qvdisc hour-type list 'Day and night'"},
        {{"Lista los tipos de día de un discriminador con sus franjas",
          "Lists the day types of a discriminator with their slots"},
         "qvdisc day-type list 'Day and night' --json"}},
    ActionRow{"add",
              TypeAction::Add,
              {{"Crea un tipo de hora, blanco si no se da --colour",
                "Makes a new hour type, white without --colour"},
               "qvdisc hour-type add 'Day and night' Dusk --colour '#8090C0'"},
              {{"Crea un tipo de día, blanco si no se da --colour",
                "Makes a new day type, white without --colour"},
               "qvdisc day-type add 'Day and night' 'Dark day' --slot '00:00-24:00 Night'"}},
    ActionRow{"modify",
              TypeAction::Modify,
              {{"Cambia el nombre, el color o el valor de un tipo de hora",
                "Changes name, colour or value of an hour type"},
               "qvdisc hour-type modify 'Day and night' Night --name Dark"},
              {{"Cambia el nombre, el color o las franjas de un tipo de día",
                "Changes name, colour or slots of a day type"},
               "qvdisc day-type modify 'Day and night' 'Summer day' --slot '00:00-06:00 Night' "
               "--slot '06:00-24:00 Day'"}},
    ActionRow{"remove",
              TypeAction::Remove,
              {{"Elimina un tipo de hora; sus franjas se quedan hasta que se edite su tipo de día",
                "Removes an hour type; slots of it stay until their day type is edited"},
               "qvdisc hour-type remove 'Day and night' Dusk"},
              {{"Elimina un tipo de día; sus fechas se quedan hasta que se edite el calendario",
                "Removes a day type; its dates stay until the calendar is edited"},
               "qvdisc day-type remove 'Day and night' 'Dark day'"}},
};

std::string NoTypeName(const std::string& text) {
  return NoName(text, qv::TypeIdentity::longestTypedName);
}

std::string NoLine(const std::string& text) {
  const bool isLine = text.find_first_of("\r\n") == std::string::npos;
  return isLine ? NoFieldText(text) : "A value is one line: " + text;
}

std::string NoColour(const std::string& text) {
  const bool isColour = text.size() == 7 && text[0] == '#' &&
                        text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
  return isColour ? std::string() : "A colour is written as #RRGGBB: " + text;
}

std::string NoSlot(const std::string& text) {
  const auto read = ReadSlot(text);
  const auto* fault = std::get_if<std::string>(&read);
  return fault ? *fault : NoText(text);
}

void AddType(CLI::App& verb, TypeAction action, TypeTexts& texts, qv::Language language) {
  constexpr Meaning called{"Cómo se llama, con 128 caracteres como máximo",
                           "What it is called, of at most 128 characters"};
  constexpr Meaning which{"Cuál: su nombre o su identificador", "Which one: its name or its id"};
  const bool isNew = action == TypeAction::Add;
  // Otherwise all that stands there would be STEMs.
  verb.get_option("STEM")->allow_extra_args(false);
  Check(AddText(verb, "NAME", texts.type, (isNew ? called : which).In(language))
            ->type_name("")
            ->required(),
        isNew ? NoTypeName : NoText);
}

void AddNewName(CLI::App& verb, TypeTexts& texts, qv::Language language) {
  constexpr Meaning name{"Nombre nuevo, de 128 caracteres como máximo",
                         "New name, of at most 128 characters"};
  Check(AddText(verb, "--name", texts.name, name.In(language))->type_name("NAME"), NoTypeName);
}

void AddColour(CLI::App& verb, TypeTexts& texts, qv::Language language) {
  constexpr Meaning colour{"Color, como #RRGGBB", "Colour, as #RRGGBB"};
  Check(AddText(verb, "--colour,--color", texts.colour, colour.In(language))->type_name("COLOUR"),
        NoColour);
}

void AddValue(CLI::App& verb, TypeTexts& texts, qv::Language language) {
  constexpr Meaning value{"Valor, en instalaciones embebidas", "Value, on embedded installations"};
  Check(AddText(verb, "--value", texts.value, value.In(language))->type_name("TEXT"), NoLine);
}

void AddSlots(CLI::App& verb, TypeTexts& texts, qv::Language language) {
  constexpr Meaning slot{
      "Franja, como «08:00-12:00 NOMBRE» de un tipo de hora, hasta 24:00; una vez por cada franja "
      "que ha de tener el tipo de día",
      "A slot, as \"08:00-12:00 NAME\" of an hour type, up to 24:00; once for each that the day "
      "type is to have"};
  constexpr Meaning none{"No deja franjas al tipo de día", "Leave the day type no slots"};
  CLI::Option* slots = commandline::AddTexts(verb, "--slot", texts.slots, slot.In(language))
                           ->type_name("SLOT")
                           ->allow_extra_args(false)
                           ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  Check(slots, NoSlot);
  verb.add_flag("--no-slots", texts.noSlots, none.In(language))->excludes(slots);
}

void AddFields(CLI::App& verb, TypeKind kind, TypeAction action, TypeTexts& texts,
               qv::Language language) {
  if (action == TypeAction::Modify) {
    AddNewName(verb, texts, language);
  }
  AddColour(verb, texts, language);
  kind == TypeKind::Hour ? AddValue(verb, texts, language) : AddSlots(verb, texts, language);
}

/// The colour that a good text writes, with red in the lowest byte.
qv::Colour ColourOf(const std::string& text) {
  const auto part = [&](std::size_t at) {
    return static_cast<qv::Colour>(std::stoul(text.substr(at, 2), nullptr, 16));
  };
  return part(1) | part(3) << 8 | part(5) << 16;
}

std::optional<std::vector<CalledSlot>> SlotsOf(const TypeTexts& texts) {
  if (texts.slots.empty() && !texts.noSlots) {
    return std::nullopt;
  }
  std::vector<CalledSlot> slots;
  std::transform(texts.slots.begin(), texts.slots.end(), std::back_inserter(slots),
                 [](const std::string& text) { return std::get<CalledSlot>(ReadSlot(text)); });
  return slots;
}

void AddAction(CLI::App& verb, TypeKind kind, const ActionRow& row, OptionTexts& texts,
               qv::Language language) {
  constexpr Stems oneStem{1, 1};
  const KindHelp& help = row.Of(kind);
  CLI::App& action = *verb.add_subcommand(row.name, help.meaning.In(language));
  action.group(HelpWords(language).verbs);
  AddCommonOptions(action, texts, language);
  AddStems(action, oneStem, texts, language);
  if (row.action != TypeAction::List) {
    AddType(action, row.action, texts.types, language);
  }
  if (row.action == TypeAction::Add || row.action == TypeAction::Modify) {
    AddFields(action, kind, row.action, texts.types, language);
    AddAnswers(action, texts, language);
  } else if (row.action == TypeAction::Remove) {
    AddDryRun(action, texts, language);
  }
  action.footer(VerbFooter({help.examples, true, false}, language));
}

void AddActions(CLI::App& verb, TypeKind kind, OptionTexts& texts, qv::Language language) {
  verb.require_subcommand(1);
  for (const ActionRow& row : actions) {
    AddAction(verb, kind, row, texts, language);
  }
}

}  // namespace

void AddHourTypeVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  AddActions(verb, TypeKind::Hour, texts, language);
}

void AddDayTypeVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  AddActions(verb, TypeKind::Day, texts, language);
}

TypeCall ReadTypeCall(const CLI::App& action, const TypeTexts& texts) {
  const auto row = std::find_if(actions.begin(), actions.end(), [&](const ActionRow& known) {
    return known.name == action.get_name();
  });
  TypeCall call{.action = row->action,
                .type = qv::FromUtf8(texts.type),
                .name = Given(action, "--name", texts.name),
                .colour = {},
                .value = Given(action, "--value", texts.value),
                .slots = SlotsOf(texts)};
  if (!texts.colour.empty()) {
    call.colour = ColourOf(texts.colour);
  }
  return call;
}

}  // namespace qvdisc
