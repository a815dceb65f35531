#include <gtest/gtest.h>

#include "tests/timestructure/TimeSlotFixture.h"

namespace qv {
namespace {

EditorEnd Confirm(XmlNode& hour) {
  hour.SetValue(L"name", L"new");
  return {true, true};
}

EditorEnd ConfirmWithoutChange(XmlNode&) { return {true, false}; }

TEST_F(TimeSlotFormTest, ANewHourTypeLeavesASelectionThatIsNotTheSlotsOwn) {
  Open("p", "07:00", "08:00");
  form->SelectHourType(1);
  form->OnAddHourType(Confirm);
  EXPECT_EQ(form->Selected(), 1);
  EXPECT_EQ(form->SelectedColour(), form->Choices()[1].colour);
}

TEST_F(TimeSlotFormTest, AChangeOfAnHourTypeIsNotLostByALaterOneWithout) {
  Open("p", "07:00", "08:00");
  form->OnAddHourType(Confirm);
  form->OnAddHourType(ConfirmWithoutChange);
  EXPECT_TRUE(form->IsModified());
}

}  // namespace
}  // namespace qv
