#include "editor/DiscriminatorForm.h"

#include "tests/editor/FormFixture.h"

namespace qv {
namespace {

TEST_F(FormTest, ANewDiscriminatorHasAllItNeedsInOrder) {
  const auto form = New();
  ASSERT_TRUE(form.IsLoaded());
  EXPECT_TRUE(form.IsNew());
  EXPECT_EQ(form.Root().Tag(), L"main");
  EXPECT_EQ(Tags(form.Root()),
            L"id name description setZeroOutsideSlot type hourTypes dayTypes calendar");
  EXPECT_EQ(form.Root().Value(L"type", L""), L"SLOTS");
  EXPECT_EQ(form.Root().Value(L"setZeroOutsideSlot", L""), L"T");
  EXPECT_EQ(form.Root().Value(L"id", L"").Length(), 36U);
  EXPECT_TRUE(files.log.empty()) << "nothing is read or written before OK";
}

TEST_F(FormTest, ANewDiscriminatorStartsBlank) {
  EXPECT_EQ(New().InitialFields(), (DiscriminatorFields{L"", L"", true}));
}

TEST_F(FormTest, AnOpenedFileShowsItsFields) {
  const auto form = OpenContent(
      "<main><id>1</id><name>old</name><description>d</description>"
      "<setZeroOutsideSlot>F</setZeroOutsideSlot></main>");
  EXPECT_FALSE(form.IsNew());
  EXPECT_EQ(form.InitialFields(), (DiscriminatorFields{L"old", L"d", false}));
}

TEST_F(FormTest, AnyFlagButTIsShownUnticked) {
  for (const char* flag : {"F", "t", "", "TRUE", "1"}) {
    const auto form = OpenContent(std::string("<main><id>1</id><setZeroOutsideSlot>") + flag +
                                  "</setZeroOutsideSlot></main>");
    EXPECT_FALSE(form.InitialFields().setZeroOutsideSlot) << flag;
  }
  EXPECT_TRUE(OpenContent("<main><id>1</id></main>").InitialFields().setZeroOutsideSlot);
}

TEST_F(FormTest, WhatIsMissingIsAddedAndWhatIsThereStays) {
  const auto form =
      OpenContent("<root><calendar><year/></calendar><name>n</name><id>1</id></root>");
  EXPECT_EQ(form.Root().Tag(), L"root");
  EXPECT_EQ(Tags(form.Root()),
            L"calendar name id description setZeroOutsideSlot type hourTypes dayTypes");
  EXPECT_TRUE(form.Root().Node(L"calendar")->Node(L"year"));
}

TEST_F(FormTest, AFileThatCannotBeLoadedGivesNoDocument) {
  EXPECT_FALSE(OpenContent("<main>").IsLoaded());
  EXPECT_FALSE(Open(L"/cfg/missing.xdct").IsLoaded());
  EXPECT_TRUE(files.log.empty());
}

TEST_F(FormTest, AnEmptyTypeActsAsSlotsAndIsWrittenAtTheNextSave) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
      "<type/></main>");
  EXPECT_TRUE(form.HasSlots());
  EXPECT_EQ(form.Root().Value(L"type", L"?"), L"");
  EXPECT_TRUE(form.Save(Named(L"old")));
  EXPECT_TRUE(form.IsModified());
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"SLOTS");
}

TEST_F(FormTest, AnUnknownTypeIsConditionsAtOpeningAndNotConditionsAtPruning) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><type>SEASONS</type><hourTypes/><conditions/></main>");
  EXPECT_FALSE(form.HasSlots());
  EXPECT_TRUE(form.Root().Node(L"conditions"));
  EXPECT_TRUE(form.Save(Named(L"old")));
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"SEASONS");
  EXPECT_EQ(Tags(form.Root()), L"id name type hourTypes description setZeroOutsideSlot");
}

TEST_F(FormTest, TheTypeCanBeChosenUnlessTheInstallationIsEmbedded) {
  EXPECT_TRUE(New().IsTypeSelectable());
  host.AddDevice(L"KORVAXEMBEDDED");
  EXPECT_FALSE(New().IsTypeSelectable());
}

TEST_F(FormTest, SwitchingToAndFroLosesNothingAndWritesNothing) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><type>SLOTS</type>"
      "<hourTypes><hour/></hourTypes></main>");
  form.SelectType(1);
  EXPECT_FALSE(form.HasSlots());
  EXPECT_TRUE(form.Root().Node(L"conditions"));
  form.SelectType(0);
  EXPECT_TRUE(form.HasSlots());
  EXPECT_TRUE(form.Root().Node(L"hourTypes")->Node(L"hour"));
  EXPECT_TRUE(form.Root().Node(L"conditions"));
  EXPECT_FALSE(form.IsModified());
  EXPECT_TRUE(files.log.empty());
}

TEST_F(FormTest, ANewDiscriminatorSwitchedToConditionsKeepsOnlyThese) {
  auto form = New();
  form.SelectType(1);
  EXPECT_EQ(Tags(form.Root()),
            L"id name description setZeroOutsideSlot type hourTypes dayTypes calendar conditions");
  ASSERT_TRUE(form.Save(Named(L"n")));
  EXPECT_EQ(Tags(form.Root()), L"id name description setZeroOutsideSlot type conditions revision");
}

}  // namespace
}  // namespace qv
