#include "discriminator/DiscriminatorDirectory.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/ScriptedFiles.h"

namespace qv {
namespace {

using Names = std::vector<std::wstring>;

/// A disk in memory with the directory /cfg/.
class DiscriminatorDirectoryTest : public testing::Test {
 protected:
  void AddEmpty(const Names& fileNames) {
    for (const auto& name : fileNames) {
      files.contents[L"/cfg/" + name];
    }
  }

  ScriptedFiles files;
  DiscriminatorDirectory directory{L"/cfg/", files};
};

TEST_F(DiscriminatorDirectoryTest, AsksTheDiskForNothingWhenItIsMade) {
  EXPECT_EQ(directory.PathOf(L"any.file"), L"/cfg/any.file");
  EXPECT_EQ(directory.PathOfStem(L"1.A"), L"/cfg/1.A.xdct");
  EXPECT_TRUE(files.log.empty());
}

TEST_F(DiscriminatorDirectoryTest, FindsItsDiscriminatorFilesInOneWalk) {
  AddEmpty(
      {L"2.B.xdct", L"1.A.xdct", L"1.A.xdctI", L"A.xdct", L"configuration.xml", L"sub/3.C.xdct"});
  EXPECT_EQ(directory.FileNames(), (Names{L"1.A.xdct", L"2.B.xdct", L"A.xdct"}));
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdct"}));
}

TEST_F(DiscriminatorDirectoryTest, FindsItsIndexFilesInOneWalk) {
  AddEmpty({L"2.B.xdctI", L"1.A.xdct", L"1.A.xdctI", L"I"});
  EXPECT_EQ(directory.IndexFileNames(), (Names{L"1.A.xdctI", L"2.B.xdctI"}));
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdctI"}));
}

TEST_F(DiscriminatorDirectoryTest, FindsNothingInAMissingDirectory) {
  EXPECT_EQ(directory.FileNames(), Names());
  EXPECT_EQ(directory.IndexFileNames(), Names());
  EXPECT_FALSE(directory.HasName(L"A"));
}

TEST_F(DiscriminatorDirectoryTest, KeepsNothingOfAWalk) {
  EXPECT_EQ(directory.FileNames(), Names());
  AddEmpty({L"1.A.xdct"});
  EXPECT_EQ(directory.FileNames(), Names{L"1.A.xdct"});
}

TEST_F(DiscriminatorDirectoryTest, ANameIsWhatStandsBetweenTheFirstTwoDots) {
  AddEmpty({L"1.Night.xdct", L"2.a.b.xdct", L"alone.xdct", L"3..xdct", L"4.index.xdctI"});
  for (const wchar_t* taken : {L"Night", L"nIGHT", L"a", L""}) {
    EXPECT_TRUE(directory.HasName(taken)) << std::wstring(taken);
  }
  for (const wchar_t* free :
       {L"1", L"a.b", L"b", L"alone", L"xdct", L"index", L"Nigh", L"Nights"}) {
    EXPECT_FALSE(directory.HasName(free)) << std::wstring(free);
  }
}

TEST_F(DiscriminatorDirectoryTest, ANameIsLookedUpInOneWalkAndNoFileIsRead) {
  AddEmpty({L"1.A.xdct", L"2.B.xdct"});
  EXPECT_TRUE(directory.HasName(L"B"));
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdct"}));
}

/// A directory in which documents are saved.
class SavedDocument : public DiscriminatorDirectoryTest {
 protected:
  XmlDocument& Parsed(const char* text) {
    EXPECT_TRUE(m_document.Parse(text));
    return m_document;
  }

 private:
  XmlDocument m_document;
};

TEST_F(SavedDocument, StandsUnderItsOwnIdAndName) {
  EXPECT_TRUE(directory.Save(Parsed("<main><id>1</id><name>A b</name></main>")));
  EXPECT_EQ(files.log, (Names{L"write /cfg/1.A b.xdct"}));
  XmlDocument loaded;
  ASSERT_TRUE(directory.Load(loaded, L"1.A b.xdct"));
  EXPECT_EQ(loaded.Root()->Value(L"name"), L"A b");
}

TEST_F(SavedDocument, IsRefusedByTheDisk) {
  files.unwritable.insert(L"/cfg/1.A.xdct");
  EXPECT_FALSE(directory.Save(Parsed("<main><id>1</id><name>A</name></main>")));
}

TEST_F(SavedDocument, IsNeverWrittenToAnotherPlace) {
  EXPECT_FALSE(directory.Save(Parsed("<main><id>1</id><name>/../../etc/passwd</name></main>")));
  EXPECT_FALSE(directory.Save(Parsed("<main><id>../1</id><name>A</name></main>")));
  EXPECT_TRUE(files.log.empty());
}

TEST_F(SavedDocument, OfNothingIsRefused) {
  EXPECT_FALSE(directory.Save(XmlDocument()));
  EXPECT_TRUE(files.log.empty());
}

TEST_F(SavedDocument, WithHourTypesHasAnIndex) {
  const auto& document = Parsed(
      "<main><id>1</id><name>A</name><hourTypes><hour><id>h</id><name>P1</name></hour></hourTypes>"
      "</main>");
  EXPECT_EQ(directory.SaveIndex(*document.Root()), IndexOutcome::Written);
  EXPECT_EQ(files.log, (Names{L"write /cfg/1.A.xdctI"}));
  XmlDocument index;
  ASSERT_TRUE(index.Load(L"/cfg/1.A.xdctI", files));
  EXPECT_EQ(index.Root()->Node(L"hour")->Node(L"id"), nullptr);
  EXPECT_EQ(index.Root()->Node(L"hour")->Value(L"name"), L"P1");
}

TEST_F(SavedDocument, WithoutHourTypesNeedsNoIndex) {
  const auto& document = Parsed("<main><id>1</id><name>A/B</name><conditions/></main>");
  EXPECT_EQ(directory.SaveIndex(*document.Root()), IndexOutcome::NotNeeded);
  EXPECT_TRUE(files.log.empty());
}

TEST_F(SavedDocument, HasNoIndexThatTheDiskRefuses) {
  files.diskSpace = 0;
  const auto& document = Parsed("<main><id>1</id><name>A</name><hourTypes/></main>");
  EXPECT_EQ(directory.SaveIndex(*document.Root()), IndexOutcome::NotWritten);
  EXPECT_TRUE(files.contents.empty());
}

TEST_F(SavedDocument, HasNoIndexInAnotherPlace) {
  const auto& document = Parsed("<main><id>1</id><name>../A</name><hourTypes/></main>");
  EXPECT_EQ(directory.SaveIndex(*document.Root()), IndexOutcome::NotWritten);
  EXPECT_TRUE(files.log.empty());
}

TEST(StemOfDocument, IsMadeOfTheFieldsAsTheyStand) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<any><name>../A</name><id>1</id><id>2</id></any>"));
  EXPECT_EQ(StemOfDocument(*document.Root()), L"1.../A");
  ASSERT_TRUE(document.Parse("<main/>"));
  EXPECT_EQ(StemOfDocument(*document.Root()), L".");
}

}  // namespace
}  // namespace qv
