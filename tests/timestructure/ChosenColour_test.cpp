// The colours of hour types and day types: chosen, chosen back, and written.
#include <gtest/gtest.h>

#include "tests/support/Parsed.h"
#include "tests/support/ScriptedPrompter.h"
#include "timestructure/DayTypeForm.h"
#include "timestructure/HourTypeForm.h"
#include "timestructure/TimeSlotForm.h"

namespace qv {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour green = 0x00FF00;

class ChosenColour : public testing::Test {
 protected:
  static std::unique_ptr<XmlNode> TypeOf(const char* tag, const char* colour) {
    const std::string type =
        std::string("<") + tag + "><name>a</name><color>" + colour + "</color></" + tag + ">";
    return Parsed("<types>" + type + "</types>");
  }

  ScriptedPrompter prompter;
};

TEST_F(ChosenColour, ThatWasOpenedIsAChoiceLikeAnother) {
  const auto hours = TypeOf("hour", "0000FF");
  HourTypeForm form(*hours->Node(L"hour"), HourTypes(*hours), prompter);
  EXPECT_TRUE(form.Identity().ChooseColour(green));
  EXPECT_TRUE(form.Identity().ChooseColour(red)) << "it isn't the present one";
  EXPECT_EQ(form.Identity().CurrentColour(), red);
  EXPECT_FALSE(form.Identity().ChooseColour(red));
  EXPECT_EQ(form.Save(L"a", L"").outcome, SaveOutcome::Saved);
  EXPECT_EQ(hours->Node(L"hour")->Value(L"color"), L"0000FF");
}

TEST_F(ChosenColour, IsWrittenAlsoIfItDidNotChange) {
  const auto hours = TypeOf("hour", "00ff0");
  HourTypeForm hour(*hours->Node(L"hour"), HourTypes(*hours), prompter);
  EXPECT_EQ(hour.Save(L"a", L"").outcome, SaveOutcome::Unchanged);
  EXPECT_EQ(hours->Node(L"hour")->Value(L"color"), L"000FF0");

  const auto days = TypeOf("day", "00ff0");
  DayTypeForm day(*days->Node(L"day"), DayTypes(*days), HourTypes(*hours), prompter);
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, true);
  EXPECT_EQ(day.Save(L"a").outcome, SaveOutcome::Unchanged);
  EXPECT_EQ(days->Node(L"day")->Value(L"color"), L"000FF0");
}

TEST_F(ChosenColour, ThatCannotBeReadIsBlackInTheEditorOfASlot) {
  const auto hours = Parsed(
      "<hourTypes><hour><id>1</id><name>a</name></hour>"
      "<hour><id>2</id><name>b</name><color>red</color></hour></hourTypes>");
  const auto slot = Parsed("<slot><id>2</id></slot>");
  TimeSlotForm form(*slot, HourTypes(*hours));
  ASSERT_EQ(form.Choices().size(), 2U);
  EXPECT_EQ(form.Choices()[0].colour, Colour{0});
  EXPECT_EQ(form.SelectedColour(), form.Choices()[1].colour);
  EXPECT_EQ(form.Save().outcome, SaveOutcome::Unchanged);
  EXPECT_EQ(slot->Value(L"id"), L"2");
}

}  // namespace
}  // namespace qv
