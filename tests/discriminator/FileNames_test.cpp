#include "discriminator/FileNames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/ScriptedFiles.h"

namespace qv {
namespace {

TEST(FileStem, JoinsIdAndNameByADot) {
  EXPECT_EQ(FileStem(L"1", L"Night rate"), L"1.Night rate");
  EXPECT_EQ(FileStem(L"", L""), L".");
  EXPECT_EQ(FileStem(L"1", L"a.b"), L"1.a.b");
}

TEST(DiscriminatorPath, AppendsToTheDirectoryAsItStands) {
  EXPECT_EQ(DiscriminatorPath(L"/cfg/", L"1.A"), L"/cfg/1.A.xdct");
  EXPECT_EQ(DiscriminatorPath(L"", L"1.A"), L"1.A.xdct");
}

TEST(IndexPath, AppendsOneLetter) {
  EXPECT_EQ(IndexPath(L"/cfg/1.A.xdct"), L"/cfg/1.A.xdctI");
  EXPECT_EQ(IndexPath(L""), L"I");
}

TEST(DiscriminatorPattern, DoesNotMatchIndexFiles) {
  ScriptedFiles files;
  const QVWideString path = DiscriminatorPath(L"/cfg/", L"1.A");
  files.contents[std::wstring(path.ToView())];
  files.contents[std::wstring(IndexPath(path).ToView())];
  const auto names = files.Walk(L"/cfg/" + std::wstring(discriminatorPattern));
  EXPECT_EQ(names, (std::vector<std::wstring>{L"1.A.xdct"}));
}

TEST(WithoutExtension, CutsTheExtensionOnce) {
  EXPECT_EQ(WithoutExtension(L"1.A.xdct"), L"1.A");
  EXPECT_EQ(WithoutExtension(L"1.A.xdct.xdct"), L"1.A.xdct");
  EXPECT_EQ(WithoutExtension(L".xdct"), L"");
}

TEST(WithoutExtension, IsNothingForOtherExtensions) {
  for (const wchar_t* name : {L"", L"1.A", L"xdct", L"1.A.xdctI", L"1.A.XDCT", L"1.A.xdct "}) {
    EXPECT_FALSE(WithoutExtension(name)) << testing::PrintToString(std::wstring(name));
  }
}

TEST(IdOfStem, EndsAtTheFirstDot) {
  EXPECT_EQ(IdOfStem(L"1.A"), L"1");
  EXPECT_EQ(IdOfStem(L"1.A.b"), L"1");
  EXPECT_EQ(IdOfStem(L".A"), L"");
}

TEST(IdOfStem, IsTheWholeStemWithoutDot) {
  EXPECT_EQ(IdOfStem(L"1"), L"1");
  EXPECT_EQ(IdOfStem(L""), L"");
}

TEST(NameOfStem, BeginsBehindTheFirstDot) {
  EXPECT_EQ(NameOfStem(L"1.A"), L"A");
  EXPECT_EQ(NameOfStem(L"1.A.b"), L"A.b");
  EXPECT_EQ(NameOfStem(L"1."), L"");
  EXPECT_EQ(NameOfStem(L"."), L"");
}

TEST(NameOfStem, IsNothingWithoutDot) {
  EXPECT_FALSE(NameOfStem(L"1"));
  EXPECT_FALSE(NameOfStem(L""));
}

TEST(NameBetweenDots, EndsAtTheSecondDot) {
  EXPECT_EQ(NameBetweenDots(L"1.A.xdct"), L"A");
  EXPECT_EQ(NameBetweenDots(L"1.A.b.xdct"), L"A");
  EXPECT_EQ(NameBetweenDots(L"1..xdct"), L"");
  EXPECT_EQ(NameBetweenDots(L".."), L"");
}

TEST(NameBetweenDots, IsNothingWithFewerDots) {
  EXPECT_FALSE(NameBetweenDots(L""));
  EXPECT_FALSE(NameBetweenDots(L"A"));
  EXPECT_FALSE(NameBetweenDots(L"A.xdct"));
}

TEST(FitsFileName, LeavesRoomForTheIndexFile) {
  const std::size_t room = 255 - std::wstring_view(L".xdctI").size();
  EXPECT_TRUE(FitsFileName(QVWideString(std::wstring(room, L'a'))));
  EXPECT_FALSE(FitsFileName(QVWideString(std::wstring(room + 1, L'a'))));
  EXPECT_TRUE(FitsFileName(L""));
}

TEST(IsFileStem, RefusesWhatLeadsElsewhere) {
  EXPECT_FALSE(IsFileStem(L"../1.A"));
  EXPECT_FALSE(IsFileStem(L"/cfg/1.A"));
  EXPECT_FALSE(IsFileStem(L"1.A/"));
  EXPECT_FALSE(IsFileStem(QVWideString(std::wstring_view(L"1.A\0b", 5))));
}

TEST(IsFileStem, TakesOrdinaryNames) {
  for (const wchar_t* stem : {L"1.A", L"1.Night rate", L"..", L"1.a\u00F1o", L"1.a \"b\""}) {
    EXPECT_TRUE(IsFileStem(stem)) << testing::PrintToString(std::wstring(stem));
  }
}

TEST(FileNames, AreCutBackIntoTheirParts) {
  const QVWideString id = L"142ff28b-e7f0-4c2b-9500-df7680b117a7";
  for (const wchar_t* name : {L"A", L"Tariff 2-0TD", L"a\u00F1o \U0001F552", L""}) {
    const QVWideString stem = FileStem(id, name);
    const QVWideString file = DiscriminatorPath(L"", stem);
    EXPECT_EQ(WithoutExtension(file.ToView()), stem.ToView());
    EXPECT_EQ(IdOfStem(stem), id);
    EXPECT_EQ(NameOfStem(stem.ToView()), name);
  }
}

}  // namespace
}  // namespace qv
