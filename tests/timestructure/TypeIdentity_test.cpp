#include "timestructure/TypeIdentity.h"

#include <gtest/gtest.h>

#include "tests/support/ScriptedPrompter.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour green = 0x00FF00;
constexpr Colour white = 0xFFFFFF;

/// The types "Peak", red, "valley", whose colour is written in small letters, and "white".
class TypeIdentityTest : public testing::Test {
 protected:
  TypeIdentityTest() {
    EXPECT_TRUE(
        document.Parse("<hourTypes><hour><name>Peak</name><color>0000FF</color></hour>"
                       "<hour><name>valley</name><color>00ff00</color></hour>"
                       "<hour><name>white</name><color>FFFFFF</color></hour>"
                       "<other><name>other</name><color>123456</color></other></hourTypes>"));
  }

  XmlNode& Hour(const wchar_t* name) { return *document.Root()->NodeV(L"hour?name=%s?", name); }

  TypeIdentity Identity(const XmlNode& type) {
    return {type,
            {*document.Root(), L"hour"},
            {Text::HourTypeNameMissing, Text::HourTypeNameForbidden},
            prompter};
  }

  static void ExpectRefused(const TypeIdentity& identity, const wchar_t* name, Text text) {
    const auto objection = identity.SeekApproval(name);
    ASSERT_TRUE(objection) << name;
    EXPECT_EQ(*objection, (SaveEnd{SaveOutcome::Refused, Refused(text)})) << name;
  }

  XmlDocument document;
  ScriptedPrompter prompter;
};

TEST_F(TypeIdentityTest, IsReadFromItsNode) {
  const auto identity = Identity(Hour(L"valley"));
  EXPECT_EQ(identity.OpenedName(), L"valley");
  EXPECT_EQ(identity.CurrentColour(), green);
  EXPECT_FALSE(identity.IsRecoloured());
}

TEST_F(TypeIdentityTest, EachFaultOfANameHasItsText) {
  const auto identity = Identity(Hour(L"Peak"));
  ExpectRefused(identity, L"", Text::HourTypeNameMissing);
  ExpectRefused(identity, L"a.b", Text::NameNotAllowed);
  ExpectRefused(identity, L"a?b", Text::NameNotAllowed);
  ExpectRefused(identity, L"a,b", Text::HourTypeNameForbidden);
  ExpectRefused(identity, L"valley", Text::TypeNameTaken);
}

TEST_F(TypeIdentityTest, QuoteAndBackslashAreRefusedByTheirText) {
#ifdef _WIN32
  constexpr Text text = Text::NameNotAllowed;
#else
  constexpr Text text = Text::HourTypeNameForbidden;
#endif
  ExpectRefused(Identity(Hour(L"Peak")), L"a\"b", text);
  ExpectRefused(Identity(Hour(L"Peak")), L"a\\b", text);
}

TEST_F(TypeIdentityTest, TheFirstFaultIsTheOneThatIsTold) {
  Hour(L"white").SetValue(L"name", L"a,b");
  auto identity = Identity(Hour(L"Peak"));
  identity.ChooseColour(white);
  ExpectRefused(identity, L"a.b,", Text::NameNotAllowed);
  ExpectRefused(identity, L"a,b", Text::HourTypeNameForbidden);
  ExpectRefused(identity, L"valley", Text::TypeNameTaken);
}

TEST_F(TypeIdentityTest, WhatItWasOpenedWithPasses) {
  EXPECT_FALSE(Identity(Hour(L"Peak")).SeekApproval(L"Peak"));
  const XmlDocument copy(Hour(L"Peak"));
  EXPECT_FALSE(Identity(*copy.Root()).SeekApproval(L"Peak")) << "a copy meets its original";
}

TEST_F(TypeIdentityTest, NamesThatDifferInCaseAreTwoNames) {
  EXPECT_FALSE(Identity(Hour(L"Peak")).SeekApproval(L"VALLEY"));
}

TEST_F(TypeIdentityTest, ChildrenWithAnotherTagAreNoOthers) {
  auto identity = Identity(Hour(L"Peak"));
  identity.ChooseColour(0x123456);
  EXPECT_FALSE(identity.SeekApproval(L"other"));
}

TEST_F(TypeIdentityTest, AnotherOnesColourIsAskedAbout) {
  auto identity = Identity(Hour(L"valley"));
  EXPECT_TRUE(identity.ChooseColour(red));
  prompter.ExpectAsk(Text::TypeColourTaken, false);
  EXPECT_EQ(identity.SeekApproval(L"valley"), SaveEnd{SaveOutcome::Refused})
      << "the question has said it";
  prompter.ExpectAsk(Text::TypeColourTaken, true);
  EXPECT_FALSE(identity.SeekApproval(L"valley"));
}

TEST_F(TypeIdentityTest, AColourIsLookedForAsItIsWritten) {
  auto identity = Identity(Hour(L"Peak"));
  identity.ChooseColour(green);
  EXPECT_FALSE(identity.SeekApproval(L"Peak")) << "the other one has it in small letters";
}

TEST_F(TypeIdentityTest, ANewTypeThatStaysWhiteIsNotAskedAbout) {
  XmlNode fresh(L"hour");
  fresh.SetValue(L"color", L"FFFFFF");
  EXPECT_FALSE(Identity(fresh).SeekApproval(L"n"));
}

TEST_F(TypeIdentityTest, TheColourThatWasOpenedIsNotAskedAbout) {
  Hour(L"valley").SetValue(L"color", L"0000FF");
  auto identity = Identity(Hour(L"Peak"));
  EXPECT_FALSE(identity.SeekApproval(L"Peak")) << "two of one colour from a file";
  identity.ChooseColour(green);
  identity.ChooseColour(red);
  EXPECT_FALSE(identity.SeekApproval(L"Peak"));
  EXPECT_TRUE(identity.IsRecoloured()) << "a colour was chosen, though it came back";
}

TEST_F(TypeIdentityTest, ChoosingTheSameColourIsNoChange) {
  auto identity = Identity(Hour(L"Peak"));
  EXPECT_FALSE(identity.ChooseColour(red));
  EXPECT_FALSE(identity.IsRecoloured());
}

TEST_F(TypeIdentityTest, AColourOfAnyTextIsRead) {
  const std::pair<const wchar_t*, Colour> colours[] = {
      {L"", 0}, {L"xyz", 0}, {L"12 34", 0x12}, {L"ffG", 0xFF}};
  for (const auto& [text, colour] : colours) {
    Hour(L"Peak").SetValue(L"color", text);
    EXPECT_EQ(Identity(Hour(L"Peak")).CurrentColour(), colour) << text;
  }
}

}  // namespace
}  // namespace qv
