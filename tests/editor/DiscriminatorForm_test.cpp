#include "editor/DiscriminatorForm.h"

#include <cerrno>
#include <stdexcept>

#include "tests/editor/FormFixture.h"

namespace qv {
namespace {

TEST_F(FormTest, ANewDiscriminatorHasAllItNeedsInOrder) {
  const auto form = New();
  ASSERT_TRUE(form);
  EXPECT_TRUE(form->IsNew());
  EXPECT_EQ(form->Root().Tag(), L"main");
  EXPECT_EQ(Tags(form->Root()),
            L"id name description setZeroOutsideSlot type hourTypes dayTypes calendar");
  EXPECT_EQ(form->Root().Value(L"type"), L"SLOTS");
  EXPECT_EQ(form->Root().Value(L"setZeroOutsideSlot"), L"T");
  EXPECT_EQ(form->Root().Value(L"id").Length(), 36U);
  EXPECT_TRUE(files.log.empty()) << "nothing is read or written before OK";
}

TEST_F(FormTest, ANewDiscriminatorStartsBlank) {
  EXPECT_EQ(New()->InitialFields(), (DiscriminatorFields{L"", L"", true}));
}

TEST_F(FormTest, AnOpenedFileShowsItsFields) {
  const auto form = OpenContent(
      "<main><id>1</id><name>old</name><description>d</description>"
      "<setZeroOutsideSlot>F</setZeroOutsideSlot></main>");
  EXPECT_FALSE(form->IsNew());
  EXPECT_EQ(form->InitialFields(), (DiscriminatorFields{L"old", L"d", false}));
}

TEST_F(FormTest, AnyFlagButTIsShownUnticked) {
  for (const char* flag : {"F", "t", "", "TRUE", "1"}) {
    const auto form = OpenContent(std::string("<main><id>1</id><setZeroOutsideSlot>") + flag +
                                  "</setZeroOutsideSlot></main>");
    EXPECT_FALSE(form->InitialFields().setZeroOutsideSlot) << flag;
  }
  EXPECT_TRUE(OpenContent("<main><id>1</id></main>")->InitialFields().setZeroOutsideSlot);
}

TEST_F(FormTest, WhatIsMissingIsAddedAndWhatIsThereStays) {
  const auto form =
      OpenContent("<root><calendar><year/></calendar><name>n</name><id>1</id></root>");
  EXPECT_EQ(form->Root().Tag(), L"root");
  EXPECT_EQ(Tags(form->Root()),
            L"calendar name id description setZeroOutsideSlot type hourTypes dayTypes");
  EXPECT_TRUE(form->Root().Node(L"calendar")->Node(L"year"));
}

TEST_F(FormTest, AFileThatCannotBeLoadedGivesNoDocument) {
  EXPECT_FALSE(OpenContent("<main>"));
  EXPECT_FALSE(Open(L"/cfg/missing.xdct"));
  EXPECT_TRUE(files.log.empty());
}

/// Why the file `path` isn't opened.
class NotOpened : public FormTest {
 protected:
  Addition Reason(const QVWideString& path) {
    std::optional<Refusal> refusal;
    EXPECT_FALSE(DiscriminatorForm::Open(Around(), &path, &refusal));
    EXPECT_TRUE(refusal && refusal->text == Text::DiscriminatorNotOpened);
    return refusal ? refusal->addition : Addition();
  }

  static Addition BySystem(const wchar_t* path, int number) {
    return AboutFile(path, {number, std::generic_category()});
  }
};

TEST_F(NotOpened, AFileThatIsNotThereOrNotReadableSaysWhatTheSystemSays) {
  EXPECT_EQ(Reason(L"/cfg/gone.xdct"), BySystem(L"/cfg/gone.xdct", ENOENT));
  files.contents[L"/cfg/a.xdct"] = "<main><id>1</id></main>";
  files.breakingReads = {L"/cfg/a.xdct"};
  EXPECT_EQ(Reason(L"/cfg/a.xdct"), BySystem(L"/cfg/a.xdct", EIO));
  files.unreadable = {L"/cfg/a.xdct"};
  EXPECT_EQ(Reason(L"/cfg/a.xdct"), BySystem(L"/cfg/a.xdct", EACCES));
}

TEST_F(NotOpened, ADamagedFileSaysWhere) {
  files.contents[L"/cfg/a.xdct"] = "<main>\n <id>1</name>\n</main>";
  EXPECT_EQ(Reason(L"/cfg/a.xdct"), (Addition{{Text::FailedFile, {L"/cfg/a.xdct"}},
                                              {Text::DiscriminatorDamagedAt, {L"2", L"9"}}}));
}

TEST_F(NotOpened, AnEarlierFailureOfTheDiskIsNoReason) {
  EXPECT_FALSE(Open(L"/cfg/gone.xdct"));
  files.contents[L"/cfg/a.xdct"] = "<main>";
  EXPECT_EQ(Reason(L"/cfg/a.xdct").back().text, Text::DiscriminatorDamagedAt);
}

TEST_F(NotOpened, WhatIsOpenedHasNoRefusal) {
  const QVWideString path = L"/cfg/a.xdct";
  files.contents[L"/cfg/a.xdct"] = "<main/>";
  std::optional<Refusal> refusal;
  EXPECT_TRUE(DiscriminatorForm::Open(Around(), &path, &refusal));
  EXPECT_TRUE(DiscriminatorForm::Open(Around(), nullptr, &refusal));
  EXPECT_FALSE(refusal);
}

TEST_F(FormTest, AnEmptyTypeActsAsSlotsAndIsWrittenAtTheNextSave) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
      "<type/></main>");
  EXPECT_EQ(form->Type(), DiscriminatorType::Slots);
  EXPECT_EQ(form->Root().Value(L"type", L"?"), L"");
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"old"))));
  EXPECT_TRUE(form->IsModified());
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"SLOTS");
}

TEST_F(FormTest, AnUnknownTypeIsConditionsAtOpeningAndNotConditionsAtPruning) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><type>SEASONS</type><hourTypes/><conditions/></main>");
  EXPECT_EQ(form->Type(), DiscriminatorType::Conditions);
  EXPECT_TRUE(form->Root().Node(L"conditions"));
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"old"))));
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"SEASONS");
  EXPECT_EQ(Tags(form->Root()), L"id name type hourTypes description setZeroOutsideSlot");
}

TEST_F(FormTest, TheTypeCanBeChosenUnlessTheInstallationIsEmbedded) {
  EXPECT_TRUE(New()->IsTypeSelectable());
  host.AddDevice(L"KORVAXEMBEDDED");
  EXPECT_FALSE(New()->IsTypeSelectable());
}

TEST_F(FormTest, SwitchingToAndFroLosesNothingAndWritesNothing) {
  auto form = OpenContent(
      "<main><id>1</id><name>old</name><type>SLOTS</type>"
      "<hourTypes><hour/></hourTypes></main>");
  form->SelectType(DiscriminatorType::Conditions);
  EXPECT_EQ(form->Type(), DiscriminatorType::Conditions);
  EXPECT_TRUE(form->Root().Node(L"conditions"));
  form->SelectType(DiscriminatorType::Slots);
  EXPECT_EQ(form->Type(), DiscriminatorType::Slots);
  EXPECT_TRUE(form->Root().Node(L"hourTypes")->Node(L"hour"));
  EXPECT_TRUE(form->Root().Node(L"conditions"));
  EXPECT_FALSE(form->IsModified());
  EXPECT_TRUE(files.log.empty());
}

TEST_F(FormTest, ANewDiscriminatorSwitchedToConditionsKeepsOnlyThese) {
  auto form = New();
  form->SelectType(DiscriminatorType::Conditions);
  EXPECT_EQ(Tags(form->Root()),
            L"id name description setZeroOutsideSlot type hourTypes dayTypes calendar conditions");
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"n"))));
  EXPECT_EQ(Tags(form->Root()), L"id name description setZeroOutsideSlot type conditions revision");
}

constexpr char withParts[] =
    "<main><id>1</id><name>old</name><type>SLOTS</type>"
    "<hourTypes><hour><id>h</id></hour></hourTypes><dayTypes><day><id>d</id></day></dayTypes>"
    "<calendar/></main>";

/// The form's document as it stands.
std::wstring PartsOf(const DiscriminatorForm& form) {
  std::wstring ids;
  for (const wchar_t* part : {L"hourTypes", L"dayTypes"}) {
    const XmlNode& node = *form.Root().Node(part);
    for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
      ids += (*child)->Value(L"id", L"?").ToView();
    }
    ids += L"|";
  }
  return ids;
}

TEST_F(FormTest, TheHourTypesDialogWorksOnCopies) {
  auto form = OpenContent(withParts);
  form->OnHourTypes([&](HourTypes hourTypes, DayTypes dayTypes) {
    EXPECT_EQ(hourTypes.Node(), *form->Root().Node(L"hourTypes"));
    EXPECT_EQ(dayTypes.Node(), *form->Root().Node(L"dayTypes"));
    EXPECT_NE(&hourTypes.Node(), form->Root().Node(L"hourTypes"));
    hourTypes.Node().Reset();
    dayTypes.Node().Reset();
    EXPECT_EQ(PartsOf(*form), L"h|d|");
    return EditorEnd{false, true};
  });
  EXPECT_EQ(PartsOf(*form), L"h|d|");
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, ConfirmedHourTypesComeBackWithTheDayTypes) {
  auto form = OpenContent(withParts);
  const XmlNode* hours = form->Root().Node(L"hourTypes");
  form->OnHourTypes([](HourTypes hourTypes, DayTypes dayTypes) {
    hourTypes.Node().NewChild(L"hour", nullptr)->SetValue(L"id", L"H");
    dayTypes.Node().Reset();
    return EditorEnd{true, true};
  });
  EXPECT_EQ(PartsOf(*form), L"hH||");
  EXPECT_TRUE(form->IsModified());
  EXPECT_EQ(form->Root().Node(L"hourTypes"), hours) << "the node stays, its content changes";
}

TEST_F(FormTest, HourTypesConfirmedWithoutAChangeComeBackToo) {
  auto form = OpenContent(withParts);
  form->OnHourTypes([](HourTypes hourTypes, DayTypes) {
    hourTypes.Node().NewChild(L"hour", nullptr)->SetValue(L"id", L"H");
    return EditorEnd{true, false};
  });
  EXPECT_EQ(PartsOf(*form), L"hH|d|");
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, ConfirmedDayTypesComeBackWithCalendarAndHourTypes) {
  auto form = OpenContent(withParts);
  form->OnDayTypes([&](DayTypes dayTypes, Calendar calendar, HourTypes hourTypes) {
    EXPECT_EQ(dayTypes.Node(), *form->Root().Node(L"dayTypes"));
    EXPECT_EQ(calendar.Node(), *form->Root().Node(L"calendar"));
    EXPECT_EQ(hourTypes.Node(), *form->Root().Node(L"hourTypes"));
    dayTypes.Node().Reset();
    hourTypes.Node().Reset();
    calendar.Node().NewChild(L"year", nullptr);
    EXPECT_EQ(PartsOf(*form), L"h|d|");
    return EditorEnd{true, true};
  });
  EXPECT_EQ(PartsOf(*form), L"||");
  EXPECT_TRUE(form->Root().Node(L"calendar")->Node(L"year"));
  EXPECT_TRUE(form->IsModified());
}

TEST_F(FormTest, CancelledDayTypesLeaveTheDocumentAsItWas) {
  auto form = OpenContent(withParts);
  form->OnDayTypes([](DayTypes dayTypes, Calendar calendar, HourTypes hourTypes) {
    dayTypes.Node().Reset();
    hourTypes.Node().Reset();
    calendar.Node().NewChild(L"year", nullptr);
    return EditorEnd{false, true};
  });
  EXPECT_EQ(PartsOf(*form), L"h|d|");
  EXPECT_FALSE(form->Root().Node(L"calendar")->Node(L"year"));
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, TheCalendarWorksOnCopiesOfThreeParts) {
  auto form = OpenContent(withParts);
  form->OnCalendar([&](Calendar calendar, DayTypes dayTypes, HourTypes hourTypes) {
    EXPECT_EQ(calendar.Node(), *form->Root().Node(L"calendar"));
    EXPECT_EQ(dayTypes.Node(), *form->Root().Node(L"dayTypes"));
    EXPECT_EQ(hourTypes.Node(), *form->Root().Node(L"hourTypes"));
    calendar.Node().NewChild(L"year", nullptr);
    dayTypes.Node().Reset();
    hourTypes.Node().Reset();
    EXPECT_EQ(PartsOf(*form), L"h|d|");
    EXPECT_FALSE(form->Root().Node(L"calendar")->Node(L"year"));
    return EditorEnd{true, false};
  });
  EXPECT_EQ(PartsOf(*form), L"||");
  EXPECT_TRUE(form->Root().Node(L"calendar")->Node(L"year"));
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, ACancelledCalendarLeavesTheDocumentAsItWas) {
  auto form = OpenContent(withParts);
  const XmlNode before(form->Root());
  form->OnCalendar([](Calendar calendar, DayTypes dayTypes, HourTypes) {
    calendar.Node().NewChild(L"year", nullptr);
    dayTypes.Node().Reset();
    return EditorEnd{false, true};
  });
  EXPECT_EQ(form->Root(), before);
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, ACalendarThatThrowsLeavesTheDocumentAsItWas) {
  auto form = OpenContent(withParts);
  const XmlNode before(form->Root());
  EXPECT_THROW(form->OnCalendar([](Calendar calendar, DayTypes, HourTypes) -> EditorEnd {
    calendar.Node().NewChild(L"year", nullptr);
    throw std::runtime_error("dialog");
  }),
               std::runtime_error);
  EXPECT_EQ(form->Root(), before);
}

TEST_F(FormTest, AHourTypesDialogThatThrowsLeavesTheDocumentAsItWas) {
  auto form = OpenContent(withParts);
  EXPECT_THROW(form->OnHourTypes([](HourTypes hourTypes, DayTypes) -> EditorEnd {
    hourTypes.Node().Reset();
    throw std::runtime_error("dialog");
  }),
               std::runtime_error);
  EXPECT_EQ(PartsOf(*form), L"h|d|");
}

}  // namespace
}  // namespace qv
