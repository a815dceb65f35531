// Which files of a directory are discriminators, and what the list shows of them.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "discriminator/DiscriminatorDirectory.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/TemporaryDirectory.h"

namespace qv {
namespace {

std::string Discriminator(const std::string& id, const std::string& name,
                          const std::string& rest = "") {
  return "<main><id>" + id + "</id><name>" + name + "</name>" + rest + "</main>";
}

/// `levels` elements, each in the one before.
std::string Nested(int levels) {
  std::string text;
  for (int i = 0; i < levels; ++i) {
    text += "<a>";
  }
  for (int i = 0; i < levels; ++i) {
    text += "</a>";
  }
  return text;
}

/// A disk in memory with the directory /cfg/.
class DiscriminatorFileTest : public testing::Test {
 protected:
  std::optional<DiscriminatorSummary> Read(const std::wstring& fileName,
                                           ShowConditions conditions = ShowConditions::Yes) {
    return DiscriminatorDirectory(L"/cfg/", files).Summary(fileName, conditions);
  }

  ScriptedFiles files;
};

TEST_F(DiscriminatorFileTest, ShowsStemNameAndDescription) {
  files.contents[L"/cfg/1.A.xdct"] =
      Discriminator("1", "A", "<description>About &lt;A&gt;</description>");
  const auto shown = Read(L"1.A.xdct");
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->fileStem, L"1.A");
  EXPECT_EQ(shown->name, L"A");
  EXPECT_EQ(shown->description, L"About <A>");
}

TEST_F(DiscriminatorFileTest, MissingDescriptionIsEmpty) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  const auto shown = Read(L"1.A.xdct");
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->description, L"");
}

TEST_F(DiscriminatorFileTest, IsReadOnceAndNeverWritten) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  const auto before = files.contents;
  EXPECT_TRUE(Read(L"1.A.xdct"));
  EXPECT_EQ(files.log, (std::vector<std::wstring>{L"read /cfg/1.A.xdct"}));
  EXPECT_EQ(files.contents, before);
}

/// A file of the directory.
struct Case {
  const char* name;
  std::wstring file;
  std::string content;
};

void PrintTo(const Case& value, std::ostream* out) { *out << value.name; }

class AcceptedFile : public testing::TestWithParam<Case> {};

TEST_P(AcceptedFile, IsListed) {
  ScriptedFiles files;
  files.contents[L"/cfg/" + GetParam().file] = GetParam().content;
  const auto shown =
      DiscriminatorDirectory(L"/cfg/", files).Summary(GetParam().file, ShowConditions::No);
  ASSERT_TRUE(shown);
  EXPECT_EQ(std::wstring(shown->fileStem.ToView()) + L".xdct", GetParam().file);
}

const Case accepted[] = {
    {"Slots", L"1.A.xdct", Discriminator("1", "A", "<type>SLOTS</type>")},
    {"UnknownType", L"1.A.xdct", Discriminator("1", "A", "<type>SEASONS</type>")},
    {"EmptyType", L"1.A.xdct", Discriminator("1", "A", "<type/>")},
    {"NoType", L"1.A.xdct", Discriminator("1", "A")},
    {"TypeInOtherCase", L"1.A.xdct", Discriminator("1", "A", "<type>Conditions</type>")},
    {"TypeWithBlank", L"1.A.xdct", Discriminator("1", "A", "<type>CONDITIONS </type>")},
    {"FirstTypeCounts", L"1.A.xdct",
     Discriminator("1", "A", "<type>SLOTS</type><type>CONDITIONS</type>")},
    {"ConditionsWithoutTheirType", L"1.A.xdct", Discriminator("1", "A", "<conditions/>")},
    {"RootTagRoot", L"1.A.xdct", "<root><id>1</id><name>A</name></root>"},
    {"RootTagOther", L"1.A.xdct", "<other><id>1</id><name>A</name></other>"},
    {"FieldsInOtherOrder", L"1.A.xdct", "<main><type/><name>A</name><x/><id>1</id></main>"},
    {"FirstIdCounts", L"1.A.xdct", "<main><id>1</id><id>2</id><name>A</name></main>"},
    {"FirstNameCounts", L"1.A.xdct", "<main><id>1</id><name>A</name><name>B</name></main>"},
    {"NameWithDots", L"1.A.b.xdct", Discriminator("1", "A.b")},
    {"NameWithBlanks", L"1. A .xdct", Discriminator("1", " A ")},
    {"NameWithReference", L"1.A & B.xdct", Discriminator("1", "A &amp; B")},
    {"NameWithAccent", L"1.a\u00F1o.xdct", Discriminator("1", "a\xC3\xB1o")},
    {"NameBeyondSixteenBits", L"1.\U0001F552.xdct", Discriminator("1", "\xF0\x9F\x95\x92")},
    {"NameLikeTheExtension", L"1..xdct.xdct", Discriminator("1", ".xdct")},
    {"EmptyName", L"1..xdct", Discriminator("1", "")},
    {"EmptyId", L".A.xdct", Discriminator("", "A")},
    {"NoFields", L"..xdct", "<main/>"},
    {"ByteOrderMark", L"1.A.xdct", "\xEF\xBB\xBF" + Discriminator("1", "A")},
    {"DeepestNesting", L"1.A.xdct", Discriminator("1", "A", Nested(511))},
};

INSTANTIATE_TEST_SUITE_P(Table, AcceptedFile, testing::ValuesIn(accepted),
                         [](const auto& test) { return test.param.name; });

class LeftOutFile : public testing::TestWithParam<Case> {};

TEST_P(LeftOutFile, IsNothing) {
  ScriptedFiles files;
  files.contents[L"/cfg/" + GetParam().file] = GetParam().content;
  EXPECT_FALSE(
      DiscriminatorDirectory(L"/cfg/", files).Summary(GetParam().file, ShowConditions::Yes));
}

const Case leftOut[] = {
    {"EmptyFile", L"1.A.xdct", ""},
    {"BlankFile", L"1.A.xdct", " \n"},
    {"PlainText", L"1.A.xdct", "id=1 name=A"},
    {"MissingEndTag", L"1.A.xdct", "<main><id>1</id><name>A</name>"},
    {"TextBehindTheRoot", L"1.A.xdct", Discriminator("1", "A") + "x"},
    {"TwoRoots", L"1.A.xdct", Discriminator("1", "A") + Discriminator("1", "A")},
    {"NotUtf8", L"1.A.xdct", Discriminator("1", "A", "<description>\xFF</description>")},
    {"UnknownEntity", L"1.A.xdct", Discriminator("1", "A", "<description>&x;</description>")},
    {"NestedTooDeep", L"1.A.xdct", Discriminator("1", "A", Nested(512))},
    {"NestedFarTooDeep", L"1.A.xdct", Discriminator("1", "A", Nested(20000))},
    {"RenamedByHand", L"1.B.xdct", Discriminator("1", "A")},
    {"CopiedByHand", L"2.A.xdct", Discriminator("1", "A")},
    {"CaseOfTheName", L"1.a.xdct", Discriminator("1", "A")},
    {"CaseOfTheId", L"AB.A.xdct", Discriminator("aB", "A")},
    {"CaseOfTheExtension", L"1.A.XDCT", Discriminator("1", "A")},
    {"OtherExtension", L"1.A.xdctI", Discriminator("1", "A")},
    {"ExtensionTwice", L"1.A.xdct.xdct", Discriminator("1", "A")},
    {"NoExtension", L"1.A", Discriminator("1", "A")},
    {"TwoDots", L"1..A.xdct", Discriminator("1", "A")},
    {"BlankInTheFileName", L"1.A .xdct", Discriminator("1", "A")},
    {"BlankInTheField", L"1.A.xdct", Discriminator("1", "A ")},
    {"LineBreakInTheField", L"1.A.xdct", Discriminator("1", "A\n")},
    {"NoId", L"1.A.xdct", "<main><name>A</name></main>"},
    {"NoName", L"1.A.xdct", "<main><id>1</id></main>"},
    {"SecondIdDoesNotCount", L"2.A.xdct", "<main><id>1</id><id>2</id><name>A</name></main>"},
    {"SecondNameDoesNotCount", L"1.B.xdct", "<main><id>1</id><name>A</name><name>B</name></main>"},
    {"FieldsAsAttributes", L"1.A.xdct", "<main id='1' name='A'/>"},
    {"FieldsDeeper", L"1.A.xdct", "<x>" + Discriminator("1", "A") + "</x>"},
    {"PathInTheName", L"1.A.xdct", Discriminator("1", "../cfg/1.A")},
    {"PathInTheId", L"1.A.xdct", Discriminator("/cfg/1", "A")},
    {"BackslashInTheName", L"1.A.xdct", Discriminator("1", "..\\A")},
    {"DecomposedAccent", L"1.a\u00F1o.xdct", Discriminator("1", "an\xCC\x83o")},
};

INSTANTIATE_TEST_SUITE_P(Table, LeftOutFile, testing::ValuesIn(leftOut),
                         [](const auto& test) { return test.param.name; });

TEST_F(DiscriminatorFileTest, ConditionsAreLeftOutWhereHidden) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A", "<type>CONDITIONS</type>");
  EXPECT_TRUE(Read(L"1.A.xdct", ShowConditions::Yes));
  EXPECT_FALSE(Read(L"1.A.xdct", ShowConditions::No));
}

TEST_F(DiscriminatorFileTest, MissingFileIsLeftOut) { EXPECT_FALSE(Read(L"1.A.xdct")); }

TEST_F(DiscriminatorFileTest, FileThatCannotBeOpenedIsLeftOut) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A");
  files.unreadable.insert(L"/cfg/1.A.xdct");
  EXPECT_FALSE(Read(L"1.A.xdct"));
}

TEST_F(DiscriminatorFileTest, FileWhoseReadingBreaksOffIsLeftOut) {
  // The half that is read is a whole document.
  const std::string content = Discriminator("1", "A");
  files.contents[L"/cfg/1.A.xdct"] = content + std::string(content.size(), ' ');
  ASSERT_TRUE(Read(L"1.A.xdct"));
  files.breakingReads.insert(L"/cfg/1.A.xdct");
  EXPECT_FALSE(Read(L"1.A.xdct"));
}

TEST_F(DiscriminatorFileTest, PiecesOfAnySizeGiveTheSame) {
  files.contents[L"/cfg/1.a\u00F1o.xdct"] =
      Discriminator("1", "a\xC3\xB1o", "<description>\xF0\x9F\x95\x92 &amp;</description>");
  for (files.pieceSize = 1; files.pieceSize <= 5; ++files.pieceSize) {
    const auto shown = Read(L"1.a\u00F1o.xdct");
    ASSERT_TRUE(shown) << files.pieceSize;
    EXPECT_EQ(shown->description, L"\U0001F552 &") << files.pieceSize;
  }
}

TEST_F(DiscriminatorFileTest, LoadedDocumentIsThatOfTheFile) {
  files.contents[L"/cfg/1.A.xdct"] = Discriminator("1", "A", "<type>CONDITIONS</type>");
  XmlDocument document;
  const DiscriminatorDirectory directory(L"/cfg/", files);
  ASSERT_TRUE(directory.Load(document, L"1.A.xdct"));
  EXPECT_EQ(document.Root()->Value(L"type"), L"CONDITIONS");
  EXPECT_FALSE(directory.Load(document, L"2.B.xdct"));
}

std::string ManyComments() {
  std::string comments;
  for (int i = 0; i < 1000; ++i) {
    comments += "<!--" + std::string(50, 'c') + "-->";
  }
  return comments;
}

/// A file without end: comments behind the start of a discriminator.
class EndlessReader : public FileReader {
 public:
  explicit EndlessReader(std::size_t& bytesRead) : m_bytesRead(bytesRead) {}

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    static const std::string start = "<main><id>1</id><name>A</name>";
    static const std::string comments = ManyComments();
    const std::string& piece = m_bytesRead == 0 ? start : comments;
    const std::size_t count = piece.copy(buffer, size);
    EXPECT_EQ(count, piece.size());
    m_bytesRead += count;
    return static_cast<std::ptrdiff_t>(count);
  }

 private:
  std::size_t& m_bytesRead;
};

class EndlessFiles : public ScriptedFiles {
 public:
  std::size_t bytesRead = 0;

  std::unique_ptr<FileReader> OpenForReading(std::wstring_view /*path*/) override {
    return std::make_unique<EndlessReader>(bytesRead);
  }
};

TEST(LargeDiscriminatorFile, IsReadUpToTheLimitAndLeftOut) {
  EndlessFiles endless;
  EXPECT_FALSE(DiscriminatorDirectory(L"/cfg/", endless).Summary(L"1.A.xdct", ShowConditions::Yes));
  constexpr std::size_t limit = std::size_t{256} * 1024 * 1024;
  EXPECT_GT(endless.bytesRead, limit);
  EXPECT_LT(endless.bytesRead, limit + std::size_t{1024} * 1024);
}

TEST(DiscriminatorFileOnDisk, DirectoryOfThatNameIsLeftOut) {
  const TemporaryDirectory directory;
  std::filesystem::create_directory(directory.Path() / "1.A.xdct");
  EXPECT_FALSE(DiscriminatorDirectory(QVWideString(directory.WidePath()), Files::Disk())
                   .Summary(L"1.A.xdct", ShowConditions::Yes));
}

}  // namespace
}  // namespace qv
