#include "checks/SlotCheck.h"

#include <gmock/gmock.h>

#include <random>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"
#include "timestructure/DaySlots.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Slot {
  std::string from;
  std::string to;
  std::string id = "h";
};

std::string DayOf(const std::vector<Slot>& slots) {
  std::string xml = "<day><name>D</name>";
  for (const auto& [from, to, id] : slots) {
    xml.append("<slot><id>").append(id).append("</id><from>").append(from);
    xml.append("</from><to>").append(to).append("</to></slot>");
  }
  return xml + "</day>";
}

/// What is found in the slots of the day "D", of which hour type only "h" is there.
Findings Found(const std::vector<Slot>& slots) {
  Findings findings;
  CheckSlots(Tree(DayOf(slots)), {L"h"}, findings);
  return findings;
}

Finding Of(FindingKind kind, const std::wstring& place, const std::wstring& value = {}) {
  return {.kind = kind, .place = L"dayTypes/D" + place, .value = value};
}

TEST(SlotCheck, ADayOfGoodSlotsIsFlawless) {
  EXPECT_THAT(Found({{"12:00", "24:00"}, {"00:00", "12:00"}, {"12:00", "12:00"}}), IsEmpty());
}

TEST(SlotCheck, MinutesWithoutASlotAreCounted) {
  EXPECT_THAT(Found({}), ElementsAre(Of(FindingKind::DayGaps, L"", L"1440")));
  EXPECT_THAT(Found({{"00:01", "12:00"}, {"12:00", "23:59"}}),
              ElementsAre(Of(FindingKind::DayGaps, L"", L"2")));
}

TEST(SlotCheck, EachFaultOfASlotIsTold) {
  EXPECT_THAT(Found({{"7:00", "24:01", "dead"}}),
              ElementsAre(Of(FindingKind::DeadHourType, L"/slot 1 (7:00-24:01)", L"dead"),
                          Of(FindingKind::MalformedTime, L"/slot 1 (7:00-24:01)", L"7:00"),
                          Of(FindingKind::TimeOutOfRange, L"/slot 1 (7:00-24:01)", L"24:01")));
  EXPECT_THAT(Found({{"25:00", "00:60"}}),
              ElementsAre(Of(FindingKind::TimeOutOfRange, L"/slot 1 (25:00-00:60)", L"25:00"),
                          Of(FindingKind::TimeOutOfRange, L"/slot 1 (25:00-00:60)", L"00:60")));
  EXPECT_THAT(Found({{"08:00", "07:59"}}),
              ElementsAre(Of(FindingKind::StartAfterEnd, L"/slot 1 (08:00-07:59)")));
}

TEST(SlotCheck, EachOverlapNamesTheFirstSlotThatItOverlaps) {
  EXPECT_THAT(
      Found({{"00:00", "12:00"}, {"10:00", "14:00"}, {"11:00", "13:00"}, {"14:00", "24:00"}}),
      ElementsAre(
          Of(FindingKind::SlotsOverlap, L"/slot 2 (10:00-14:00)", L"slot 1 (00:00-12:00)"),
          Of(FindingKind::SlotsOverlap, L"/slot 3 (11:00-13:00)", L"slot 1 (00:00-12:00)")));
}

TEST(SlotCheck, ASlotWithWrongTimesOverlapsNoneAndHidesTheGaps) {
  EXPECT_THAT(Found({{"00:00", "12:00"}, {"13:00", "01:00"}, {"", "05:00"}, {"11:59", "12:30"}}),
              ElementsAre(Of(FindingKind::StartAfterEnd, L"/slot 2 (13:00-01:00)"),
                          Of(FindingKind::MalformedTime, L"/slot 3 (-05:00)", L""),
                          Of(FindingKind::SlotsOverlap, L"/slot 4 (11:59-12:30)",
                             L"slot 1 (00:00-12:00)")));
}

/// A time of the form hh:mm, seldom one that no day has.
std::string RandomTime(std::mt19937& random) {
  const auto twoDigits = [](unsigned long number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  };
  const bool isOdd = random() % 40 == 0;
  return twoDigits(random() % (isOdd ? 99 : 24)) + ":" + twoDigits(random() % (isOdd ? 99 : 60));
}

TEST(SlotCheck, FindsAFaultWhereTheEditorOfADayFindsOne) {
  std::mt19937 random(1);
  XmlNode hours = Tree("<hourTypes><hour><id>h</id></hour></hourTypes>");
  int faulty = 0;
  int covered = 0;
  for (int i = 0; i < 2000; ++i) {
    std::vector<Slot> slots;
    std::string start = "00:00";
    const auto count = random() % 4;
    for (std::size_t slot = 0; slot < count; ++slot) {
      const std::string end = slot + 1 == count ? "24:00" : RandomTime(random);
      slots.push_back({random() % 8 == 0 ? RandomTime(random) : start, end});
      start = end;
    }
    XmlNode day = Tree(DayOf(slots));
    DaySlots edited(day, HourTypes(hours));
    edited.Fill();
    const Findings found = Found(slots);
    const bool hasGaps = found.size() == 1 && found[0].kind == FindingKind::DayGaps;
    const bool isFaulty = !found.empty() && !hasGaps;
    ASSERT_EQ(isFaulty, edited.FirstFault().has_value()) << DayOf(slots);
    ASSERT_TRUE(isFaulty || hasGaps == !edited.IsCovered()) << DayOf(slots);
    faulty += isFaulty ? 1 : 0;
    covered += found.empty() ? 1 : 0;
  }
  EXPECT_GT(faulty, 100);
  EXPECT_GT(covered, 100);
}

}  // namespace
}  // namespace qv
