#include "apps/qvdisc/RehearsedFiles.h"

#include <gmock/gmock.h>

#include "tests/support/ScriptedFiles.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RehearsedFilesTest : public testing::Test {
 protected:
  RehearsedFilesTest() { disk.contents = {{L"/cfg/a.x", "alpha"}, {L"/cfg/b.x", "beta"}}; }

  ~RehearsedFilesTest() override {
    EXPECT_EQ(disk.contents.size(), 2U);
    EXPECT_EQ(disk.contents[L"/cfg/a.x"], "alpha");
  }

  void Put(std::wstring_view path, std::string_view content) {
    const auto writer = files.OpenForWriting(path);
    ASSERT_TRUE(writer);
    EXPECT_TRUE(writer->Write(content) && writer->Close());
  }

  std::string Get(std::wstring_view path) {
    const auto reader = files.OpenForReading(path);
    std::string content;
    char piece[3];
    for (std::ptrdiff_t size = 0; reader && (size = reader->Read(piece, sizeof piece)) > 0;) {
      content.append(piece, static_cast<std::size_t>(size));
    }
    return reader ? content : "(none)";
  }

  qv::ScriptedFiles disk;
  RehearsedFiles files{disk};
};

TEST_F(RehearsedFilesTest, WhatIsWrittenIsReadAgain) {
  EXPECT_EQ(Get(L"/cfg/a.x"), "alpha");
  Put(L"/cfg/a.x", "one");
  Put(L"/cfg/a.x", "another");
  EXPECT_EQ(Get(L"/cfg/a.x"), "another");
  Put(L"/cfg/new.x", "");
  EXPECT_EQ(Get(L"/cfg/new.x"), "");
  EXPECT_TRUE(files.Exists(L"/cfg/new.x"));
  EXPECT_THAT(files.Changes(),
              ElementsAre(FileChange{L"/cfg/a.x", false}, FileChange{L"/cfg/new.x", false}));
}

TEST_F(RehearsedFilesTest, WhatIsRemovedIsGone) {
  EXPECT_EQ(files.Remove(L"/cfg/a.x"), qv::Removal::Removed);
  EXPECT_EQ(files.Remove(L"/cfg/a.x"), qv::Removal::Missing);
  EXPECT_FALSE(files.Exists(L"/cfg/a.x"));
  EXPECT_EQ(Get(L"/cfg/a.x"), "(none)");
  EXPECT_EQ(files.Failure(), std::errc::no_such_file_or_directory);
  EXPECT_THAT(files.Changes(), ElementsAre(FileChange{L"/cfg/a.x", true}));
}

TEST_F(RehearsedFilesTest, AFileThatOnlyWasThereInBetweenIsNoChange) {
  Put(L"/cfg/new.x", "new");
  EXPECT_EQ(files.Remove(L"/cfg/new.x"), qv::Removal::Removed);
  EXPECT_EQ(files.Remove(L"/cfg/none.x"), qv::Removal::Missing);
  EXPECT_THAT(files.Changes(), IsEmpty());
}

TEST_F(RehearsedFilesTest, AWalkFindsWhatWouldBeThere) {
  Put(L"/cfg/0.x", "");
  Put(L"/cfg/a.x", "");
  Put(L"/cfg/c.y", "");
  Put(L"/cfg/deep/d.x", "");
  files.Remove(L"/cfg/b.x");
  EXPECT_THAT(files.Walk(L"/cfg/*.x"), ElementsAre(L"0.x", L"a.x"));
}

TEST_F(RehearsedFilesTest, DirectoriesAreThereOrNot) {
  disk.directories = {L"/cfg/"};
  EXPECT_TRUE(files.MakeDirectory(L"/cfg/"));
  EXPECT_FALSE(files.MakeDirectory(L"/other/"));
}

TEST_F(RehearsedFilesTest, TheReasonsOfTheDiskArePassedOn) {
  disk.unreadable = {L"/cfg/a.x"};
  EXPECT_EQ(Get(L"/cfg/a.x"), "(none)");
  EXPECT_TRUE(files.Failure());
  files.ForgetFailure();
  EXPECT_EQ(Get(L"/cfg/b.x"), "beta");
  EXPECT_FALSE(files.Failure());
}

}  // namespace
}  // namespace qvdisc
