// What calls for hour types and day types may hold, before any discriminator is read.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// What the words behind the program's name ask for.
TypeCall Read(const std::vector<const char*>& words) {
  std::vector<const char*> call = {"qvdisc"};
  call.insert(call.end(), words.begin(), words.end());
  call.push_back("--installation=.");
  const auto read = ReadArguments(static_cast<int>(call.size()), call.data());
  const auto* arguments = std::get_if<Arguments>(&read);
  EXPECT_TRUE(arguments) << testing::PrintToString(words);
  return arguments ? arguments->type : TypeCall{};
}

TEST(TypeArguments, FieldsThatAreNotGivenStayAsTheyAre) {
  TypeCall expected;
  expected.action = TypeAction::Modify;
  expected.type = L"n";
  EXPECT_EQ(Read({"hour-type", "modify", "s", "n"}), expected);
  EXPECT_EQ(Read({"day-type", "modify", "s", "n"}), expected);
}

TEST(TypeArguments, AColourHasRedInItsLowestByte) {
  EXPECT_EQ(Read({"hour-type", "add", "s", "n", "--colour", "#E05a4e"}).colour, 0x4E5AE0U);
  EXPECT_EQ(Read({"day-type", "add", "s", "n", "--color=#000001"}).colour, 0x010000U);
}

TEST(TypeArguments, EachSlotIsGivenByItself) {
  const auto slots =
      Read({"day-type", "add", "--slot", "0:00-12:00 a", "s", "n", "--slot=12:00-24:00 [b,c]"})
          .slots;
  EXPECT_EQ(slots,
            (std::vector<CalledSlot>{{{0, 0}, {12, 0}, L"a"}, {{12, 0}, {24, 0}, L"[b,c]"}}));
  EXPECT_EQ(Read({"day-type", "modify", "s", "n", "--no-slots"}).slots, std::vector<CalledSlot>{});
}

TEST(TypeArguments, AnEmptyFieldIsGiven) {
  const TypeCall call = Read({"hour-type", "modify", "s", "n", "--value=", "--name", ""});
  EXPECT_EQ(call.value, L"");
  EXPECT_EQ(call.name, L"");
}

TEST(TypeArguments, ANameMayHave128CharactersOfAnyLength) {
  std::string name;
  for (int i = 0; i < 128; ++i) {
    name += "\xC3\xB1";
  }
  EXPECT_EQ(Read({"hour-type", "add", "s", name.c_str()}).type, std::wstring(128, L'\u00f1'));
  EXPECT_EQ(Read({"day-type", "modify", "s", "n", "--name", name.c_str()}).name,
            std::wstring(128, L'\u00f1'));
}

TEST(TypeArguments, WhatNoFieldCouldHoldIsRefusedWithTheLimit) {
  const std::string tooLong(129, 'x');
  const std::vector<std::pair<std::vector<std::string>, std::string>> calls = {
      {{"hour-type", "add", "s", tooLong}, "A name has at most 128 characters"},
      {{"day-type", "add", "s", tooLong}, "A name has at most 128 characters"},
      {{"hour-type", "modify", "s", "n", "--name", tooLong}, "A name has at most 128 characters"},
      {{"hour-type", "add", "s", "bell\a"}, "A file can't hold every character"},
      {{"hour-type", "add", "s", "n", "--value", "bell\a"}, "A file can't hold every character"},
      {{"hour-type", "add", "s", "n", "--value", "1\n2"}, "A value is one line"},
      {{"hour-type", "add", "s", "n", "--colour", "red"}, "A colour is written as #RRGGBB"},
      {{"hour-type", "add", "s", "n", "--colour", "E05A4E"}, "A colour is written as #RRGGBB"},
      {{"hour-type", "add", "s", "n", "--colour", "#E05A4G"}, "A colour is written as #RRGGBB"},
      {{"hour-type", "add", "s", "n", "--colour", "#E05A4E0"}, "A colour is written as #RRGGBB"},
      {{"hour-type", "add", "s", "n", "--colour="}, "A colour is written as #RRGGBB"},
      {{"day-type", "add", "s", "n", "--slot", "8-9 P1"}, "A slot is written as"},
      {{"day-type", "add", "s", "n", "--slot", "00:00-24:60 P1"}, "Minutes are 0 to 59"},
      {{"day-type", "add", "s", "n", "--slot", "00:00-08:00 P1", "--slot", "08:00-25:00 P1"},
       "Hours are 0 to 24"},
      {{"day-type", "add", "s", "n", "--slot", "00:00-24:00 \xff"}, "This text is not UTF-8"}};
  for (auto [call, reason] : calls) {
    call.push_back("--installation=.");
    const Ended ended = Call(call);
    EXPECT_EQ(ended.status, 2) << testing::PrintToString(call);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors, HasSubstr(reason));
  }
}

TEST(TypeArguments, AWrongCallGivesItsReasonAndStatus2) {
  const std::vector<std::vector<std::string>> calls = {
      {"hour-type"},
      {"hour-type", "frobnicate", "s"},
      {"hour-type", "list"},
      {"hour-type", "list", "s", "n"},
      {"hour-type", "list", "s", "--yes"},
      {"hour-type", "add", "s"},
      {"hour-type", "add", "s", "n", "m"},
      {"hour-type", "add", "s", "n", "--name", "m"},
      {"hour-type", "add", "s", "n", "--slot", "00:00-24:00 P1"},
      {"hour-type", "add", "s", "n", "--yes", "--no"},
      {"hour-type", "remove", "s"},
      {"hour-type", "remove", "s", "n", "--yes"},
      {"day-type", "add", "s", "n", "--value", "1"},
      {"day-type", "modify", "s", "n", "--slot", "00:00-24:00 P1", "--no-slots"},
      {"day-type", "modify", "s", "\xff"}};
  for (auto call : calls) {
    call.push_back("--installation=.");
    const Ended ended = Call(call);
    EXPECT_EQ(ended.status, 2) << testing::PrintToString(call);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors, StartsWith("qvdisc: ")) << testing::PrintToString(call);
  }
}

TEST(TypeArguments, EachVerbHasItsHelpInBothLanguages) {
  for (const std::string kind : {"hour-type", "day-type"}) {
    for (const std::string action : {"list", "add", "modify", "remove"}) {
      EXPECT_THAT(Call({kind, "-h"}).output, HasSubstr("\n  " + action + " "));
      const Ended help = Call({kind, action, "--help"});
      EXPECT_EQ(help.status, 0);
      EXPECT_THAT(help.output,
                  HasSubstr("Usage: qvdisc " + kind + " " + action + " [OPTIONS] STEM"));
      EXPECT_THAT(help.output, HasSubstr("\nExamples:\n  qvdisc " + kind + " " + action + " "));
      const Ended spanish = Call({kind, action, "--help", "--language", "es"});
      EXPECT_THAT(spanish.output, HasSubstr("Uso: qvdisc " + kind + " " + action + " "));
      EXPECT_EQ(std::count(spanish.output.begin(), spanish.output.end(), '\n'),
                std::count(help.output.begin(), help.output.end(), '\n'));
    }
  }
}

}  // namespace
}  // namespace qvdisc
