// What calls for the calendar may hold, before any discriminator is read.
#include <gmock/gmock.h>

#include "calendar/FastSelection.h"
#include "tests/apps/qvdisc/CommandLine.h"
#include "tests/calendar/Printing.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// What the words behind the program's name ask for.
Arguments Read(const std::vector<const char*>& words) {
  std::vector<const char*> call = {"qvdisc"};
  call.insert(call.end(), words.begin(), words.end());
  call.push_back("--installation=.");
  const auto read = ReadArguments(static_cast<int>(call.size()), call.data());
  const auto* arguments = std::get_if<Arguments>(&read);
  EXPECT_TRUE(arguments) << testing::PrintToString(words);
  return arguments ? *arguments : Arguments{};
}

TEST(MarkArguments, ADayTypeStandsBehindAnyNumberOfDates) {
  const Arguments call =
      Read({"mark", "s", "2026-05-01", "2026-01-01..2026-01-02", "2026-01-02", "n"});
  EXPECT_EQ(call.verb, Verb::Mark);
  EXPECT_EQ(call.stems, std::vector<std::wstring>{L"s"});
  EXPECT_EQ(call.mark, (MarkCall{{{2026, 1, 1}, {2026, 1, 2}, {2026, 5, 1}}, L"n"}));
}

TEST(MarkArguments, ADayTypeMayBeCalledLikeADate) {
  EXPECT_EQ(Read({"mark", "s", "2026-01-01", "2026-01-02"}).mark,
            (MarkCall{{{2026, 1, 1}}, L"2026-01-02"}));
  EXPECT_EQ(Read({"mark", "s", "2026-01-01", "1"}).mark, (MarkCall{{{2026, 1, 1}}, L"1"}));
}

TEST(MarkArguments, AnUnmarkHasNoDayType) {
  const Arguments call = Read({"unmark", "s", "2026-01-01", "2026-01-03"});
  EXPECT_EQ(call.verb, Verb::Unmark);
  EXPECT_EQ(call.mark, (MarkCall{{{2026, 1, 1}, {2026, 1, 3}}, std::nullopt}));
}

TEST(MarkArguments, ARuleIsThatOfTheFastSelection) {
  const auto dates = qv::DatesOfFastSelection(2027, {.weekDays = 0x61, .months = 0x801});
  ASSERT_EQ(dates.size(), 26U);
  EXPECT_EQ(
      Read({"mark", "s", "--weekdays", "mon,sat-sun", "--months=1,12", "--year", "2027", "n"}).mark,
      (MarkCall{dates, L"n"}));
  EXPECT_EQ(
      Read({"unmark", "--weekdays", "mon,sat-sun", "--months=1,12", "--year", "2027", "s"}).mark,
      (MarkCall{dates, std::nullopt}));
  EXPECT_EQ(
      Read({"unmark", "s", "--weekdays=mon", "--months=1", "--year=-0005"}).mark.dates.front().year,
      -5);
}

void ExpectWrong(std::vector<std::string> call, const std::string& reason) {
  call.push_back("--installation=.");
  const Ended ended = Call(call);
  EXPECT_EQ(ended.status, 2) << testing::PrintToString(call);
  EXPECT_EQ(ended.output, "");
  EXPECT_THAT(ended.errors, StartsWith("qvdisc: ")) << testing::PrintToString(call);
  EXPECT_THAT(ended.errors, HasSubstr(reason)) << testing::PrintToString(call);
}

TEST(MarkArguments, DatesThatCanNotBeMarkedAreAWrongCall) {
  for (const auto& [dates, reason] : std::vector<std::pair<std::string, std::string>>{
           {"2026-02-29", "There is no such date: 2026-02-29"},
           {"2026-01-06..2026-01-01", "A range starts with its earlier date"},
           {"99999-01-01", "Years are -32768 to 32767"},
           {"2026-1-6", "Dates are written as"},
           {"\xff", "This text is not UTF-8"}}) {
    ExpectWrong({"mark", "s", dates, "n"}, reason);
    ExpectWrong({"mark", "s", "2026-01-01", dates, "n"}, reason);
    ExpectWrong({"unmark", "s", dates}, reason);
  }
  ExpectWrong({"mark", "s", "2026-01-01", "\xff"}, "This text is not UTF-8");
}

TEST(MarkArguments, ARuleThatCoversNoDateIsAWrongCall) {
  const std::vector<std::string> whole = {"--weekdays=mon", "--months=1", "--year=2026"};
  for (std::size_t missing = 0; missing < whole.size(); ++missing) {
    std::vector<std::string> call = {"mark", "s", "n"};
    for (std::size_t i = 0; i < whole.size(); ++i) {
      if (i != missing) {
        call.push_back(whole[i]);
      }
    }
    ExpectWrong(call, "A rule needs all of --weekdays, --months and --year");
    ExpectWrong({"unmark", "s", whole[missing]}, "A rule needs all of");
  }
  ExpectWrong({"mark", "s", "n", "--weekdays=", "--months=1", "--year=2026"},
              "Weekdays are written");
  ExpectWrong({"mark", "s", "n", "--weekdays=mon", "--months=", "--year=2026"},
              "Months are written");
  ExpectWrong({"mark", "s", "n", "--weekdays=mon", "--months=0", "--year=2026"}, "Months are");
  ExpectWrong({"mark", "s", "n", "--weekdays=mon", "--months=1", "--year=40000"}, "Years are");
}

TEST(MarkArguments, ACallHasEitherDatesOrARule) {
  ExpectWrong({"mark", "s", "2026-01-01", "n", "--weekdays=mon", "--months=1", "--year=2026"},
              "Give either dates or a rule, not both: 2026-01-01");
  ExpectWrong({"unmark", "s", "2026-01-01", "--year=2026"}, "Give either dates or a rule");
  ExpectWrong({"mark", "s", "n"}, "Dates are missing: give some before NAME");
  ExpectWrong({"mark", "s", "2026-01-01"}, "Dates are missing: give some before NAME");
  ExpectWrong({"mark", "s"}, "NAME is required");
  ExpectWrong({"unmark", "s"}, "Dates are missing: give some, or");
  ExpectWrong({"mark"}, "is required");
  ExpectWrong({"mark", "s", "2026-01-01", "n", "--yes"}, "--yes");
}

TEST(MarkArguments, TheHelpTellsTheFormOfACall) {
  EXPECT_THAT(Call({"mark", "-h"}).output,
              HasSubstr("\nUsage: qvdisc mark [OPTIONS] STEM [DATES...] NAME\n"));
  EXPECT_THAT(Call({"mark", "-h"}).output, HasSubstr("of mark and unmark: dates were lost"));
  EXPECT_THAT(Call({"unmark", "-h"}).output,
              HasSubstr("\nUsage: qvdisc unmark [OPTIONS] STEM [DATES...]\n"));
}

}  // namespace
}  // namespace qvdisc
