#include "apps/qvdisc/MarkArguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

#include "apps/commandline/CommandLine.h"
#include "apps/qvdisc/ArgumentChecks.h"
#include "apps/qvdisc/CalledDates.h"
#include "apps/qvdisc/Meaning.h"
#include "calendar/FastSelection.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using commandline::AddText;
using commandline::Check;
using commandline::Refuse;

/// The arguments behind the STEM. The parser can't tell the last one from those before it.
constexpr const char* datesAndName = "[DATES...] NAME";

/// Why a reader can't take a text; empty if it can.
template <auto read>
std::string Fault(const std::string& text) {
  const auto value = read(text);
  const auto* fault = std::get_if<std::string>(&value);
  return fault ? *fault : std::string();
}

constexpr std::array ruleOptions = {"--weekdays", "--months", "--year"};

CLI::Option* AddWords(CLI::App& verb, const char* name, const Meaning& meaning, MarkTexts& texts,
                      qv::Language language) {
  // Otherwise all that stands there would be STEMs.
  verb.get_option("STEM")->allow_extra_args(false);
  CLI::Option* words = commandline::AddTexts(verb, name, texts.words, meaning.In(language));
  words->type_name("")->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  Check(words, NoText);
  return words;
}

void AddRule(CLI::App& verb, OptionTexts& all, qv::Language language) {
  constexpr Meaning weekdays{
      "En lugar de fechas, la regla de la selección rápida: días de la "
      "semana, como mon,wed-fri (de mon a sun)",
      "In place of dates, the rule of the fast selection: weekdays, as "
      "mon,wed-fri (from mon to sun)"};
  constexpr Meaning months{"Meses de la regla, como 1,7-8", "Months of the rule, as 1,7-8"};
  constexpr Meaning year{"Año de la regla", "Year of the rule"};
  MarkTexts& texts = all.marks;
  Check(AddText(verb, "--weekdays", texts.weekdays, weekdays.In(language))->type_name("DAYS"),
        Fault<ReadWeekdays>);
  Check(AddText(verb, "--months", texts.months, months.In(language))->type_name("MONTHS"),
        Fault<ReadMonths>);
  Check(AddText(verb, "--year", texts.year, year.In(language))->type_name("YEAR"), Fault<ReadYear>);
  AddDryRun(verb, all, language);
}

/// How many of the options of a rule the call gives.
std::size_t PartsOfRule(const CLI::App& verb) {
  const auto isGiven = [&](const char* option) { return verb.get_option(option)->count() > 0; };
  return static_cast<std::size_t>(std::count_if(ruleOptions.begin(), ruleOptions.end(), isGiven));
}

std::vector<qv::CalendarDate> DatesOfWords(const std::vector<std::string>& words) {
  std::vector<qv::CalendarDate> all;
  for (const std::string& word : words) {
    if (const std::string fault = Fault<ReadDates>(word); !fault.empty()) {
      Refuse(fault);
    }
    const auto some = std::get<0>(ReadDates(word));
    all.insert(all.end(), some.begin(), some.end());
  }
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

std::vector<qv::CalendarDate> DatesOfRule(const MarkTexts& texts) {
  return qv::DatesOfFastSelection(std::get<int>(ReadYear(texts.year)),
                                  {.weekDays = std::get<0>(ReadWeekdays(texts.weekdays)),
                                   .months = std::get<0>(ReadMonths(texts.months))});
}

}  // namespace

void AddMark(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning meaning{
      "Fechas, como 2026-01-06 o 2026-01-01..2026-01-06, y detrás el tipo de "
      "día: su nombre o su identificador",
      "Dates, as 2026-01-06 or 2026-01-01..2026-01-06, and behind them the "
      "day type: its name or its id"};
  // With one expected the help doesn't put dots behind the name, which has them already.
  AddWords(verb, datesAndName, meaning, texts.marks, language)
      ->required()
      ->expected(1)
      ->allow_extra_args();
  AddRule(verb, texts, language);
}

void AddUnmark(CLI::App& verb, OptionTexts& texts, qv::Language language) {
  constexpr Meaning meaning{"Fechas, como 2026-01-06 o 2026-01-01..2026-01-06",
                            "Dates, as 2026-01-06 or 2026-01-01..2026-01-06"};
  AddWords(verb, "DATES", meaning, texts.marks, language);
  AddRule(verb, texts, language);
}

MarkCall ReadMarkCall(const CLI::App& verb, const MarkTexts& texts) {
  MarkCall call;
  std::vector<std::string> words = texts.words;
  if (verb.get_option_no_throw(datesAndName)) {
    call.dayType = qv::FromUtf8(words.back());
    words.pop_back();
  }
  const std::size_t given = PartsOfRule(verb);
  if (words.empty() && given == 0) {
    Refuse("Dates are missing: give some" + std::string(call.dayType ? " before NAME" : "") +
           ", or --weekdays, --months and --year");
  }
  if (!words.empty() && given > 0) {
    Refuse("Give either dates or a rule, not both: " + words.front());
  }
  if (given > 0 && given < ruleOptions.size()) {
    Refuse("A rule needs all of --weekdays, --months and --year; it covers no date otherwise");
  }
  call.dates = given > 0 ? DatesOfRule(texts) : DatesOfWords(words);
  return call;
}

}  // namespace qvdisc
