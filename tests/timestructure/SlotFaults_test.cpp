#include "timestructure/SlotFaults.h"

#include <gmock/gmock.h>

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A slot between two times, as in "08:00" and "24:00".
SlotRange Range(const wchar_t* from, const wchar_t* to) { return {TimeOf(from), TimeOf(to)}; }

TEST(SlotFaults, EachSlotIsToldOnceAndInOrder) {
  EXPECT_THAT(
      FaultsOfSlots({Range(L"00:00", L"25:00"), Range(L"00:60", L"01:00"),
                     Range(L"05:00", L"04:00"), Range(L"06:00", L"07:00")}),
      ElementsAre(SlotFault{0, Text::SlotHourOutOfRange}, SlotFault{1, Text::SlotMinuteOutOfRange},
                  SlotFault{2, Text::SlotStartAfterEnd}));
}

TEST(SlotFaults, AnOverlapNamesTheFirstOfTheEarlierSlots) {
  EXPECT_THAT(
      FaultsOfSlots({Range(L"08:00", L"10:00"), Range(L"10:00", L"12:00"),
                     Range(L"09:00", L"11:00"), Range(L"10:30", L"10:45")}),
      ElementsAre(SlotFault{2, Text::SlotsOverlap, 0}, SlotFault{3, Text::SlotsOverlap, 1}));
}

TEST(SlotFaults, ASlotWithWrongTimesOverlapsNone) {
  EXPECT_THAT(FaultsOfSlots({Range(L"00:00", L"25:00"), Range(L"01:00", L"02:00")}),
              ElementsAre(SlotFault{0, Text::SlotHourOutOfRange}));
}

TEST(SlotFaults, NoSlotsHaveNone) { EXPECT_THAT(FaultsOfSlots({}), IsEmpty()); }

TEST(SlotFaults, TheMinutesOfAllSlotsAreAddedUp) {
  EXPECT_EQ(MinutesOfSlots({}), 0);
  EXPECT_EQ(MinutesOfSlots({Range(L"00:00", L"00:01"), Range(L"12:00", L"24:00")}), 721);
}

TEST(SlotFaults, GapsAreWhatNoSlotCoversInTheOrderOfTheDay) {
  EXPECT_THAT(GapsOfSlots({}), ElementsAre(MinuteRange{0, 1440}));
  EXPECT_THAT(GapsOfSlots({Range(L"00:00", L"24:00")}), IsEmpty());
  EXPECT_THAT(GapsOfSlots({Range(L"12:00", L"13:00"), Range(L"08:00", L"10:00"),
                           Range(L"10:00", L"11:59")}),
              ElementsAre(MinuteRange{0, 480}, MinuteRange{719, 720}, MinuteRange{780, 1440}));
}

TEST(SlotFaults, ASlotOfNoLengthPartsNoGap) {
  EXPECT_THAT(GapsOfSlots({Range(L"10:00", L"10:00"), Range(L"24:00", L"24:00")}),
              ElementsAre(MinuteRange{0, 1440}));
}

}  // namespace
}  // namespace qv
