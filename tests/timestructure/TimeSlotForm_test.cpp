#include "timestructure/TimeSlotForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>

#include "tests/support/ScriptedPrompter.h"
#include "timestructure/TimeGrid.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr TimeField fromHours{SlotEdge::From, true};
constexpr TimeField fromMinutes{SlotEdge::From, false};
constexpr TimeField toHours{SlotEdge::To, true};
constexpr TimeField toMinutes{SlotEdge::To, false};

std::unique_ptr<XmlNode> Parsed(const std::string& text) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(text.c_str()));
  return std::make_unique<XmlNode>(*document.Root());
}

/// A minute of the day, as in "10:15".
int At(int hours, int minutes) { return hours * 60 + minutes; }

class TimeSlotFormTest : public testing::Test {
 protected:
  /// A form of a slot with these values.
  TimeSlotForm& Open(const std::string& id, const std::string& from, const std::string& to) {
    slot = Parsed("<slot><id>" + id + "</id><from>" + from + "</from><to>" + to + "</to></slot>");
    form = std::make_unique<TimeSlotForm>(*hours, *slot, prompter);
    return *form;
  }

  /// The positions of the four spins, as in "07:30-24:00".
  std::wstring Shown() const {
    return Format(L"%02d:%02d-%02d:%02d",
                  {form->Spin(fromHours).Position(), form->Spin(fromMinutes).Position(),
                   form->Spin(toHours).Position(), form->Spin(toMinutes).Position()});
  }

  std::wstring Stored() const {
    return std::wstring(slot->Value(L"id", L"").ToView()) + L" " +
           std::wstring(slot->Value(L"from", L"").ToView()) + L"-" +
           std::wstring(slot->Value(L"to", L"").ToView());
  }

  void ExpectLocked(TimeField minutes, bool locked) const {
    EXPECT_EQ(form->Spin(minutes).Upper(), locked ? 0 : 59);
    EXPECT_EQ(form->IsSpinEnabled(minutes), !locked);
  }

  std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>p</id><name>Peak</name><color>0000FF</color></hour><other/>"
      "<hour><id>v</id><name>Valley</name><color>ff0000</color></hour></hourTypes>");
  std::unique_ptr<XmlNode> slot;
  std::unique_ptr<TimeSlotForm> form;
  ScriptedPrompter prompter;
};

TEST_F(TimeSlotFormTest, ANewSlotStartsAtMidnightWithTheFirstHourType) {
  Open("", "00:00", "00:00");
  EXPECT_TRUE(form->IsNew());
  EXPECT_EQ(Shown(), L"00:00-00:00");
  EXPECT_EQ(form->Selected(), 0);
  EXPECT_FALSE(form->IsModified());
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 00:00-00:00");
}

TEST_F(TimeSlotFormTest, AnExistingSlotShowsItsHourTypeAndTimes) {
  Open("v", "07:30", "23:59");
  EXPECT_FALSE(form->IsNew());
  EXPECT_EQ(form->Selected(), 1);
  EXPECT_EQ(form->SelectionColour(), 0xFF0000U);
  EXPECT_EQ(Shown(), L"07:30-23:59");
  EXPECT_EQ(form->Spin(fromHours).Text(), L"7");
}

TEST_F(TimeSlotFormTest, AnUnknownHourTypeStartsOnTheFirst) {
  EXPECT_EQ(Open("none", "00:00", "01:00").Selected(), 0);
  EXPECT_FALSE(form->IsNew());
}

TEST_F(TimeSlotFormTest, OfEqualIdsTheLastIsSelected) {
  hours->NewChild(L"hour", nullptr)->SetValue(L"id", L"p");
  EXPECT_EQ(Open("p", "00:00", "01:00").Selected(), 2);
}

TEST_F(TimeSlotFormTest, TimesOfAnyTextAreTakenAsNumbers) {
  Open("p", "7:30", "99:99");
  EXPECT_EQ(Shown(), L"07:30-24:00");
  Open("p", "", "abc");
  EXPECT_EQ(Shown(), L"00:00-00:00");
  Open("p", "-5:-3", "7");
  EXPECT_EQ(Shown(), L"00:00-07:07");
  Open("p", "12:75", "13:00");
  EXPECT_EQ(Shown(), L"12:59-13:00");
}

TEST_F(TimeSlotFormTest, ALoadedEndOf24LocksItsMinutes) {
  Open("p", "12:00", "24:00");
  ExpectLocked(toMinutes, true);
  ExpectLocked(fromMinutes, false);
}

TEST_F(TimeSlotFormTest, ArrowsLockTheMinutesAt24AndFreeThemBelow) {
  Open("p", "12:30", "23:45");
  form->Step(toHours, 1);
  EXPECT_EQ(Shown(), L"12:30-24:00");
  ExpectLocked(toMinutes, true);
  form->Step(toHours, 1);
  EXPECT_EQ(Shown(), L"12:30-24:00") << "no wrap-around";
  form->Step(toHours, -1);
  EXPECT_EQ(Shown(), L"12:30-23:00");
  ExpectLocked(toMinutes, false);
  EXPECT_TRUE(form->IsModified());
}

TEST_F(TimeSlotFormTest, SpinsStopAtTheirEnds) {
  Open("p", "00:00", "10:59");
  form->Step(fromHours, -1);
  form->Step(fromMinutes, -1);
  form->Step(toMinutes, 1);
  EXPECT_EQ(Shown(), L"00:00-10:59");
  EXPECT_FALSE(form->IsModified()) << "nothing changed";
}

TEST_F(TimeSlotFormTest, MinutesTypedWhileLockedCountOnceTheyAreFree) {
  Open("p", "12:00", "24:00");
  form->Type(toMinutes, L"30");
  EXPECT_EQ(Shown(), L"12:00-24:00");
  form->Step(toHours, -1);
  EXPECT_EQ(Shown(), L"12:00-23:30") << "what the field shows";
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 12:00-23:30");
}

TEST_F(TimeSlotFormTest, ALoadedStartOf24LocksItsMinutes) {
  Open("p", "24:00", "24:00");
  ExpectLocked(fromMinutes, true);
  form->Type(fromHours, L"25");
  form->LeaveField(fromHours);
  EXPECT_EQ(Shown(), L"24:00-24:00");
}

TEST_F(TimeSlotFormTest, ChoosingTheSameHourTypeIsNoChange) {
  Open("v", "01:00", "02:00");
  form->SelectHourType(1);
  EXPECT_FALSE(form->IsModified());
  form->SelectHourType(0);
  EXPECT_TRUE(form->IsModified());
}

TEST_F(TimeSlotFormTest, ASelectionUnderWayHasTheLastWord) {
  Open("p", "00:00", "00:00");
  form->Press(At(10, 0));
  form->Type(fromHours, L"3");
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Step(toHours, 1);
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Release();
  form->Type(fromHours, L"3");
  EXPECT_EQ(Shown(), L"03:00-10:15");
}

TEST_F(TimeSlotFormTest, ATyped24LeavesTheMinutesFree) {
  Open("p", "12:00", "13:00");
  form->Type(toHours, L"24");
  form->LeaveField(toHours);
  ExpectLocked(toMinutes, false);
  form->Type(toMinutes, L"30");
  form->LeaveField(toMinutes);
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 12:00-24:30");
}

TEST_F(TimeSlotFormTest, ATyped25Becomes24AndLocksTheMinutes) {
  Open("p", "12:00", "13:30");
  form->Type(toHours, L"25");
  EXPECT_EQ(Shown(), L"12:00-13:30") << "out of range: the last position stands";
  form->LeaveField(toHours);
  EXPECT_EQ(Shown(), L"12:00-24:00");
  EXPECT_EQ(form->Spin(toHours).Text(), L"24");
  ExpectLocked(toMinutes, true);
}

TEST_F(TimeSlotFormTest, LeavingALoaded24FreesItsMinutes) {
  Open("p", "12:00", "24:00");
  form->LeaveField(toHours);
  ExpectLocked(toMinutes, false);
  EXPECT_FALSE(form->IsModified()) << "nothing was entered";
}

TEST_F(TimeSlotFormTest, MinutesAboveTheirRangeBecomeTheHighest) {
  Open("p", "12:00", "24:00");
  form->Type(fromMinutes, L"75");
  form->LeaveField(fromMinutes);
  EXPECT_EQ(Shown(), L"12:59-24:00");
  form->Type(toMinutes, L"75");
  form->LeaveField(toMinutes);
  EXPECT_EQ(Shown(), L"12:59-24:00") << "locked at 0";
}

TEST_F(TimeSlotFormTest, AnEmptiedFieldKeepsItsLastPosition) {
  Open("p", "07:30", "08:00");
  form->Type(fromHours, L"");
  form->LeaveField(fromHours);
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 07:30-08:00");
}

TEST_F(TimeSlotFormTest, AStartAfterItsEndIsRefused) {
  Open("p", "08:01", "08:00");
  prompter.ExpectShow(Text::SlotStartAfterEnd);
  EXPECT_FALSE(form->Save());
  EXPECT_EQ(Stored(), L"p 08:01-08:00");
}

TEST_F(TimeSlotFormTest, WithoutHourTypesNothingCanBeEntered) {
  hours->Reset();
  Open("", "08:00", "07:00");
  EXPECT_FALSE(form->HasInputs());
  EXPECT_FALSE(form->Selected());
  EXPECT_FALSE(form->SelectionColour());
  for (const TimeField field : {fromHours, fromMinutes, toHours, toMinutes}) {
    EXPECT_FALSE(form->IsSpinEnabled(field));
  }
  prompter.ExpectShow(Text::SlotStartAfterEnd);  // the range is looked at first
  EXPECT_FALSE(form->Save());
  Open("", "07:00", "08:00");
  prompter.ExpectShow(Text::NoHourType);
  EXPECT_FALSE(form->Save());
}

TEST_F(TimeSlotFormTest, ANewHourTypeEnablesTheInputsAndIsSelectedIfItIsTheFirst) {
  hours->Reset();
  Open("", "07:00", "24:00");
  form->OnAddHourType([&](XmlNode& hour) {
    EXPECT_EQ(hour.Value(L"color", L""), L"FFFFFF");
    hour.SetValue(L"name", L"New");
    return EditorEnd{true, true};
  });
  EXPECT_EQ(form->Selected(), 0);
  EXPECT_TRUE(form->IsModified());
  EXPECT_TRUE(form->IsSpinEnabled(toMinutes)) << "a locked spin is enabled again";
  EXPECT_EQ(form->Spin(toMinutes).Upper(), 0) << "while its range stays";
}

TEST_F(TimeSlotFormTest, ANewHourTypeLeavesTheSelectedPlace) {
  Open("v", "07:00", "08:00");
  form->OnAddHourType([](XmlNode&) { return EditorEnd{true, false}; });
  EXPECT_EQ(form->Selected(), 1);
  EXPECT_EQ(form->HourTypes().size(), 3U);
  EXPECT_FALSE(form->IsModified());
}

TEST_F(TimeSlotFormTest, ACancelledHourTypeIsNoMore) {
  Open("v", "07:00", "08:00");
  const XmlNode before(*hours);
  form->OnAddHourType([](XmlNode&) { return EditorEnd{false, true}; });
  EXPECT_THROW(form->OnAddHourType([](XmlNode&) -> EditorEnd { throw std::runtime_error("x"); }),
               std::runtime_error);
  EXPECT_EQ(*hours, before);
  EXPECT_FALSE(form->IsModified());
}

TEST_F(TimeSlotFormTest, OfTwoEqualNamesTheFirstIsSaved) {
  XmlNode* twin = hours->NewChild(L"hour", nullptr);
  twin->SetValue(L"id", L"t");
  twin->SetValue(L"name", L"Peak");
  Open("t", "07:00", "08:00");
  EXPECT_EQ(form->Selected(), 2);
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 07:00-08:00");
}

TEST_F(TimeSlotFormTest, ANameThatCanNotBeFoundSavesNothingInSilence) {
  hours->Node(L"hour")->SetValue(L"name", L"a?b");
  Open("p", "07:00", "08:00");
  EXPECT_FALSE(form->Save());
  EXPECT_EQ(Stored(), L"p 07:00-08:00");
}

TEST_F(TimeSlotFormTest, AClickSelectsAQuarter) {
  Open("p", "00:00", "00:00");
  form->Press(At(23, 45));
  EXPECT_EQ(Shown(), L"23:45-24:00");
  EXPECT_TRUE(form->IsModified());
  form->Release();
  EXPECT_EQ(form->Selection(), (MinuteRange{At(23, 45), At(24, 0)}));
}

TEST_F(TimeSlotFormTest, ADragGoesForwardsAndBackwards) {
  Open("p", "00:00", "00:00");
  form->Press(At(10, 15));
  form->Move(At(12, 30));
  EXPECT_EQ(Shown(), L"10:15-12:45");
  form->Move(At(9, 0));
  EXPECT_EQ(Shown(), L"09:00-10:30");
  form->Move(At(10, 0));
  EXPECT_EQ(Shown(), L"10:00-10:30");
  form->Move(std::nullopt);
  EXPECT_EQ(Shown(), L"10:00-10:30") << "outside nothing changes";
  EXPECT_EQ(form->Selection(), (MinuteRange{At(10, 0), At(10, 30)}));
}

TEST_F(TimeSlotFormTest, ASelectionFollowsThePointerUntilReleaseOrTheNextPress) {
  Open("p", "00:00", "00:00");
  form->Move(At(5, 0));
  EXPECT_EQ(Shown(), L"00:00-00:00") << "nothing was pressed";
  form->Press(At(10, 0));
  form->Release();
  form->Move(At(12, 0));
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Press(At(11, 0));
  form->Press(At(13, 0));
  EXPECT_EQ(Shown(), L"11:00-11:15") << "the second press only ends the first";
  form->Move(At(14, 0));
  EXPECT_EQ(Shown(), L"11:00-11:15");
  form->Press(At(13, 0));
  form->Press(std::nullopt);
  form->Move(At(14, 0));
  EXPECT_EQ(Shown(), L"13:00-13:15") << "a press outside ends it too";
}

TEST_F(TimeSlotFormTest, ADragDoesNotLockAndDoesNotFree) {
  Open("p", "00:00", "24:00");
  form->Press(At(10, 15));
  EXPECT_EQ(Shown(), L"10:15-10:00") << "the minutes are locked";
  Open("p", "00:00", "01:00");
  form->Press(At(23, 45));
  EXPECT_EQ(Shown(), L"23:45-24:00");
  ExpectLocked(toMinutes, false);
}

TEST_F(TimeSlotFormTest, TheLastMinuteOfAnHourFillsItInThePictureOnly) {
  Open("p", "12:00", "12:59");
  EXPECT_EQ(form->Selection(), (MinuteRange{At(12, 0), At(13, 0)}));
  EXPECT_TRUE(form->Save());
  EXPECT_EQ(Stored(), L"p 12:00-12:59");
  EXPECT_EQ(Open("p", "12:00", "12:58").Selection(), (MinuteRange{At(12, 0), At(12, 58)}));
}

TEST_F(TimeSlotFormTest, NothingIsPaintedOfNoTimeOrOfAWrongOne) {
  EXPECT_FALSE(Open("p", "12:00", "12:00").Selection());
  EXPECT_FALSE(Open("p", "12:01", "12:00").Selection());
  Open("p", "12:00", "13:00");
  form->Type(toHours, L"24");
  form->Type(toMinutes, L"30");
  EXPECT_FALSE(form->Selection()) << "beyond the day";
}

/// The mouse as a person would describe it.
struct MouseModel {
  int start = -1;  ///< while the button is down
  int from = 0;
  int to = 0;

  void Take(int minute) {
    from = std::min(start, minute);
    to = std::max(start, minute) + TimeGrid::quarter;
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
      const auto place =
          below(5) == 0 ? std::nullopt : std::optional(below(96) * TimeGrid::quarter);
      switch (below(4)) {
        case 0:
          form->Press(place);
          model.Press(place);
          break;
        case 1:
          form->Release();
          model.start = -1;
          break;
        default:
          form->Move(place);
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
  for (int start = 0; start < 1440; start += TimeGrid::quarter) {
    for (int end = 0; end < 1440; end += TimeGrid::quarter) {
      Open("p", "00:00", "00:00");
      form->Press(start);
      form->Move(end);
      const int from = std::min(start, end);
      const int to = std::max(start, end) + TimeGrid::quarter;
      ASSERT_EQ(form->Selection(), (MinuteRange{from, to})) << start << " " << end;
      ASSERT_EQ(Shown(), Format(L"%02d:%02d-%02d:%02d", {from / 60, from % 60, to / 60, to % 60}));
    }
  }
}

}  // namespace
}  // namespace qv
