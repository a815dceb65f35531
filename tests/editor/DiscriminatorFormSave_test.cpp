#include "editor/DiscriminatorForm.h"

#include <cerrno>
#include <functional>

#include "tests/editor/FormFixture.h"
#include "tools/Names.h"

namespace qv {
namespace {

const std::string wholeFile =
    "<main><id>1</id><name>old</name><description>d</description>"
    "<setZeroOutsideSlot>T</setZeroOutsideSlot><type>SLOTS</type><hourTypes/><dayTypes/>"
    "<calendar/><revision>r</revision></main>";

/// Fields that leave `wholeFile` as it is.
const DiscriminatorFields unchanged = {L"old", L"d", true};

using Log = std::vector<std::wstring>;

// The checks, in their order.

TEST_F(FormTest, AnEmptyNameIsRefusedFirst) {
  prompter.ExpectShow(Text::DiscriminatorNameMissing);
  auto form = New();
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"", L"with \" quote"))));
  EXPECT_TRUE(files.log.empty());
}

TEST_F(FormTest, ANameThatIsNoIdIsRefusedBeforeItIsLookedFor) {
  for (const wchar_t* name : {L"a.b", L"a?b", L"a=b", L"a/b", L"a<b", L"a|b", L"a*b", L"a\tb"}) {
    prompter.ExpectShow(Text::NameNotAllowed);
    auto form = New();
    EXPECT_FALSE(Told(prompter, form->Save(Named(name, L"\""))));
    EXPECT_TRUE(files.log.empty());
  }
}

TEST_F(FormTest, ANameTooLongForAFileWithALongIdIsRefusedBeforeAnythingIsRemoved) {
  const std::wstring id(200, L'i');
  const std::wstring path = L"/cfg/" + id + L".old.xdct";
  auto form =
      OpenContent("<main><id>" + std::string(200, 'i') + "</id><name>old</name></main>", path);
  prompter.ExpectShow(Text::NameNotAllowed);
  EXPECT_FALSE(Told(prompter, form->Save(Named(std::wstring(60, L'n').c_str()))));
  EXPECT_TRUE(files.contents.contains(path));
  EXPECT_TRUE(Told(prompter, form->Save(Named(std::wstring(40, L'n').c_str()))));
}

TEST_F(FormTest, ATakenNameIsRefusedWhateverItsCase) {
  files.contents[L"/cfg/7.Peak.xdct"] = "";
  for (const wchar_t* name : {L"Peak", L"PEAK", L"peak"}) {
    prompter.ExpectShow(Text::DiscriminatorNameTaken);
    auto form = New();
    EXPECT_FALSE(Told(prompter, form->Save(Named(name, L"\""))));
  }
  EXPECT_EQ(files.log, Log(3, L"walk /cfg/*.xdct"));
}

TEST_F(FormTest, ADescriptionWithAQuoteIsRefusedLast) {
  prompter.ExpectShow(Text::DescriptionWithQuote);
  auto form = New();
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"n", L"say \"hello\""))));
  EXPECT_EQ(files.log, Log{L"walk /cfg/*.xdct"});
}

TEST_F(FormTest, ARefusalLeavesTheDocumentAsItWas) {
  auto form = OpenContent(wholeFile);
  const XmlNode before(form->Root());
  prompter.ExpectShow(Text::DescriptionWithQuote);
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"new", L"\""))));
  EXPECT_EQ(form->Root(), before);
  EXPECT_FALSE(form->IsModified());
}

TEST_F(FormTest, AQuoteInTheNameIsLeftToTheNameCheck) {
  auto form = New();
  const bool allowed = IsValidId(L"a\"b", true);
  if (!allowed) {
    prompter.ExpectShow(Text::NameNotAllowed);
  }
  EXPECT_EQ(Told(prompter, form->Save(Named(L"a\"b"))), allowed);
}

TEST_F(FormTest, OnlyTheTextBetweenTheFirstTwoDotsOfAFileNameIsTaken) {
  files.contents[L"/cfg/abc.xdct"] = "";        // one dot: takes no part
  files.contents[L"/cfg/1.taken.x.xdct"] = "";  // the name ends at the second dot
  EXPECT_TRUE(Told(prompter, New()->Save(Named(L"abc"))));
  EXPECT_TRUE(Told(prompter, New()->Save(Named(L"x"))));
  prompter.ExpectShow(Text::DiscriminatorNameTaken);
  EXPECT_FALSE(Told(prompter, New()->Save(Named(L"TAKEN"))));
}

TEST_F(FormTest, ANameIsTakenByADirectoryAndByAFileThatTheListLeavesOut) {
  files.directories.insert(L"/cfg/1.folder.xdct");
  files.contents[L"/cfg/2.broken.xdct"] = "<";
  files.contents[L"/cfg/3.Renamed.xdct"] = "<main><id>3</id><name>renamed</name></main>";
  for (const wchar_t* name : {L"folder", L"broken", L"renamed"}) {
    prompter.ExpectShow(Text::DiscriminatorNameTaken);
    EXPECT_FALSE(Told(prompter, New()->Save(Named(name))));
  }
}

TEST_F(FormTest, ADiscriminatorMayKeepItsNameOrChangeItsCase) {
  EXPECT_TRUE(Told(prompter, OpenContent(wholeFile)->Save(unchanged)));
  EXPECT_TRUE(Told(prompter, OpenContent(wholeFile)->Save(Named(L"OLD"))));
}

TEST_F(FormTest, ASecondFileOfItsOwnNameIsNotReported) {
  files.contents[L"/cfg/2.old.xdct"] = "";
  EXPECT_TRUE(Told(prompter, OpenContent(wholeFile)->Save(unchanged)));
}

// What is written.

TEST_F(FormTest, TheStepsOnTheDiskComeInTheirOrder) {
  auto form = OpenContent(wholeFile);
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"new"))));
  EXPECT_EQ(files.log, (Log{L"walk /cfg/*.xdct", L"mkdir /cfg/", L"remove /cfg/1.old.xdct",
                            L"remove /cfg/1.old.xdctI", L"write /cfg/1.new.xdct"}));
  ASSERT_EQ(host.createIndex.calls.size(), 1U);
  EXPECT_EQ(host.createIndex.calls[0],
            std::pair(std::wstring(L"/cfg/"), std::wstring(L"new.xdct")));
}

TEST_F(FormTest, ANewDiscriminatorAsksToRemoveEmptyAndIInTheWorkingDirectory) {
  files.contents[L"I"] = "somebody's";
  auto form = New();
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"n"))));
  EXPECT_EQ(files.log[2], L"remove ");
  EXPECT_EQ(files.log[3], L"remove I");
  EXPECT_FALSE(files.contents.contains(L"I"));
}

TEST_F(FormTest, ARenameLeavesOneFileAndChangesTheRevision) {
  files.contents[L"/cfg/1.old.xdctI"] = "index";
  auto form = OpenContent(wholeFile);
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"new", L"d"))));
  ASSERT_EQ(files.contents.size(), 1U);
  EXPECT_EQ(Stored(L"/cfg/1.new.xdct", L"name"), L"new");
  EXPECT_NE(Stored(L"/cfg/1.new.xdct", L"revision"), L"r");
}

TEST_F(FormTest, OkWithoutAChangeRewritesTheFileWithTheSameRevision) {
  auto form = OpenContent(wholeFile);
  ASSERT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_FALSE(form->IsModified());
  EXPECT_EQ(files.log.back(), L"write /cfg/1.old.xdct");
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"revision"), L"r");
}

TEST_F(FormTest, EachOfTheFourComparedFieldsRenewsTheRevision) {
  const std::vector<DiscriminatorFields> changes = {
      {L"Old", L"d", true}, {L"old", L"D", true}, {L"old", L"d", false}};
  for (const auto& change : changes) {
    auto form = OpenContent(wholeFile);
    ASSERT_TRUE(Told(prompter, form->Save(change)));
    EXPECT_TRUE(form->IsModified());
    EXPECT_NE(form->Root().Value(L"revision"), L"r");
    files.contents.clear();
  }
  auto form = OpenContent(wholeFile);
  form->SelectType(DiscriminatorType::Conditions);
  ASSERT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_NE(form->Root().Value(L"revision"), L"r");
}

TEST_F(FormTest, SwitchingAndSavingDropsTheOtherTypeForGood) {
  auto form = OpenContent(wholeFile);
  form->SelectType(DiscriminatorType::Conditions);
  ASSERT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_EQ(Tags(form->Root()), L"id name description setZeroOutsideSlot type revision conditions");
  form->SelectType(DiscriminatorType::Slots);
  ASSERT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_FALSE(form->Root().Node(L"conditions"));
  EXPECT_TRUE(form->Root().Node(L"calendar"));
}

TEST_F(FormTest, TheRootTagSurvivesASave) {
  auto form = OpenContent("<root><id>1</id><name>old</name></root>");
  ASSERT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_EQ(files.contents[L"/cfg/1.old.xdct"].find("<root>"),
            std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n").size());
}

TEST_F(FormTest, ALongNameThatWasLoadedIsNotCut) {
  const std::wstring name(100, L'n');
  auto form = OpenContent("<main><id>1</id><name>" + std::string(100, 'n') + "</name></main>");
  ASSERT_TRUE(Told(prompter, form->Save({name.c_str(), L"", true})));
  EXPECT_EQ(form->Root().Value(L"name").Length(), 100U);
}

// The entry in the host's tree.

TEST_F(FormTest, ANewDiscriminatorGetsAnEntryAtTheTop) {
  auto form = New();
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"n"))));
  const XmlNode* device = deviceGroups.Root()->Node(L"devices")->Node(L"device");
  ASSERT_TRUE(device);
  EXPECT_EQ(device->Value(L"id"), form->Root().Value(L"id", L"?"));
  EXPECT_EQ(device->Value(L"type"), L"R$DISC");
}

TEST_F(FormTest, AnExistingDiscriminatorGetsNoEntry) {
  auto form = OpenContent(wholeFile);
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"new"))));
  EXPECT_EQ(Entries(), 0U);
}

TEST_F(FormTest, AFileWithoutIdGetsOneAndAnEntry) {
  auto form = OpenContent("<main><name>old</name></main>", L"/cfg/.old.xdct");
  ASSERT_TRUE(Told(prompter, form->Save(Named(L"old"))));
  EXPECT_FALSE(files.contents.contains(L"/cfg/.old.xdct"));
  EXPECT_EQ(files.contents.size(), 1U);
  EXPECT_EQ(Entries(), 1U);
}

TEST_F(FormTest, WithoutATreeThereIsNoEntry) {
  const auto form = DiscriminatorForm::Open({host.Services(), files, nullptr}, nullptr);
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"n"))));
}

// Failures.

TEST_F(FormTest, AFullDiskAtAnyByteIsToldAndLeavesNoFile) {
  ASSERT_TRUE(Told(prompter, OpenContent(wholeFile)->Save(Named(L"new", L"d"))));
  const std::size_t size = files.contents[L"/cfg/1.new.xdct"].size();
  for (std::size_t space = 0; space < size; ++space) {
    files.contents = {{L"/cfg/1.old.xdctI", "index"}};
    files.diskSpace.reset();
    auto form = OpenContent(wholeFile);
    files.diskSpace = space;
    prompter.ExpectShow(Text::DiscriminatorNotSaved);
    EXPECT_FALSE(Told(prompter, form->Save(Named(L"new", L"d")))) << space;
    EXPECT_TRUE(files.contents.empty()) << space;
    EXPECT_EQ(form->Root().Value(L"name"), L"new");
  }
  EXPECT_EQ(host.createIndex.calls.size(), 1U) << "no index after a failed save";
}

TEST_F(FormTest, AFailedSaveTellsTheFileAndTheReason) {
  const auto reason = [this](DiscriminatorForm& form) {
    const SaveEnd end = form.Save(Named(L"new", L"d"));
    EXPECT_EQ(end.outcome, SaveOutcome::NotWritten);
    return end.refusal ? end.refusal->addition : Addition();
  };
  const std::wstring path = L"/cfg/1.new.xdct";
  auto form = OpenContent(wholeFile);
  files.writeProtected = {L"/cfg/1.old.xdct"};  // an earlier failure, which nobody is told of
  files.diskSpace = 7;
  EXPECT_EQ(reason(*form), AboutFile(path, {ENOSPC, std::generic_category()}));
  files.unwritable = {path};
  EXPECT_EQ(reason(*form), AboutFile(path, {EACCES, std::generic_category()}));
}

TEST_F(FormTest, AFailedSaveMayBeTriedAgainWithAnotherRevision) {
  auto form = OpenContent(wholeFile);
  form->SelectType(DiscriminatorType::Conditions);
  files.failClose = true;
  prompter.ExpectShow(Text::DiscriminatorNotSaved);
  EXPECT_FALSE(Told(prompter, form->Save(unchanged)));
  EXPECT_TRUE(files.contents.empty());
  EXPECT_FALSE(form->Root().Node(L"calendar")) << "the other type's containers are gone already";
  const QVWideString firstTry = form->Root().Value(L"revision");
  files.failClose = false;
  EXPECT_TRUE(Told(prompter, form->Save(unchanged)));
  EXPECT_NE(form->Root().Value(L"revision"), firstTry);
}

TEST_F(FormTest, EachFailedTryOfANewDiscriminatorAddsAnEntry) {
  auto form = New();
  for (int i = 0; i < 2; ++i) {
    files.unwritable = {L"/cfg/" + std::wstring(form->Root().Value(L"id").ToView()) + L".n.xdct"};
    prompter.ExpectShow(Text::DiscriminatorNotSaved);
    EXPECT_FALSE(Told(prompter, form->Save(Named(L"n"))));
  }
  files.unwritable.clear();
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"n"))));
  EXPECT_EQ(Entries(), 3U);
}

TEST_F(FormTest, ADirectoryOfTheFilesNameMakesTheSaveFail) {
  files.directories.insert(L"/cfg/1.new.xdct");
  auto form = OpenContent(wholeFile);
  prompter.ExpectShow(Text::DiscriminatorNameTaken);
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"new"))));
  files.directories = {L"/cfg/1.OLD.xdct"};
  prompter.ExpectShow(Text::DiscriminatorNotSaved);
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"OLD"))));
  EXPECT_TRUE(files.directories.contains(L"/cfg/1.OLD.xdct"));
}

TEST_F(FormTest, AFullDiskForANewDiscriminatorCanBeOvercome) {
  auto form = New();
  files.diskSpace = 7;
  prompter.ExpectShow(Text::DiscriminatorNotSaved);
  EXPECT_FALSE(Told(prompter, form->Save(Named(L"n"))));
  EXPECT_TRUE(files.contents.empty());
  files.diskSpace.reset();
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"n"))));
  EXPECT_EQ(files.contents.size(), 1U);
  EXPECT_EQ(Entries(), 2U) << "one for each try";
}

TEST_F(FormTest, EachOfTheOtherStepsMayFailAlone) {
  const std::vector<std::function<void()>> failures = {
      [this] { files.refuseDirectories = true; },
      [this] { files.writeProtected = {L"/cfg/1.old.xdct"}; },
      [this] { files.writeProtected = {L"/cfg/1.old.xdctI"}; },
      [this] { host.createIndex.result = false; },
  };
  for (std::size_t i = 0; i < failures.size(); ++i) {
    SCOPED_TRACE(i);
    files = ScriptedFiles();
    files.contents[L"/cfg/1.old.xdctI"] = "index";
    host.createIndex.result = true;
    auto form = OpenContent(wholeFile);
    failures[i]();
    EXPECT_TRUE(Told(prompter, form->Save(Named(L"new", L"d"))));
    EXPECT_EQ(Stored(L"/cfg/1.new.xdct", L"name"), L"new");
    EXPECT_EQ(files.contents.contains(L"/cfg/1.old.xdct"), i == 1);
    EXPECT_EQ(files.contents.contains(L"/cfg/1.old.xdctI"), i == 2);
    EXPECT_EQ(host.createIndex.calls.size(), i + 1) << "the index is asked for all the same";
  }
}

TEST_F(FormTest, WhatTheOtherStepsAnswerIsNotLookedAt) {
  files.contents[L"/cfg/1.old.xdctI"] = "index";
  auto form = OpenContent(wholeFile);
  files.refuseDirectories = true;
  files.writeProtected = {L"/cfg/1.old.xdct", L"/cfg/1.old.xdctI"};
  host.createIndex.result = false;
  EXPECT_TRUE(Told(prompter, form->Save(Named(L"new"))));
  EXPECT_TRUE(files.contents.contains(L"/cfg/1.old.xdct"));
  EXPECT_TRUE(files.contents.contains(L"/cfg/1.new.xdct"));
}

TEST_F(FormTest, AnIdThatLeadsElsewhereIsNeverWrittenTo) {
  auto form = OpenContent("<main><id>../../etc/x</id><name>old</name></main>");
  prompter.ExpectShow(Text::DiscriminatorNotSaved);
  EXPECT_FALSE(Told(prompter, form->Save(unchanged)));
  for (const auto& step : files.log) {
    EXPECT_FALSE(step.starts_with(L"write")) << std::string(step.begin(), step.end());
  }
}

}  // namespace
}  // namespace qv
