// What is told of a file that can't be read.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;

class UnreadableTest : public CommandLine {
 protected:
  const std::string file = dayAndNight + ".xdct";
};

TEST_F(UnreadableTest, ADamagedFileIsToldWithItsPlaceByAnyName) {
  Write(file, "<main>\n  <id>1</i>\n");
  const Contents before = All();
  for (const std::string& name :
       {dayAndNight, std::string("day and night"), dayAndNight.substr(0, 36)}) {
    const Json json = DoJson({"modify", name, "--name", "Other"});
    EXPECT_EQ(json["status"], 1);
    ASSERT_EQ(json["texts"].size(), 1U) << name;
    EXPECT_EQ(json["texts"][0]["number"], 60034);
    EXPECT_THAT(std::string(json["texts"][0]["addition"]), HasSubstr(file));
    EXPECT_THAT(std::string(json["texts"][0]["addition"]), HasSubstr("line 2, column "));
  }
  const Ended ended = Do({"modify", dayAndNight, "--name", "Other"});
  EXPECT_THAT(ended.errors, HasSubstr("line 2, column "));
  EXPECT_THAT(ended.errors, HasSubstr("\nqvdisc: There is no discriminator"));
  EXPECT_EQ(All(), before);
}

TEST_F(UnreadableTest, TheReasonOfTheSystemIsTold) {
  std::filesystem::remove(File(file));
  std::filesystem::create_directory(File(file));
  EXPECT_THAT(std::string(DoJson({"show", dayAndNight})["texts"][0]["addition"]),
              HasSubstr("directory"));
}

TEST_F(UnreadableTest, AFileThatCanBeReadGivesNoReason) {
  Edit(file, "<name>Day and night</name>", "<name>Other</name>");
  EXPECT_EQ(DoJson({"modify", dayAndNight})["texts"], Json::array());
  EXPECT_EQ(DoJson({"modify", "nothing"})["texts"], Json::array());
}

/// A disk from which a file vanishes once it has been read.
class VanishingFiles : public qv::Files {
 public:
  std::unique_ptr<qv::FileReader> OpenForReading(std::wstring_view path) override {
    if (path.ends_with(L"Day and night.xdct") && std::exchange(m_wasRead, true)) {
      NoteFailure(std::make_error_code(std::errc::no_such_file_or_directory));
      return nullptr;
    }
    return Disk().OpenForReading(path);
  }
  std::unique_ptr<qv::FileWriter> OpenForWriting(std::wstring_view) override { return nullptr; }
  bool Exists(std::wstring_view path) override { return Disk().Exists(path); }
  qv::Removal Remove(std::wstring_view) override { return qv::Removal::Refused; }
  bool MakeDirectory(std::wstring_view) override { return false; }
  std::vector<std::wstring> Walk(std::wstring_view pattern) override {
    return Disk().Walk(pattern);
  }

 private:
  bool m_wasRead = false;
};

TEST_F(UnreadableTest, WhatCannotBeOpenedAnyMoreIsToldInTheWordsOfTheEditor) {
  for (std::vector<std::string> call :
       std::vector<std::vector<std::string>>{{"modify", dayAndNight, "--name", "Other"},
                                             {"hour-type", "list", dayAndNight},
                                             {"day-type", "remove", dayAndNight, "Summer day"}}) {
    VanishingFiles files;
    call.insert(call.end(), {"--installation", directory.Path().string()});
    const Ended ended = Call(call, {}, false, files);
    EXPECT_EQ(ended.status, 1) << call[0];
    EXPECT_THAT(ended.errors, HasSubstr(file));
    EXPECT_THAT(ended.errors, HasSubstr("No such file"));
  }
}

}  // namespace
}  // namespace qvdisc
