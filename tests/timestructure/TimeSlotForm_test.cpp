#include "timestructure/TimeSlotForm.h"

#include <stdexcept>

#include "tests/timestructure/TimeSlotFixture.h"

namespace qv {
namespace {

TEST_F(TimeSlotFormTest, ANewSlotStartsAtMidnightWithTheFirstHourType) {
  Open("", "00:00", "00:00");
  EXPECT_TRUE(form->IsNew());
  EXPECT_EQ(Shown(), L"00:00-00:00");
  EXPECT_EQ(form->Selected(), 0);
  EXPECT_FALSE(form->IsModified());
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 00:00-00:00");
}

TEST_F(TimeSlotFormTest, AnExistingSlotShowsItsHourTypeAndTimes) {
  Open("v", "07:30", "23:59");
  EXPECT_FALSE(form->IsNew());
  EXPECT_EQ(form->Selected(), 1);
  EXPECT_EQ(form->SelectedColour(), 0xFF0000U);
  EXPECT_EQ(Shown(), L"07:30-23:59");
  EXPECT_EQ(form->Times().Spin(fromHours).Text(), L"7");
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
  form->Times().Step(toHours, 1);
  EXPECT_EQ(Shown(), L"12:30-24:00");
  ExpectLocked(toMinutes, true);
  form->Times().Step(toHours, 1);
  EXPECT_EQ(Shown(), L"12:30-24:00") << "no wrap-around";
  form->Times().Step(toHours, -1);
  EXPECT_EQ(Shown(), L"12:30-23:00");
  ExpectLocked(toMinutes, false);
  EXPECT_TRUE(form->IsModified());
}

TEST_F(TimeSlotFormTest, SpinsStopAtTheirEnds) {
  Open("p", "00:00", "10:59");
  form->Times().Step(fromHours, -1);
  form->Times().Step(fromMinutes, -1);
  form->Times().Step(toMinutes, 1);
  EXPECT_EQ(Shown(), L"00:00-10:59");
  EXPECT_FALSE(form->IsModified()) << "nothing changed";
}

TEST_F(TimeSlotFormTest, MinutesTypedWhileLockedCountOnceTheyAreFree) {
  Open("p", "12:00", "24:00");
  form->Times().Type(toMinutes, L"30");
  EXPECT_EQ(Shown(), L"12:00-24:00");
  form->Times().Step(toHours, -1);
  EXPECT_EQ(Shown(), L"12:00-23:30") << "what the field shows";
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 12:00-23:30");
}

TEST_F(TimeSlotFormTest, ALoadedStartOf24LocksItsMinutes) {
  Open("p", "24:00", "24:00");
  ExpectLocked(fromMinutes, true);
  form->Times().Type(fromHours, L"25");
  form->Times().LeaveField(fromHours);
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
  form->Times().Press(At(10, 0));
  form->Times().Type(fromHours, L"3");
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Times().Step(toHours, 1);
  EXPECT_EQ(Shown(), L"10:00-10:15");
  form->Times().Release();
  form->Times().Type(fromHours, L"3");
  EXPECT_EQ(Shown(), L"03:00-10:15");
}

TEST_F(TimeSlotFormTest, ATyped24LeavesTheMinutesFree) {
  Open("p", "12:00", "13:00");
  form->Times().Type(toHours, L"24");
  form->Times().LeaveField(toHours);
  ExpectLocked(toMinutes, false);
  form->Times().Type(toMinutes, L"30");
  form->Times().LeaveField(toMinutes);
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 12:00-24:30");
}

TEST_F(TimeSlotFormTest, ATyped25Becomes24AndLocksTheMinutes) {
  Open("p", "12:00", "13:30");
  form->Times().Type(toHours, L"25");
  EXPECT_EQ(Shown(), L"12:00-13:30") << "out of range: the last position stands";
  form->Times().LeaveField(toHours);
  EXPECT_EQ(Shown(), L"12:00-24:00");
  EXPECT_EQ(form->Times().Spin(toHours).Text(), L"24");
  ExpectLocked(toMinutes, true);
}

TEST_F(TimeSlotFormTest, LeavingALoaded24FreesItsMinutes) {
  Open("p", "12:00", "24:00");
  form->Times().LeaveField(toHours);
  ExpectLocked(toMinutes, false);
  EXPECT_FALSE(form->IsModified()) << "nothing was entered";
}

TEST_F(TimeSlotFormTest, MinutesAboveTheirRangeBecomeTheHighest) {
  Open("p", "12:00", "24:00");
  form->Times().Type(fromMinutes, L"75");
  form->Times().LeaveField(fromMinutes);
  EXPECT_EQ(Shown(), L"12:59-24:00");
  form->Times().Type(toMinutes, L"75");
  form->Times().LeaveField(toMinutes);
  EXPECT_EQ(Shown(), L"12:59-24:00") << "locked at 0";
}

TEST_F(TimeSlotFormTest, AnEmptiedFieldKeepsItsLastPosition) {
  Open("p", "07:30", "08:00");
  form->Times().Type(fromHours, L"");
  form->Times().LeaveField(fromHours);
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 07:30-08:00");
}

TEST_F(TimeSlotFormTest, AStartAfterItsEndIsRefused) {
  Open("p", "08:01", "08:00");
  prompter.ExpectShow(Text::SlotStartAfterEnd);
  EXPECT_FALSE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 08:01-08:00");
}

TEST_F(TimeSlotFormTest, WithoutHourTypesNothingCanBeEntered) {
  hours->Reset();
  Open("", "08:00", "07:00");
  EXPECT_FALSE(form->HasInputs());
  EXPECT_FALSE(form->Selected());
  EXPECT_FALSE(form->SelectedColour());
  for (const TimeField field : {fromHours, fromMinutes, toHours, toMinutes}) {
    EXPECT_FALSE(form->IsSpinEnabled(field));
  }
  prompter.ExpectShow(Text::SlotStartAfterEnd);  // the range is looked at first
  EXPECT_FALSE(Told(prompter, form->Save()));
  Open("", "07:00", "08:00");
  prompter.ExpectShow(Text::NoHourType);
  EXPECT_FALSE(Told(prompter, form->Save()));
}

TEST_F(TimeSlotFormTest, ANewHourTypeEnablesTheInputsAndIsSelectedIfItIsTheFirst) {
  hours->Reset();
  Open("", "07:00", "24:00");
  form->OnAddHourType([&](XmlNode& hour) {
    EXPECT_EQ(hour.Value(L"color"), L"FFFFFF");
    hour.SetValue(L"name", L"New");
    return EditorEnd{true, true};
  });
  EXPECT_EQ(form->Selected(), 0);
  EXPECT_TRUE(form->IsModified());
  EXPECT_TRUE(form->IsSpinEnabled(toMinutes)) << "a locked spin is enabled again";
  EXPECT_EQ(form->Times().Spin(toMinutes).Upper(), 0) << "while its range stays";
}

TEST_F(TimeSlotFormTest, ANewHourTypeLeavesTheSelectedPlace) {
  Open("v", "07:00", "08:00");
  form->OnAddHourType([](XmlNode&) { return EditorEnd{true, false}; });
  EXPECT_EQ(form->Selected(), 1);
  EXPECT_EQ(form->Choices().size(), 3U);
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
  EXPECT_TRUE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 07:00-08:00");
}

TEST_F(TimeSlotFormTest, ANameThatCanNotBeFoundSavesNothingInSilence) {
  hours->Node(L"hour")->SetValue(L"name", L"a?b");
  Open("p", "07:00", "08:00");
  EXPECT_FALSE(Told(prompter, form->Save()));
  EXPECT_EQ(Stored(), L"p 07:00-08:00");
}

}  // namespace
}  // namespace qv
