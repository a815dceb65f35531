// The selection of a slot's times by mouse.
#include <algorithm>
#include <random>

#include "tests/timestructure/TimeSlotFixture.h"
#include "timestructure/TimeGrid.h"

namespace qv {
namespace {

TEST_F(TimeSlotFormTest, AClickSelectsAQuarter) {
  Open("p", "00:00", "00:00");
  form->Times().Press(At(23, 45));
  EXPECT_EQ(Shown(), L"23:45-24:00");
  EXPECT_TRUE(form->IsModified());
  form->Times().Release();
  EXPECT_EQ(form->Times().Selection(), (MinuteRange{At(23, 45), At(24, 0)}));
}

TEST_F(TimeSlotFormTest, ADragGoesForwardsAndBackwards) {
  Open("p", "00:00", "00:00");
  form->Times().Press(At(10, 15));
  form->Times().Move(At(12, 30));
  EXPECT_EQ(Shown(), L"10:15-12:45");
  form->Times().Move(At(9, 0));
  EXPECT_EQ(Shown(), L"09:00-10:30");
  form->Times().Move(At(10, 0));
  EXPECT_EQ(Shown(), L"10:00-10:30");
  form->Times().Move(std::nullopt);
  EXPECT_EQ(Shown(), L"10:00-10:30") << "outside nothing changes";
  EXPECT_EQ(form->Times().Selection(), (MinuteRange{At(10, 0), At(10, 30)}));
}

TEST_F(TimeSlotFormTest, ASelectionFollowsThePointerUntilReleaseOrTheNextPress) {
  Open("p", "00:00", "00:00");
  form->Times().Move(At(5, 0));
  EXPECT_EQ(Shown(), L"00:00-00:00") << "nothing was pressed";
  form->Times().Press(At(10, 0));
  form->Times().Release();
  form->Times().Move(At(12, 0));
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Times().Press(At(11, 0));
  form->Times().Press(At(13, 0));
  EXPECT_EQ(Shown(), L"11:00-11:15") << "the second press only ends the first";
  form->Times().Move(At(14, 0));
  EXPECT_EQ(Shown(), L"11:00-11:15");
  form->Times().Press(At(13, 0));
  form->Times().Press(std::nullopt);
  form->Times().Move(At(14, 0));
  EXPECT_EQ(Shown(), L"13:00-13:15") << "a press outside ends it too";
}

TEST_F(TimeSlotFormTest, ADragDoesNotLockAndDoesNotFree) {
  Open("p", "00:00", "24:00");
  form->Times().Press(At(10, 15));
  EXPECT_EQ(Shown(), L"10:15-10:00") << "the minutes are locked";
  Open("p", "00:00", "01:00");
  form->Times().Press(At(23, 45));
  EXPECT_EQ(Shown(), L"23:45-24:00");
  ExpectLocked(toMinutes, false);
}

TEST_F(TimeSlotFormTest, TheLastMinuteOfAnHourFillsItInThePictureOnly) {
  Open("p", "12:00", "12:59");
  EXPECT_EQ(form->Times().Selection(), (MinuteRange{At(12, 0), At(13, 0)}));
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 12:00-12:59");
  EXPECT_EQ(Open("p", "12:00", "12:58").Times().Selection(), (MinuteRange{At(12, 0), At(12, 58)}));
}

TEST_F(TimeSlotFormTest, NothingIsPaintedOfNoTimeOrOfAWrongOne) {
  EXPECT_FALSE(Open("p", "12:00", "12:00").Times().Selection());
  EXPECT_FALSE(Open("p", "12:01", "12:00").Times().Selection());
  Open("p", "12:00", "13:00");
  form->Times().Type(toHours, L"24");
  form->Times().Type(toMinutes, L"30");
  EXPECT_FALSE(form->Times().Selection()) << "beyond the day";
}

/// The mouse as a person would describe it.
struct MouseModel {
  int start = -1;  ///< while the button is down
  int from = 0;
  int to = 0;

  void Take(int minute) {
    from = std::min(start, minute);
    to = std::max(start, minute) + minutesOfQuarter;
  }
  void Press(std::optional<int> minute) {
    const bool begins = minute && start < 0;
    start = begins ? *minute : -1;
    if (begins) {
      Take(*minute);
    }
  }
  void Move(std::optional<int> minute) {
    if (start >= 0 && minute) {
      Take(*minute);
    }
  }
};

TEST_F(TimeSlotFormTest, RandomMousesFollowTheModelLockedOrNot) {
  std::mt19937 random(5);
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  for (const bool locked : {false, true}) {
    Open("p", "00:00", locked ? "24:00" : "00:00");
    MouseModel model{.start = -1, .from = 0, .to = locked ? At(24, 0) : 0};
    for (int step = 0; step < 20000; ++step) {
      const auto place = below(5) == 0 ? std::nullopt : std::optional(below(96) * minutesOfQuarter);
      switch (below(4)) {
        case 0:
          form->Times().Press(place);
          model.Press(place);
          break;
        case 1:
          form->Times().Release();
          model.start = -1;
          break;
        default:
          form->Times().Move(place);
          model.Move(place);
      }
      const int to = locked ? model.to / 60 * 60 : model.to;
      ASSERT_EQ(Shown(), Format(L"%02d:%02d-%02d:%02d",
                                {model.from / 60, model.from % 60, to / 60, to % 60}))
          << step;
    }
  }
}

/// Presses and moves over all cells against what a person would expect.
TEST_F(TimeSlotFormTest, AnyDragSelectsFromItsFirstToItsLastCell) {
  for (int start = 0; start < 1440; start += minutesOfQuarter) {
    for (int end = 0; end < 1440; end += minutesOfQuarter) {
      Open("p", "00:00", "00:00");
      form->Times().Press(start);
      form->Times().Move(end);
      const int from = std::min(start, end);
      const int to = std::max(start, end) + minutesOfQuarter;
      ASSERT_EQ(form->Times().Selection(), (MinuteRange{from, to})) << start << " " << end;
      ASSERT_EQ(Shown(), Format(L"%02d:%02d-%02d:%02d", {from / 60, from % 60, to / 60, to % 60}));
    }
  }
}

}  // namespace
}  // namespace qv
