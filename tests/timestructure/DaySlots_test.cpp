#include "timestructure/DaySlots.h"

#include <gmock/gmock.h>

#include <array>
#include <cwchar>
#include <random>

#include "tools/Format.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Times {
  const wchar_t* from;
  const wchar_t* to;
};

/// A day type over the hour types "Peak" (red) and "Valley", whose colour is in small letters.
class DaySlotsTest : public testing::Test {
 protected:
  void AddSlot(const wchar_t* id, const wchar_t* from, const wchar_t* to) {
    XmlNode* slot = day.NewChild(L"slot", nullptr);
    slot->SetValue(L"id", id);
    slot->SetValue(L"from", from);
    slot->SetValue(L"to", to);
  }

  /// The day with these slots, as rows.
  DaySlots& Slots(const std::vector<Times>& times) {
    day.Reset();
    for (const Times& slot : times) {
      AddSlot(L"p", slot.from, slot.to);
    }
    slots.Fill();
    return slots;
  }

  XmlNode hours = [] {
    XmlDocument document;
    EXPECT_TRUE(
        document.Parse("<hourTypes><hour><id>p</id><name>Peak</name><color>0000FF</color></hour>"
                       "<hour><id>v</id><name>Valley</name><color>ff0000</color></hour>"
                       "</hourTypes>"));
    return XmlNode(*document.Root());
  }();
  XmlNode day{L"day"};
  DaySlots slots{day, HourTypes(hours)};
};

TEST_F(DaySlotsTest, RowsHaveNameAndColourOfTheirHourTypeInDocumentOrder) {
  AddSlot(L"v", L"12:00", L"24:00");
  day.SetValue(L"name", L"between");
  AddSlot(L"p", L"00:00", L"12:00");
  slots.Fill();
  EXPECT_THAT(slots.Rows(), ElementsAre(SlotRow{L"Valley", 0xFF0000, L"12:00", L"24:00"},
                                        SlotRow{L"Peak", 0x0000FF, L"00:00", L"12:00"}));
}

TEST_F(DaySlotsTest, SlotsWithoutTheirHourTypeGoInSilence) {
  AddSlot(L"none", L"00:00", L"01:00");
  AddSlot(L"p", L"01:00", L"02:00");
  day.NewChild(L"other", nullptr);
  AddSlot(L"", L"02:00", L"03:00");
  AddSlot(L"none", L"03:00", L"04:00");
  AddSlot(L"v", L"04:00", L"05:00");
  AddSlot(L"a?b", L"05:00", L"06:00");
  slots.Fill();
  ASSERT_EQ(slots.Rows().size(), 2U);
  EXPECT_EQ(slots.Rows()[0].from, L"01:00");
  EXPECT_EQ(slots.Rows()[1].from, L"04:00");
  EXPECT_EQ(std::distance(day.ChildsBegin(), day.ChildsEnd()), 3);
  EXPECT_TRUE(day.Node(L"other"));
}

TEST_F(DaySlotsTest, MalformedTimesAreShownAsMidnightAndKept) {
  AddSlot(L"p", L"7:30", L"08-00");
  slots.Fill();
  EXPECT_EQ(slots.Rows()[0].from, L"00:00");
  EXPECT_EQ(slots.Rows()[0].to, L"00:00");
  EXPECT_EQ(slots.SlotOfRow(0)->Value(L"from"), L"7:30");
}

TEST(NormalizeTime, TakesFiveCharactersOfDigitsAroundAColon) {
  for (const wchar_t* good : {L"00:00", L"24:00", L"99:99", L"07:30"}) {
    EXPECT_EQ(NormalizeTime(good), good);
  }
  for (const wchar_t* bad : {L"", L"7:30", L"07:3", L"07.30", L"07:3x", L"x7:30", L"007:30",
                             L"0\u0667:30", L" 7:30", L"07:30 "}) {
    EXPECT_EQ(NormalizeTime(bad), L"00:00") << bad;
  }
}

TEST_F(DaySlotsTest, TheSlotOfARowIsFoundAmongOtherChildren) {
  day.NewChild(L"x", nullptr);
  AddSlot(L"p", L"01:00", L"02:00");
  day.NewChild(L"x", nullptr);
  AddSlot(L"v", L"03:00", L"04:00");
  EXPECT_EQ(slots.SlotOfRow(1)->Value(L"from"), L"03:00");
  EXPECT_EQ(slots.SlotOfRow(2), nullptr);
  EXPECT_EQ(slots.SlotOfRow(-1), nullptr);
}

TEST_F(DaySlotsTest, ACoveredDayHasNoFaultAndNoGap) {
  for (const auto& times :
       std::vector<std::vector<Times>>{{{L"00:00", L"24:00"}},
                                       {{L"00:00", L"12:00"}, {L"12:00", L"24:00"}},
                                       {{L"12:00", L"24:00"}, {L"00:00", L"12:00"}}}) {
    EXPECT_EQ(Slots(times).FirstFault(), std::nullopt);
    EXPECT_TRUE(slots.IsCovered());
  }
}

TEST_F(DaySlotsTest, GapsAreNoFault) {
  for (const auto& times : std::vector<std::vector<Times>>{
           {}, {{L"00:00", L"12:00"}, {L"12:01", L"24:00"}}, {{L"24:00", L"24:00"}}}) {
    EXPECT_EQ(Slots(times).FirstFault(), std::nullopt);
    EXPECT_FALSE(slots.IsCovered());
  }
}

TEST_F(DaySlotsTest, EachFaultHasItsText) {
  const std::vector<std::pair<std::vector<Times>, Text>> faults = {
      {{{L"25:00", L"26:00"}}, Text::SlotHourOutOfRange},
      {{{L"00:00", L"25:00"}}, Text::SlotHourOutOfRange},
      {{{L"24:30", L"24:30"}}, Text::SlotHourOutOfRange},
      {{{L"00:00", L"24:01"}}, Text::SlotHourOutOfRange},
      {{{L"00:60", L"02:00"}}, Text::SlotMinuteOutOfRange},
      {{{L"00:00", L"02:60"}}, Text::SlotMinuteOutOfRange},
      {{{L"00:00", L"02:75"}}, Text::SlotMinuteOutOfRange},
      {{{L"02:00", L"01:59"}}, Text::SlotStartAfterEnd},
      {{{L"00:00", L"12:00"}, {L"11:59", L"24:00"}}, Text::SlotsOverlap},
      {{{L"10:00", L"11:00"}, {L"10:30", L"10:30"}}, Text::SlotsOverlap},
      {{{L"10:00", L"11:00"}, {L"09:00", L"12:00"}}, Text::SlotsOverlap},
      {{{L"10:00", L"11:00"}, {L"25:99", L"01:00"}}, Text::SlotHourOutOfRange},
      {{{L"12:00", L"10:99"}}, Text::SlotMinuteOutOfRange},
      {{{L"02:00", L"01:00"}, {L"25:00", L"25:00"}}, Text::SlotStartAfterEnd},
  };
  for (const auto& [times, text] : faults) {
    const auto fault = Slots(times).FirstFault();
    ASSERT_TRUE(fault) << times.front().from;
    EXPECT_EQ(fault->text, text) << times.front().from;
  }
}

TEST_F(DaySlotsTest, SlotsOfNoLengthMayTouchOthers) {
  EXPECT_EQ(Slots({{L"10:00", L"11:00"}, {L"10:00", L"10:00"}, {L"11:00", L"11:00"}}).FirstFault(),
            std::nullopt);
}

TEST_F(DaySlotsTest, RemoveTakesTheRowAndItsSlot) {
  Slots({{L"00:00", L"01:00"}, {L"01:00", L"02:00"}});
  slots.Remove(0);
  EXPECT_EQ(slots.Rows().size(), 1U);
  EXPECT_EQ(slots.SlotOfRow(0)->Value(L"from"), L"01:00");
  slots.Remove(5);
  EXPECT_EQ(slots.Rows().size(), 1U);
}

/// The first fault of a list of slots, found minute by minute; nothing, and whether the day is
/// covered, otherwise.
struct Judgement {
  std::optional<Text> fault;
  bool covered = false;
};

Judgement Judge(const std::vector<std::pair<int, int>>& slots) {
  std::array<int, 24 * 60> owner{};
  for (std::size_t i = 0; i < slots.size(); ++i) {
    const auto [from, to] = slots[i];
    if (from > to) {
      return {Text::SlotStartAfterEnd, false};
    }
    // A slot of no length owns no minute; it may lie anywhere but inside another one.
    const auto liesInside = [](std::pair<int, int> point, std::pair<int, int> slot) {
      return point.first == point.second && point.first > slot.first && point.first < slot.second;
    };
    if (std::any_of(slots.begin(), slots.begin() + static_cast<std::ptrdiff_t>(i),
                    [&, slot = slots[i]](const auto& earlier) {
                      return liesInside(slot, earlier) || liesInside(earlier, slot);
                    })) {
      return {Text::SlotsOverlap, false};
    }
    for (int minute = from; minute < to; ++minute) {
      if (owner[static_cast<std::size_t>(minute)]++ > 0) {
        return {Text::SlotsOverlap, false};
      }
    }
  }
  return {std::nullopt, std::find(owner.begin(), owner.end(), 0) == owner.end()};
}

TEST_F(DaySlotsTest, RandomDaysAreJudgedAsMinuteByMinute) {
  std::mt19937 random(3);
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  std::array<int, 4> seen{};
  for (int round = 0; round < 5000; ++round) {
    std::vector<std::pair<int, int>> days;
    std::vector<std::wstring> texts;
    // Often the parts of a whole day, so that many days are free of faults.
    int start = 0;
    const int parts = 1 + below(5);
    for (int part = 1; part <= parts; ++part) {
      int end = part == parts ? 1440 : start + 1 + below((1440 - start) / 2);
      if (below(8) == 0) {
        end = below(1441);
      }
      days.emplace_back(start, end);
      if (below(8) == 0) {
        const int point = below(1441);
        days.emplace_back(point, point);
      }
      start = std::min(end, 1438);
    }
    std::shuffle(days.begin(), days.end(), random);
    day.Reset();
    for (const auto& [from, to] : days) {
      AddSlot(L"p", Format(L"%02d:%02d", {from / 60, from % 60}).c_str(),
              Format(L"%02d:%02d", {to / 60, to % 60}).c_str());
    }
    slots.Fill();
    const Judgement expected = Judge(days);
    const auto fault = slots.FirstFault();
    ASSERT_EQ(fault ? std::optional(fault->text) : std::nullopt, expected.fault) << round;
    ASSERT_TRUE(fault || slots.IsCovered() == expected.covered) << round;
    ASSERT_TRUE(fault || slots.Gaps().empty() == expected.covered) << round;
    ++seen[expected.fault ? (*expected.fault == Text::SlotsOverlap ? 0 : 1)
                          : (expected.covered ? 2 : 3)];
  }
  for (const int count : seen) {
    EXPECT_GT(count, 50) << "each judgement has to come up";
  }
}

TEST_F(DaySlotsTest, ThousandsOfSlotsAreReadAndChecked) {
  for (int i = 0; i < 3000; ++i) {
    AddSlot(i % 2 == 0 ? L"p" : L"none", L"10:00", L"10:00");
  }
  slots.Fill();
  EXPECT_EQ(slots.Rows().size(), 1500U);
  EXPECT_EQ(slots.FirstFault(), std::nullopt);
}

}  // namespace
}  // namespace qv
