#include "timestructure/HourTypeForm.h"

#include <gtest/gtest.h>

#include "tests/support/Saving.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr qv::Colour red = 0x0000FF;
constexpr qv::Colour green = 0x00FF00;

/// Two hour types: "Peak", red with a value, and "valley", whose colour is written in small
/// letters.
class HourTypeFormTest : public testing::Test {
 protected:
  HourTypeFormTest() {
    EXPECT_TRUE(
        document.Parse("<hourTypes><hour><id>1</id><name>Peak</name><color>0000FF</color>"
                       "<value>7</value></hour>"
                       "<hour><id>2</id><name>valley</name><color>00ff00</color></hour>"
                       "</hourTypes>"));
  }

  XmlNode& Hours() { return *document.Root(); }
  XmlNode& Hour(const wchar_t* name) { return *Hours().NodeV(L"hour?name=%s?", name); }

  /// A new hour type at the end of the list, as the list makes it.
  XmlNode& NewHour() {
    XmlNode* hour = Hours().NewChild(L"hour", nullptr);
    hour->SetValue(L"id", L"3");
    hour->SetValue(L"name", L"");
    hour->SetValue(L"color", L"FFFFFF");
    return *hour;
  }

  HourTypeForm Form(XmlNode& hour) { return HourTypeForm(hour, HourTypes(Hours()), prompter); }

  XmlDocument document;
  ScriptedPrompter prompter;
};

TEST_F(HourTypeFormTest, ReadsNameValueAndColour) {
  auto form = Form(Hour(L"Peak"));
  EXPECT_EQ(form.Identity().OpenedName(), L"Peak");
  EXPECT_EQ(form.Value(), L"7");
  EXPECT_EQ(form.Identity().CurrentColour(), red);
  EXPECT_EQ(Form(Hour(L"valley")).Identity().CurrentColour(), green);
  EXPECT_EQ(Form(Hour(L"valley")).Value(), L"");
}

TEST_F(HourTypeFormTest, SavesNameValueAndColourInThisOrder) {
  XmlNode hour(L"hour");
  auto form = Form(hour);
  EXPECT_TRUE(form.Identity().ChooseColour(0x123ABC));
  EXPECT_TRUE(Told(prompter, form.Save(L"New", L"any text, 1.5e9")));
  EXPECT_TRUE(form.IsModified());
  std::wstring tags;
  for (auto field = hour.ChildsBegin(); field != hour.ChildsEnd(); ++field) {
    tags += std::wstring((*field)->Tag().ToView()) + L" ";
  }
  EXPECT_EQ(tags, L"name value color ");
  EXPECT_EQ(hour.Value(L"name"), L"New");
  EXPECT_EQ(hour.Value(L"color"), L"123ABC");
  EXPECT_EQ(hour.Value(L"value"), L"any text, 1.5e9");
}

TEST_F(HourTypeFormTest, SavingWithoutAChangeWritesTheSameAndTheValue) {
  auto form = Form(Hour(L"valley"));
  EXPECT_TRUE(Told(prompter, form.Save(L"valley", L"")));
  EXPECT_FALSE(form.IsModified());
  ASSERT_TRUE(Hour(L"valley").Node(L"value"));
  EXPECT_EQ(Hour(L"valley").Value(L"color"), L"00FF00") << "as numbers are written";
}

TEST_F(HourTypeFormTest, EachRefusalHasItsTextAndWritesNothing) {
  const XmlNode before(Hours());
  const std::vector<std::pair<const wchar_t*, Text>> refusals = {
      {L"", Text::HourTypeNameMissing}, {L"a.b", Text::NameNotAllowed},
      {L"a?b", Text::NameNotAllowed},   {L"a,b", Text::HourTypeNameForbidden},
      {L"valley", Text::TypeNameTaken},
  };
  for (const auto& [name, text] : refusals) {
    auto form = Form(Hour(L"Peak"));
    prompter.ExpectShow(text);
    EXPECT_FALSE(Told(prompter, form.Save(name, L"v"))) << name;
    EXPECT_FALSE(form.IsModified());
  }
  EXPECT_EQ(Hours(), before);
}

TEST_F(HourTypeFormTest, ACopyMeetsItsOriginal) {
  XmlDocument copy(Hour(L"Peak"));
  auto form = Form(*copy.Root());
  EXPECT_TRUE(Told(prompter, form.Save(L"Peak", L"7"))) << "what it was opened with passes";
  EXPECT_FALSE(form.IsModified());
}

TEST_F(HourTypeFormTest, AnotherOnesColourIsAskedAbout) {
  XmlNode& hour = NewHour();
  auto form = Form(hour);
  EXPECT_TRUE(form.Identity().ChooseColour(red));
  prompter.ExpectAsk(Text::TypeColourTaken, false);
  EXPECT_FALSE(Told(prompter, form.Save(L"n", L"")));
  EXPECT_EQ(form.Identity().CurrentColour(), red);
  EXPECT_EQ(hour.Value(L"color"), L"FFFFFF");
  prompter.ExpectAsk(Text::TypeColourTaken, true);
  EXPECT_TRUE(Told(prompter, form.Save(L"n", L"")));
  EXPECT_EQ(hour.Value(L"color"), L"0000FF");
}

TEST_F(HourTypeFormTest, TheColourThatWasOpenedIsNotAskedAbout) {
  Hour(L"valley").SetValue(L"color", L"0000FF");
  auto form = Form(Hour(L"Peak"));
  form.Identity().ChooseColour(green);
  form.Identity().ChooseColour(red);
  EXPECT_TRUE(Told(prompter, form.Save(L"Peak", L"7")));
  EXPECT_TRUE(form.IsModified()) << "a colour was chosen, though it came back";
}

TEST_F(HourTypeFormTest, AChangedNameOrValueIsAChange) {
  auto renamed = Form(Hour(L"Peak"));
  EXPECT_TRUE(Told(prompter, renamed.Save(L"Other", L"7")));
  EXPECT_TRUE(renamed.IsModified());
  auto valued = Form(Hour(L"Other"));
  EXPECT_TRUE(Told(prompter, valued.Save(L"Other", L"8")));
  EXPECT_TRUE(valued.IsModified());
}

TEST_F(HourTypeFormTest, AColourOfAnyTextIsRead) {
  for (const wchar_t* colour : {L"", L"xyz", L"FFFFFFFFFF", L"12 34"}) {
    Hour(L"Peak").SetValue(L"color", colour);
    auto form = Form(Hour(L"Peak"));
    EXPECT_TRUE(Told(prompter, form.Save(L"Peak", L"7")));
    EXPECT_FALSE(form.IsModified());
  }
}

}  // namespace
}  // namespace qv
