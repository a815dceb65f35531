#include "hostkit/IndexFiles.h"

#include <gtest/gtest.h>

#include "tests/support/NamedCase.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/TemporaryDirectory.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

using Log = std::vector<std::wstring>;

constexpr char hourTypes[] =
    "<hourTypes><hour><id>h1</id><name>Peak</name><color>0000FF</color><value>3</value></hour>"
    "<hour><id>h2</id><name>Rest</name><color>00FF00</color></hour></hourTypes>";

constexpr char index[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<hourTypes>\n"
    "  <hour>\n"
    "    <name>Peak</name>\n"
    "    <value>3</value>\n"
    "  </hour>\n"
    "  <hour>\n"
    "    <name>Rest</name>\n"
    "  </hour>\n"
    "</hourTypes>\n";

std::string Discriminator(const std::string& id, const std::string& name,
                          const std::string& rest = hourTypes) {
  return "<main><id>" + id + "</id><name>" + name + "</name>" + rest + "</main>";
}

/// A disk in memory with the directory /cfg/.
class IndexFilesTest : public testing::Test {
 protected:
  bool Make(const wchar_t* fileName) { return IndexFiles(files)(L"/cfg/", fileName); }

  ScriptedFiles files;
};

TEST_F(IndexFilesTest, IndexStandsBesideItsDiscriminator) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
  EXPECT_EQ(files.contents.size(), 2U);
}

TEST_F(IndexFilesTest, TouchesNothingElse) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/2.B.xdct"] = Discriminator("2", "B");
  files.contents[L"/cfg/configuration.xml"] = "<configuration/>";
  files.contents[L"/other/3.A.xdct"] = Discriminator("3", "A");
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.log, (Log{L"walk /cfg/*.xdct", L"read /cfg/1.A.xdct", L"write /cfg/1.A.xdctI"}));
}

TEST_F(IndexFilesTest, ReplacesTheIndexOfBefore) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/1.A.xdctI"] = std::string(10000, 'x');
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
}

TEST_F(IndexFilesTest, MakesTheIndexOfEachFileOfTheName) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/2.A.xdct"] = Discriminator("2", "A", "<hourTypes/>");
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
  EXPECT_EQ(files.contents.at(L"/cfg/2.A.xdctI"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<hourTypes/>\n");
}

TEST_F(IndexFilesTest, SucceedsAlsoIfAnotherOfTheNameIsNotConcerned) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/2.A.xdct"] = Discriminator("2", "A", "<conditions/>");
  files.contents[L"/cfg/3.A.xdct"] = Discriminator("3", "B");
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.size(), 4U);
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
}

TEST_F(IndexFilesTest, TakesARootOfAnyTag) {
  files.contents[L"/cfg/1.A.xdct"] =
      "<root><id>1</id><name>A</name>" + std::string(hourTypes) + "</root>";
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
}

TEST_F(IndexFilesTest, TakesANameWithDots) {
  files.contents[L"/cfg/1.A.b.xdct"] = Discriminator("1", "A.b");
  files.contents[L"/cfg/2.b.xdct"] = Discriminator("2", "b");
  EXPECT_TRUE(Make(L"A.b.xdct"));
  EXPECT_TRUE(files.contents.contains(L"/cfg/1.A.b.xdctI"));
  EXPECT_FALSE(files.contents.contains(L"/cfg/2.b.xdctI"));
}

TEST_F(IndexFilesTest, TakesANameThatEndsLikeTheExtension) {
  files.contents[L"/cfg/1.A.xdct.xdct"] = Discriminator("1", "A.xdct");
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_TRUE(Make(L"A.xdct.xdct"));
  EXPECT_TRUE(files.contents.contains(L"/cfg/1.A.xdct.xdctI"));
}

TEST_F(IndexFilesTest, TakesANameWithReferencesAndAccents) {
  files.contents[L"/cfg/1.A & \u00F1.xdct"] = Discriminator("1", "A &amp; \xC3\xB1");
  EXPECT_TRUE(Make(L"A & \u00F1.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A & \u00F1.xdctI"), index);
}

/// A file in the directory for which no index is made under the name "A".
struct Unconcerned : NamedCase {
  std::wstring file;
  std::string content;
  bool isRead;  ///< its name alone doesn't say so
};

class IndexFilesPassOver : public testing::TestWithParam<Unconcerned> {};

TEST_P(IndexFilesPassOver, File) {
  ScriptedFiles files;
  const std::wstring path = L"/cfg/" + GetParam().file;
  files.contents[path] = GetParam().content;
  const auto before = files.contents;
  EXPECT_FALSE(IndexFiles(files)(L"/cfg/", L"A.xdct"));
  EXPECT_EQ(files.contents, before);
  Log expected{L"walk /cfg/*.xdct"};
  if (GetParam().isRead) {
    expected.push_back(L"read " + path);
  }
  EXPECT_EQ(files.log, expected);
}

const Unconcerned unconcerned[] = {
    {"OtherName", L"1.B.xdct", Discriminator("1", "A"), false},
    {"OtherCaseOfTheName", L"1.a.xdct", Discriminator("1", "a"), false},
    {"LongerName", L"1.AB.xdct", Discriminator("1", "AB"), false},
    {"NameBehindMoreDots", L"1.x.A.xdct", Discriminator("1", "x.A"), false},
    {"NameBeforeMoreDots", L"1.A.x.xdct", Discriminator("1", "A.x"), false},
    {"DotInTheId", L"1.x.A.xdct", Discriminator("1.x", "A"), false},
    {"NameWithoutId", L"A.xdct", Discriminator("", "A"), false},
    {"IdAlone", L"1.xdct", Discriminator("1", "A"), false},
    {"IndexFile", L"1.A.xdctI", Discriminator("1", "A"), false},
    {"OtherExtension", L"1.A.xml", Discriminator("1", "A"), false},
    {"OtherCaseOfTheExtension", L"1.A.XDCT", Discriminator("1", "A"), false},
    {"OtherNameInside", L"1.A.xdct", Discriminator("1", "B"), true},
    {"OtherCaseInside", L"1.A.xdct", Discriminator("1", "a"), true},
    {"OtherIdInside", L"1.A.xdct", Discriminator("2", "A"), true},
    {"NoIdInside", L"1.A.xdct", "<main><name>A</name><hourTypes/></main>", true},
    {"NotWellFormed", L"1.A.xdct", "<main><id>1</id><name>A</name><hourTypes/>", true},
    {"EmptyFile", L"1.A.xdct", "", true},
    {"NoHourTypes", L"1.A.xdct", Discriminator("1", "A", "<type>SLOTS</type>"), true},
    {"Conditions", L"1.A.xdct",
     Discriminator("1", "A", "<type>CONDITIONS</type><conditions/><revision>r</revision>"), true},
    {"HourTypesDeeper", L"1.A.xdct", Discriminator("1", "A", "<a><hourTypes/></a>"), true},
};

INSTANTIATE_TEST_SUITE_P(Table, IndexFilesPassOver, testing::ValuesIn(unconcerned),
                         testing::PrintToStringParamName());

TEST_F(IndexFilesTest, PassesOverAFileThatCannotBeOpened) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.unreadable.insert(L"/cfg/1.A.xdct");
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_EQ(files.log, (Log{L"walk /cfg/*.xdct", L"read /cfg/1.A.xdct"}));
}

TEST_F(IndexFilesTest, PassesOverAFileWhoseReadingBreaksOff) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/2.A.xdct"] = Discriminator("2", "A");
  files.breakingReads.insert(L"/cfg/1.A.xdct");
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_FALSE(files.contents.contains(L"/cfg/1.A.xdctI"));
  EXPECT_EQ(files.contents.at(L"/cfg/2.A.xdctI"), index);
}

TEST_F(IndexFilesTest, PassesOverADirectoryNamedLikeAFile) {
  files.directories.insert(L"/cfg/1.A.xdct");
  EXPECT_FALSE(Make(L"A.xdct"));
}

TEST_F(IndexFilesTest, FindsNothingInAMissingDirectory) {
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_EQ(files.log, (Log{L"walk /cfg/*.xdct"}));
}

TEST_F(IndexFilesTest, FindsNothingForANameWithoutTheExtension) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  for (const wchar_t* name : {L"", L"A", L"A.", L"A.xdctI", L"A.XDCT", L"xdct", L".xdct"}) {
    EXPECT_FALSE(Make(name)) << ToUtf8(name).value_or("?");
  }
  EXPECT_EQ(files.contents.size(), 1U);
}

TEST_F(IndexFilesTest, IndexThatCannotBeOpenedGivesFalse) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.unwritable.insert(L"/cfg/1.A.xdctI");
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_FALSE(files.contents.contains(L"/cfg/1.A.xdctI"));
}

TEST_F(IndexFilesTest, OneThatCannotBeWrittenDoesNotStopTheOthers) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.contents[L"/cfg/2.A.xdct"] = Discriminator("2", "A");
  files.unwritable.insert(L"/cfg/1.A.xdctI");
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/2.A.xdctI"), index);
}

TEST_F(IndexFilesTest, FullDiskLeavesNoHalfWrittenIndex) {
  const std::string discriminator = Discriminator("1", "A");
  for (std::size_t space = 0; space < std::string(index).size(); ++space) {
    files.contents = {{L"/cfg/1.A.xdct", discriminator}, {L"/cfg/1.A.xdctI", "before"}};
    files.diskSpace = space;
    EXPECT_FALSE(Make(L"A.xdct")) << space;
    const std::map<std::wstring, std::string> untouched = {{L"/cfg/1.A.xdct", discriminator}};
    EXPECT_EQ(files.contents, untouched) << space;
  }
}

TEST_F(IndexFilesTest, ExactRoomIsEnough) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.diskSpace = std::string(index).size();
  EXPECT_TRUE(Make(L"A.xdct"));
  EXPECT_EQ(files.contents.at(L"/cfg/1.A.xdctI"), index);
}

TEST_F(IndexFilesTest, FailureToCloseGivesFalseAndNoIndex) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.failClose = true;
  EXPECT_FALSE(Make(L"A.xdct"));
  EXPECT_FALSE(files.contents.contains(L"/cfg/1.A.xdctI"));
}

/// The example installation in a directory of its own, without its index files.
class IndexFilesOfTheExample : public testing::Test {
 protected:
  IndexFilesOfTheExample() {
    for (const auto& entry : fs::directory_iterator(example)) {
      const bool isIndex = entry.path().extension() == ".xdctI";
      (isIndex ? indexes : others).insert(entry.path().filename());
      if (!isIndex) {
        fs::copy_file(entry.path(), directory.Path() / entry.path().filename());
      }
    }
  }

  std::set<fs::path> FilesOfTheCopy() const {
    std::set<fs::path> names;
    for (const auto& entry : fs::directory_iterator(directory.Path())) {
      names.insert(entry.path().filename());
    }
    return names;
  }

  /// `<name>.xdct` of `<id>.<name>.xdct` or of its index file.
  static std::wstring Request(const fs::path& file) {
    const std::wstring stem = file.stem().wstring();
    return stem.substr(stem.find(L'.') + 1) + L".xdct";
  }

  bool Make(const std::wstring& request) const {
    return IndexFiles()(QVWideString(directory.WidePath()), QVWideString(request));
  }

  const fs::path example = fs::path(QV_PROJECT_DIR) / "examples" / "installation";
  TemporaryDirectory directory;
  std::set<fs::path> indexes;  ///< the names of the index files of the example
  std::set<fs::path> others;   ///< the names of its other files
};

TEST_F(IndexFilesOfTheExample, AreReproducedByteForByte) {
  ASSERT_EQ(indexes.size(), 3U);
  for (const fs::path& name : indexes) {
    EXPECT_TRUE(Make(Request(name))) << name;
    EXPECT_EQ(FileBytes(directory.Path() / name), FileBytes(example / name)) << name;
  }
}

TEST_F(IndexFilesOfTheExample, LeaveEveryOtherFileAlone) {
  for (const fs::path& name : others) {
    Make(Request(name));
  }
  std::set<fs::path> expected = others;
  expected.insert(indexes.begin(), indexes.end());
  EXPECT_EQ(FilesOfTheCopy(), expected);
  for (const fs::path& name : others) {
    EXPECT_EQ(FileBytes(directory.Path() / name), FileBytes(example / name)) << name;
  }
}

TEST_F(IndexFilesOfTheExample, ConditionsHaveNone) {
  EXPECT_FALSE(Make(L"Transformer station state.xdct"));
  EXPECT_EQ(FilesOfTheCopy(), others);
}

}  // namespace
}  // namespace qv
