#include "tools/XmlDocument.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/ScriptedFiles.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/tools/Trees.h"

namespace qv {
namespace {

using Log = std::vector<std::wstring>;

std::string Content(const XmlDocument& document) {
  return document.Root() ? Outline(*document.Root()) : "(empty)";
}

constexpr const char* declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

class XmlDocumentFiles : public testing::Test {
 protected:
  XmlDocumentFiles() {
    files.contents[L"/cfg/a.xml"] = "<main><id>1</id><a/></main>";
    files.contents[L"/cfg/b.xml"] = "<root><b>2</b></root>";
    files.contents[L"/cfg/broken.xml"] = "<main><id>3</id>";
    files.directories.insert(L"/cfg");
  }

  ScriptedFiles files;
  XmlDocument document;
};

static_assert(std::has_virtual_destructor_v<XmlDocument>);

TEST(XmlDocument, LetsAClassOnTopOfItTakeOverResetLoadAndSave) {
  struct Recording : XmlDocument {
    void Reset() override { log += "reset "; }
    bool Load(const wchar_t*, Files&) override { return (log += "load ").empty(); }
    bool Save(Files&) const override { return (log += "save ").empty(); }
    mutable std::string log;
  };
  Recording recording;
  XmlDocument& document = recording;
  document.Reset();
  EXPECT_FALSE(document.Load(L"a"));
  EXPECT_FALSE(document.Save());
  EXPECT_EQ(recording.log, "reset load save ");
}

TEST(XmlDocument, StartsEmpty) {
  const XmlDocument document;
  EXPECT_EQ(document.Root(), nullptr);
}

TEST(XmlDocument, CreateReplacesTheContentByOneEmptyRoot) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<main>v<a/></main>"));
  document.Create(L"condition");
  EXPECT_EQ(Content(document), "condition");
}

TEST(XmlDocument, CreateMayBeGivenTheTagOfItsOwnNode) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<main><hour/></main>"));
  document.Create(document.Root()->Node(L"hour")->Tag());
  EXPECT_EQ(Content(document), "hour");
}

TEST(XmlDocument, ResetEmptiesIt) {
  XmlDocument document;
  document.Create(L"main");
  document.Reset();
  EXPECT_EQ(document.Root(), nullptr);
  document.Reset();
  EXPECT_EQ(document.Root(), nullptr);
}

TEST(XmlDocument, ACopyOfANodeSharesNothingWithIt) {
  auto source = Parsed("<main><hourTypes>v<hour><id>1</id></hour></hourTypes></main>");
  XmlDocument copy(*source->Node(L"hourTypes"));
  source->Node(L"hourTypes")->EraseTag(L"hour");
  EXPECT_EQ(Content(copy), R"(hourTypes="v"[hour[id="1"]])");
  source.reset();
  copy.Root()->Node(L"hour")->SetValue(L"id", L"2");
  EXPECT_EQ(Content(copy), R"(hourTypes="v"[hour[id="2"]])");
}

TEST(XmlDocument, TakesARootAsItIs) {
  auto root = Parsed("<main><id>1</id></main>");
  const XmlNode* place = root.get();
  const XmlDocument document(std::move(root));
  EXPECT_EQ(document.Root(), place);
  EXPECT_EQ(Content(document), R"(main[id="1"])");
  EXPECT_EQ(XmlDocument(std::unique_ptr<XmlNode>()).Root(), nullptr);
}

TEST(XmlDocument, CopiesMayBeNestedAndTakenBackLevelByLevel) {
  const auto host = Parsed("<main><days><day><slot/></day></days></main>");
  XmlNode* days = host->Node(L"days");
  XmlDocument list(*days);
  XmlNode* day = list.Root()->Node(L"day");
  XmlDocument editor(*day);
  editor.Root()->SetValue(L"name", L"x");
  XmlDocument dropped(*day);
  dropped.Root()->Reset();
  EXPECT_EQ(Outline(*host), "main[days[day[slot]]]");
  *day = *editor.Root();
  *days = *list.Root();
  EXPECT_EQ(Outline(*host), R"(main[days[day[slot name="x"]]])");
}

TEST(XmlDocument, TextsTakenOutOfItOutliveIt) {
  std::vector<QVWideString> texts;
  {
    XmlDocument document;
    document.Create(L"main");
    document.Root()->SetValue(L"name", L"Working day");
    document.Root()->SetValue(L"empty", L"");
    texts = {document.Root()->Tag(), document.Root()->Node(L"name")->Value(),
             document.Root()->Value(L"name"), document.Root()->Value(L"empty", L"T")};
  }
  EXPECT_EQ(texts, (std::vector<QVWideString>{L"main", L"Working day", L"Working day", L""}));
}

TEST(XmlDocument, ParsesWhatCreateXmlCodeWrites) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<main>v<a>&lt; \xC3\xB1</a><b><c/></b></main>"));
  for (const bool withDeclaration : {false, true}) {
    QVNarrowString code;
    ASSERT_TRUE(document.CreateXmlCode(code, withDeclaration));
    XmlDocument again;
    ASSERT_TRUE(again.Parse(code));
    EXPECT_EQ(*again.Root(), *document.Root());
  }
}

TEST(XmlDocument, ParsesABareElementBetweenTagsOfTheCaller) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<main><a>x</a></main>"));
  QVNarrowString code;
  ASSERT_TRUE(document.CreateXmlCode(code, false));
  XmlDocument around;
  ASSERT_TRUE(around.Parse("<clip>" + code + "</clip>"));
  EXPECT_EQ(Content(around), R"(clip[main[a="x"]])");
}

TEST(XmlDocument, ParseRefusesWhatIsNoXmlAndIsEmptyThen) {
  for (const char* text : {"plain text", "", "   \n", "<main><a></main>", "<main><a>", "<main",
                           "<a/><b/>", "x<a/>", "<a/>x", "<a>&unknown;</a>", "<a>\x01</a>",
                           "<a>\xF1</a>", "{\\rtf1 text}", "<>", "&lt;a/&gt;"}) {
    XmlDocument document;
    document.Create(L"old");
    EXPECT_FALSE(document.Parse(text)) << text;
    EXPECT_EQ(document.Root(), nullptr) << text;
  }
}

TEST(XmlDocument, ParseRefusesANullText) {
  XmlDocument document;
  document.Create(L"old");
  EXPECT_FALSE(document.Parse(nullptr));
  EXPECT_EQ(document.Root(), nullptr);
}

TEST(XmlDocument, AFailedParseMayBeFollowedByAnother) {
  XmlDocument document;
  EXPECT_FALSE(document.Parse("<main>"));
  EXPECT_TRUE(document.Parse("<main>x</main>"));
  EXPECT_EQ(Content(document), R"(main="x")");
}

TEST(XmlDocument, CreateXmlCodeGivesTheBareElementOrTheWholeFile) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<main><a>x</a></main>"));
  QVNarrowString code("old text", true);
  EXPECT_TRUE(document.CreateXmlCode(code, false));
  EXPECT_EQ(code, "<main>\n  <a>x</a>\n</main>");
  EXPECT_TRUE(document.CreateXmlCode(code, true));
  EXPECT_EQ(code, declaration + QVNarrowString("<main>\n  <a>x</a>\n</main>\n"));
}

TEST(XmlDocument, CreateXmlCodeRefusesWhatXmlCannotCarry) {
  XmlDocument document;
  QVNarrowString code("old text", true);
  EXPECT_FALSE(document.CreateXmlCode(code, false));
  EXPECT_EQ(code, "");
  document.Create(L"main");
  document.Root()->SetValue(L"a", L"\x01");
  code = "old text";
  EXPECT_FALSE(document.CreateXmlCode(code, true));
  EXPECT_EQ(code, "");
}

TEST_F(XmlDocumentFiles, LoadOfASecondFileLeavesNothingOfTheFirst) {
  EXPECT_TRUE(document.Load(L"/cfg/a.xml", files));
  EXPECT_EQ(Content(document), R"(main[id="1" a])");
  EXPECT_TRUE(document.Load(L"/cfg/b.xml", files));
  EXPECT_EQ(Content(document), R"(root[b="2"])");
}

TEST_F(XmlDocumentFiles, AFailedLoadLeavesItEmptyAndMayBeFollowedByAnother) {
  files.contents[L"/cfg/locked.xml"] = "<main/>";
  files.unreadable.insert(L"/cfg/locked.xml");
  files.contents[L"/cfg/breaking.xml"] = "<main/>                  ";
  files.breakingReads.insert(L"/cfg/breaking.xml");
  files.contents[L"/cfg/empty.xml"] = "";
  for (const wchar_t* path : {L"/cfg/missing.xml", L"/cfg/broken.xml", L"/cfg/locked.xml",
                              L"/cfg/breaking.xml", L"/cfg/empty.xml", L"/cfg", L""}) {
    ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
    EXPECT_FALSE(document.Load(path, files)) << std::wstring(path);
    EXPECT_EQ(document.Root(), nullptr) << std::wstring(path);
  }
  EXPECT_FALSE(document.Load(nullptr, files));
  EXPECT_TRUE(document.Load(L"/cfg/b.xml", files));
  EXPECT_EQ(Content(document), R"(root[b="2"])");
}

TEST_F(XmlDocumentFiles, SaveWritesToTheFileItCameFrom) {
  ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
  document.Root()->SetValue(L"id", L"9");
  files.log.clear();
  EXPECT_TRUE(document.Save(files));
  EXPECT_EQ(files.log, Log{L"write /cfg/a.xml"});
  EXPECT_EQ(files.contents[L"/cfg/a.xml"],
            declaration + std::string("<main>\n  <id>9</id>\n  <a/>\n</main>\n"));
}

TEST_F(XmlDocumentFiles, SaveWithoutAFileIsRefused) {
  const std::pair<const char*, void (*)(XmlDocument&, Files&)> ways[] = {
      {"created", [](XmlDocument& d, Files&) { d.Create(L"main"); }},
      {"parsed", [](XmlDocument& d, Files&) { d.Parse("<main/>"); }},
      {"reset", [](XmlDocument& d, Files&) { d.Reset(); }},
      {"failed to load", [](XmlDocument& d, Files& f) { d.Load(L"/cfg/broken.xml", f); }},
      {"failed to parse", [](XmlDocument& d, Files&) { d.Parse(""); }}};
  for (const auto& [name, way] : ways) {
    ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
    way(document, files);
    files.log.clear();
    EXPECT_FALSE(document.Save(files)) << name;
    EXPECT_EQ(files.log, Log{}) << name;
  }
  EXPECT_FALSE(XmlDocument().Save(files));
  EXPECT_FALSE(XmlDocument(*Parsed("<main/>")).Save(files));
}

TEST_F(XmlDocumentFiles, SaveFollowsTheLastLoadAndNotSaveAs) {
  ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
  ASSERT_TRUE(document.Load(L"/cfg/b.xml", files));
  ASSERT_TRUE(document.SaveAs(L"/cfg/c.xml", files));
  files.log.clear();
  EXPECT_TRUE(document.Save(files));
  EXPECT_EQ(files.log, Log{L"write /cfg/b.xml"});
}

TEST_F(XmlDocumentFiles, LoadMayBeGivenAPathFromItsOwnTree) {
  ASSERT_TRUE(document.Parse("<main><path>/cfg/b.xml</path></main>"));
  EXPECT_TRUE(document.Load(document.Root()->Node(L"path")->Value(), files));
  EXPECT_EQ(Content(document), R"(root[b="2"])");
}

TEST_F(XmlDocumentFiles, SaveAsReplacesAFileOfThatName) {
  ASSERT_TRUE(document.Parse("<x/>"));
  EXPECT_TRUE(document.SaveAs(L"/cfg/a.xml", files));
  EXPECT_EQ(files.contents[L"/cfg/a.xml"], declaration + std::string("<x/>\n"));
}

TEST_F(XmlDocumentFiles, SaveAsWritesTheFileItselfAndNoOther) {
  ASSERT_TRUE(document.Parse("<x/>"));
  EXPECT_TRUE(document.SaveAs(L"/cfg/new/c.xml", files));
  EXPECT_EQ(files.log, Log{L"write /cfg/new/c.xml"});
}

TEST_F(XmlDocumentFiles, SaveAsToWhatCannotBeOpenedIsRefused) {
  files.unwritable.insert(L"/cfg/a.xml");
  ASSERT_TRUE(document.Parse("<x/>"));
  const auto before = files.contents;
  for (const wchar_t* path : {L"/cfg/a.xml", L"/cfg", L""}) {
    EXPECT_FALSE(document.SaveAs(path, files)) << std::wstring(path);
  }
  EXPECT_FALSE(document.SaveAs(nullptr, files));
  EXPECT_EQ(files.contents, before);
  EXPECT_EQ(Content(document), "x");
}

TEST_F(XmlDocumentFiles, AFullDiskAtAnyByteLeavesNoHalfFile) {
  ASSERT_TRUE(
      document.Parse("<main><id>1</id><name>Stra\xC3\x9F"
                     "e</name></main>"));
  ASSERT_TRUE(document.SaveAs(L"/cfg/full.xml", files));
  const std::string whole = files.contents[L"/cfg/full.xml"];
  for (std::size_t space = 0; space < whole.size(); ++space) {
    files.contents[L"/cfg/full.xml"] = "old";
    files.diskSpace = space;
    EXPECT_FALSE(document.SaveAs(L"/cfg/full.xml", files)) << space;
    EXPECT_FALSE(files.contents.contains(L"/cfg/full.xml")) << space;
  }
  files.diskSpace = whole.size();
  EXPECT_TRUE(document.SaveAs(L"/cfg/full.xml", files));
  EXPECT_EQ(files.contents[L"/cfg/full.xml"], whole);
}

TEST_F(XmlDocumentFiles, AFailingCloseLeavesNoFile) {
  ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
  files.failClose = true;
  EXPECT_FALSE(document.SaveAs(L"/cfg/c.xml", files));
  EXPECT_FALSE(document.Save(files));
  EXPECT_FALSE(files.contents.contains(L"/cfg/c.xml"));
  EXPECT_FALSE(files.contents.contains(L"/cfg/a.xml"));
  EXPECT_EQ(Content(document), R"(main[id="1" a])");
}

TEST_F(XmlDocumentFiles, ATreeThatXmlCannotCarryIsRefusedBeforeTheFileIsTouched) {
  ASSERT_TRUE(document.Load(L"/cfg/a.xml", files));
  const auto before = files.contents;
  files.log.clear();
  for (const wchar_t character : {L'\x01', L'\x1F', L'\xFFFE', L'\xFFFF'}) {
    document.Root()->SetValue(L"id", QVWideString(std::wstring_view(&character, 1)));
    EXPECT_FALSE(document.SaveAs(L"/cfg/a.xml", files)) << static_cast<int>(character);
    EXPECT_FALSE(document.Save(files)) << static_cast<int>(character);
  }
  document.Create(L"no name");
  EXPECT_FALSE(document.SaveAs(L"/cfg/a.xml", files));
  document.Reset();
  EXPECT_FALSE(document.SaveAs(L"/cfg/a.xml", files));
  EXPECT_EQ(files.log, Log{});
  EXPECT_EQ(files.contents, before);
}

class XmlDocumentDisk : public testing::Test {
 protected:
  std::wstring Path(const wchar_t* name) const { return directory.WidePath() + name; }

  TemporaryDirectory directory;
  XmlDocument document;
};

TEST_F(XmlDocumentDisk, WhatIsSavedIsLoadedAgain) {
  ASSERT_TRUE(document.Parse("<main><id>a longer text that is to be replaced</id></main>"));
  const std::wstring path = Path(L"\u00F1 \u20AC.xml");
  EXPECT_TRUE(document.SaveAs(path.c_str()));
  XmlDocument again;
  EXPECT_TRUE(again.Load(path.c_str()));
  EXPECT_EQ(*again.Root(), *document.Root());
  again.Root()->SetValue(L"id", L"short");
  EXPECT_TRUE(again.Save());
  EXPECT_EQ(FileBytes(directory.Path() / "\xC3\xB1 \xE2\x82\xAC.xml"),
            declaration + std::string("<main>\n  <id>short</id>\n</main>\n"));
}

TEST_F(XmlDocumentDisk, SaveAsMakesNoDirectory) {
  document.Create(L"main");
  EXPECT_FALSE(document.SaveAs(Path(L"missing/a.xml").c_str()));
  EXPECT_FALSE(std::filesystem::exists(directory.Path() / "missing"));
}

TEST_F(XmlDocumentDisk, ADirectoryOfThatNameIsNeitherLoadedNorReplaced) {
  document.Create(L"main");
  std::filesystem::create_directory(directory.Path() / "a.xml");
  EXPECT_FALSE(document.SaveAs(Path(L"a.xml").c_str()));
  EXPECT_FALSE(document.Load(Path(L"a.xml").c_str()));
  EXPECT_TRUE(std::filesystem::is_directory(directory.Path() / "a.xml"));
}

}  // namespace
}  // namespace qv
