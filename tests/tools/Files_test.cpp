#include "tools/Files.h"

#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/stat.h>
#endif

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/TemporaryDirectory.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;
using Names = std::vector<std::wstring>;

/// The path as the system has it, whatever the process's locale.
fs::path Native(std::wstring_view path) { return ToUtf8(path).value(); }

class DiskFiles : public testing::Test {
 protected:
  std::wstring Path(std::wstring_view name) const {
    return directory.WidePath() + std::wstring(name);
  }

  fs::path Put(const fs::path& name, std::string_view content = "x") const {
    std::ofstream(directory.Path() / name, std::ios::binary) << content;
    return directory.Path() / name;
  }

  /// Puts a file with these permissions, and expects this end of its removal.
  void ExpectRemoval(unsigned mode, Removal end) const {
    const fs::path path = Put("a" + std::to_string(mode));
    fs::permissions(path, static_cast<fs::perms>(mode));
    EXPECT_EQ(files.Remove(path.wstring()), end) << mode;
    EXPECT_EQ(fs::exists(path), end == Removal::Refused) << mode;
  }

  Names Walk(std::wstring_view ending) const { return files.Walk(Path(L"*") += ending); }

  TemporaryDirectory directory;
  Files& files = Files::Disk();
};

std::string ReadAll(FileReader& reader, std::size_t size) {
  std::string content;
  std::string buffer(size, '\0');
  for (std::ptrdiff_t count = 0; (count = reader.Read(buffer.data(), size)) > 0;) {
    content.append(buffer, 0, static_cast<std::size_t>(count));
  }
  return content;
}

TEST_F(DiskFiles, GiveBackWhatWasWritten) {
  const std::string content("a\0b\r\n\x1A\xFF", 7);
  const auto writer = files.OpenForWriting(Path(L"a.bin"));
  ASSERT_NE(writer, nullptr);
  EXPECT_TRUE(writer->Write(content.substr(0, 3)));
  EXPECT_TRUE(writer->Write(""));
  EXPECT_TRUE(writer->Write(content.substr(3)));
  EXPECT_TRUE(writer->Close());
  EXPECT_EQ(FileBytes(directory.Path() / "a.bin"), content);
  const auto reader = files.OpenForReading(Path(L"a.bin"));
  ASSERT_NE(reader, nullptr);
  EXPECT_EQ(ReadAll(*reader, 2), content);
}

TEST_F(DiskFiles, ReadNothingAtTheEnd) {
  Put("a", "");
  const auto reader = files.OpenForReading(Path(L"a"));
  ASSERT_NE(reader, nullptr);
  char byte = 'x';
  EXPECT_EQ(reader->Read(&byte, 1), 0);
  EXPECT_EQ(reader->Read(&byte, 1), 0);
}

TEST_F(DiskFiles, OpeningForWritingEmptiesTheFile) {
  const fs::path path = Put("a", "old content");
  const auto writer = files.OpenForWriting(Path(L"a"));
  ASSERT_NE(writer, nullptr);
  EXPECT_TRUE(writer->Write("new"));
  EXPECT_TRUE(writer->Close());
  EXPECT_EQ(FileBytes(path), "new");
}

TEST_F(DiskFiles, AWriterThatIsDroppedLeavesTheFileAsItIs) {
  files.OpenForWriting(Path(L"a"))->Write("part");
  EXPECT_EQ(FileBytes(directory.Path() / "a"), "part");
}

TEST_F(DiskFiles, ADirectoryIsNotOpened) {
  fs::create_directory(directory.Path() / "d");
  for (const wchar_t* name : {L"d", L"d/", L""}) {
    EXPECT_EQ(files.OpenForReading(Path(name)), nullptr) << std::wstring(name);
    EXPECT_EQ(files.OpenForWriting(Path(name)), nullptr) << std::wstring(name);
  }
}

TEST_F(DiskFiles, WhatIsNotThereIsNotRead) {
  Put("file");
  for (const wchar_t* name : {L"missing", L"missing/file", L"file/below"}) {
    EXPECT_EQ(files.OpenForReading(Path(name)), nullptr) << std::wstring(name);
  }
}

TEST_F(DiskFiles, TellWhatExists) {
  Put("file");
  fs::create_directory(directory.Path() / "folder");
  fs::create_symlink("nowhere", directory.Path() / "link");
  for (const wchar_t* name : {L"file", L"folder", L"link"}) {
    EXPECT_TRUE(files.Exists(Path(name))) << name;
  }
  EXPECT_FALSE(files.Exists(Path(L"none")));
  EXPECT_FALSE(files.Exists(Path(L"none/file")));
  EXPECT_FALSE(files.Exists(Path(L"file\0"sv)));
}

TEST_F(DiskFiles, WritingMakesNoDirectory) {
  EXPECT_EQ(files.OpenForWriting(Path(L"missing/file")), nullptr);
  EXPECT_TRUE(fs::is_empty(directory.Path()));
}

TEST_F(DiskFiles, APathThatNoneCanBeIsLikeAMissingOne) {
  Put("a");
  const wchar_t lone[] = {static_cast<wchar_t>(0xD800), L'\0'};
  for (const std::wstring& path : {Path(L"a\0b"sv), Path(L"a\0"sv), Path(lone), std::wstring()}) {
    EXPECT_EQ(files.OpenForReading(path), nullptr);
    EXPECT_EQ(files.OpenForWriting(path), nullptr);
    EXPECT_EQ(files.Remove(path), Removal::Missing);
    EXPECT_FALSE(files.MakeDirectory(path));
  }
  EXPECT_EQ(Walk(L""), Names{L"a"});
}

TEST_F(DiskFiles, RemoveTakesAFileAway) {
  const fs::path path = Put(Native(L"\u00F1 \u20AC.xdct"));
  EXPECT_EQ(files.Remove(Path(L"\u00F1 \u20AC.xdct")), Removal::Removed);
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(files.Remove(Path(L"\u00F1 \u20AC.xdct")), Removal::Missing);
}

TEST_F(DiskFiles, RemoveFindsNothingBelowAFile) {
  Put("file");
  EXPECT_EQ(files.Remove(Path(L"file/below")), Removal::Missing);
  EXPECT_EQ(files.Remove(Path(L"missing/file")), Removal::Missing);
}

TEST_F(DiskFiles, RemoveRefusesADirectoryEvenAnEmptyOne) {
  fs::create_directories(directory.Path() / "full" / "empty");
  for (const wchar_t* name : {L"full", L"full/empty", L"full/empty/"}) {
    EXPECT_EQ(files.Remove(Path(name)), Removal::Refused) << std::wstring(name);
    EXPECT_TRUE(fs::is_directory(Native(Path(name)))) << std::wstring(name);
  }
}

TEST_F(DiskFiles, RemoveRefusesAFileWithoutAnyWritePermission) {
  for (const unsigned mode : {0444U, 0400U, 0555U, 0000U}) {
    ExpectRemoval(mode, Removal::Refused);
  }
}

TEST_F(DiskFiles, RemoveTakesAFileThatSomebodyMayWrite) {
  for (const unsigned mode : {0644U, 0200U, 0464U, 0002U}) {
    ExpectRemoval(mode, Removal::Removed);
  }
}

TEST_F(DiskFiles, RemoveUnlinksALinkAndNotItsTarget) {
  const fs::path target = Put("target");
  fs::permissions(target, fs::perms::owner_read);
  fs::create_directory(directory.Path() / "d");
  for (const char* to : {"target", "d", "missing"}) {
    fs::create_symlink(to, directory.Path() / "link");
    EXPECT_EQ(files.Remove(Path(L"link")), Removal::Removed) << to;
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(directory.Path() / "link"))) << to;
  }
  EXPECT_EQ(Walk(L""), (Names{L"d", L"target"}));
}

TEST_F(DiskFiles, MakeDirectoryMakesThoseAboveToo) {
  for (const wchar_t* name : {L"a", L"b/c/d", L"e/", L"f/g//h/", L"\u00F1"}) {
    EXPECT_TRUE(files.MakeDirectory(Path(name))) << std::wstring(name);
    EXPECT_TRUE(fs::is_directory(Native(Path(name)))) << std::wstring(name);
  }
}

TEST_F(DiskFiles, MakeDirectoryLeavesOneThatIsThere) {
  fs::create_directory(directory.Path() / "d");
  Put("d/a");
  EXPECT_TRUE(files.MakeDirectory(Path(L"d")));
  EXPECT_TRUE(files.MakeDirectory(Path(L"d/")));
  EXPECT_TRUE(fs::exists(directory.Path() / "d" / "a"));
}

TEST_F(DiskFiles, MakeDirectoryFailsOverAFile) {
  const fs::path path = Put("file", "kept");
  EXPECT_FALSE(files.MakeDirectory(Path(L"file")));
  EXPECT_FALSE(files.MakeDirectory(Path(L"file/below")));
  EXPECT_EQ(FileBytes(path), "kept");
}

TEST_F(DiskFiles, CreateDirectoryWMakesADirectoryOnTheDisk) {
  EXPECT_TRUE(CreateDirectoryW(Path(L"a/b").c_str()));
  EXPECT_TRUE(fs::is_directory(directory.Path() / "a" / "b"));
  EXPECT_FALSE(CreateDirectoryW(L""));
  EXPECT_FALSE(CreateDirectoryW(nullptr));
}

TEST_F(DiskFiles, WalkGivesTheNamesInTheOrderOfTheirCharacters) {
  for (const wchar_t* name :
       {L"b", L"a", L"B", L"_", L"10", L"2", L"\u00F1", L"\U0001F600", L"\uFF41"}) {
    Put(Native(name));
  }
  EXPECT_EQ(Walk(L""),
            (Names{L"10", L"2", L"B", L"_", L"a", L"b", L"\u00F1", L"\uFF41", L"\U0001F600"}));
}

TEST_F(DiskFiles, WalkMatchesTheWholeEndingWithItsCase) {
  for (const char* name :
       {"a.xdct", ".xdct", "xdct", "a.xdctI", "a.XDCT", "a.xdct.bak", "a.b.xdct"}) {
    Put(name);
  }
  EXPECT_EQ(Walk(L".xdct"), (Names{L".xdct", L"a.b.xdct", L"a.xdct"}));
  EXPECT_EQ(Walk(L".xdctI"), Names{L"a.xdctI"});
}

TEST_F(DiskFiles, WalkGivesDirectoriesAsWellAndGoesIntoNone) {
  fs::create_directory(directory.Path() / "d.xdct");
  Put("d.xdct/below.xdct");
  Put("a.xdct");
  EXPECT_EQ(Walk(L".xdct"), (Names{L"a.xdct", L"d.xdct"}));
}

TEST_F(DiskFiles, WalkGivesNoneWhereThereIsNothingToRead) {
  Put("file");
  EXPECT_EQ(Walk(L".none"), Names());
  EXPECT_EQ(files.Walk(Path(L"missing/*")), Names());
  EXPECT_EQ(files.Walk(Path(L"file/*")), Names());
  EXPECT_EQ(files.Walk(Path(L"file")), Names());
  EXPECT_EQ(files.Walk(L""), Names());
}

TEST_F(DiskFiles, WalkGivesNoneForADirectoryThatNoneCanBe) {
  Put("a");
  EXPECT_EQ(files.Walk(Path(L"\0*"sv)), Names());
  EXPECT_EQ(files.Walk(L"\0/*"sv), Names());
  EXPECT_EQ(files.Walk(std::wstring{static_cast<wchar_t>(0xD800), L'/', L'*'}), Names());
}

TEST_F(DiskFiles, WalkWithoutADirectoryReadsTheWorkingDirectory) {
  Put("here");
  const fs::path before = fs::current_path();
  fs::current_path(directory.Path());
  const Names names = files.Walk(L"*");
  fs::current_path(before);
  EXPECT_EQ(names, Names{L"here"});
}

#ifdef __linux__
TEST_F(DiskFiles, WalkShowsBytesThatAreNoUtf8AsReplacements) {
  Put(fs::path("a\xFF.xdct"));
  EXPECT_EQ(Walk(L".xdct"), Names{L"a\uFFFD.xdct"});
}

/// The reasons that the disk gives.
class FailuresOfDiskFiles : public DiskFiles {
 protected:
  FailuresOfDiskFiles() { files.ForgetFailure(); }
  ~FailuresOfDiskFiles() override { files.ForgetFailure(); }

  /// Why the verbs in `fail` failed.
  template <class Fail>
  std::error_code Reason(const Fail& fail) {
    files.ForgetFailure();
    fail();
    return files.Failure();
  }

  static std::error_code Number(int number) { return {number, std::generic_category()}; }
};

TEST_F(FailuresOfDiskFiles, HaveTheReasonOfTheSystem) {
  const fs::path locked = Put("locked");
  fs::permissions(locked, fs::perms::owner_read);
  fs::create_directory(directory.Path() / "sub");
  const auto open = [this](std::wstring_view name) {
    return Reason([&] { EXPECT_EQ(files.OpenForReading(Path(name)), nullptr); });
  };
  EXPECT_EQ(open(L"gone"), Number(ENOENT));
  EXPECT_EQ(open(L"sub"), Number(EISDIR));
  EXPECT_EQ(Reason([&] { EXPECT_EQ(files.OpenForWriting(Path(L"no/a")), nullptr); }),
            Number(ENOENT));
  EXPECT_EQ(Reason([&] { EXPECT_EQ(files.OpenForWriting(Path(L"locked")), nullptr); }),
            Number(EACCES));
  EXPECT_EQ(Reason([&] { EXPECT_EQ(files.Remove(Path(L"locked")), Removal::Refused); }),
            Number(EACCES));
  EXPECT_EQ(Reason([&] { EXPECT_EQ(files.Remove(Path(L"sub")), Removal::Refused); }),
            Number(EISDIR));
  EXPECT_EQ(Reason([&] { EXPECT_FALSE(files.MakeDirectory(Path(L"locked/a"))); }), Number(ENOTDIR));
}

TEST_F(FailuresOfDiskFiles, AreForeseenWithoutDoingAnything) {
  fs::permissions(Put("locked", "kept"), fs::perms::owner_read);
  fs::create_directory(directory.Path() / "sub");
  Put("free", "kept");
  for (const FileVerb verb : {FileVerb::Write, FileVerb::Remove}) {
    const auto obstacle = [&](std::wstring_view name) { return files.Obstacle(Path(name), verb); };
    EXPECT_EQ(obstacle(L"locked"), Number(EACCES));
    EXPECT_EQ(obstacle(L"sub"), Number(EISDIR));
    EXPECT_EQ(obstacle(L"no/a"), Number(ENOENT));
    EXPECT_EQ(obstacle(std::wstring(300, L'x')), Number(ENAMETOOLONG));
    EXPECT_EQ(obstacle(L"free"), std::error_code());
    EXPECT_EQ(obstacle(L"new"), std::error_code());
    EXPECT_EQ(files.Obstacle(L"", verb), Number(EINVAL));
  }
  EXPECT_FALSE(files.Failure());
  EXPECT_EQ(FileBytes(directory.Path() / "free"), "kept");
  EXPECT_FALSE(fs::exists(directory.Path() / "new"));
}

TEST_F(FailuresOfDiskFiles, WhatSucceedsAndWhatIsMissingAreNone) {
  EXPECT_EQ(files.Remove(Path(L"gone")), Removal::Missing);
  const auto writer = files.OpenForWriting(Path(L"a"));
  ASSERT_NE(writer, nullptr);
  EXPECT_TRUE(writer->Write("x") && writer->Close());
  EXPECT_NE(files.OpenForReading(Path(L"a")), nullptr);
  EXPECT_FALSE(files.Failure());
}

TEST_F(FailuresOfDiskFiles, TheFirstOneIsKeptUntilItIsForgotten) {
  EXPECT_EQ(files.OpenForReading(Path(L"gone")), nullptr);
  fs::create_directory(directory.Path() / "sub");
  EXPECT_EQ(files.Remove(Path(L"sub")), Removal::Refused);
  EXPECT_EQ(files.Failure(), Number(ENOENT));
  files.ForgetFailure();
  EXPECT_FALSE(files.Failure());
}

TEST_F(DiskFiles, AFullDiskFailsTheWriteOrTheClose) {
  for (const std::size_t size : {std::size_t{1}, std::size_t{1000000}}) {
    files.ForgetFailure();
    const auto writer = files.OpenForWriting(L"/dev/full");
    ASSERT_NE(writer, nullptr);
    const bool written = writer->Write(std::string(size, 'x'));
    const bool closed = writer->Close();
    EXPECT_FALSE(written && closed) << size;
    EXPECT_EQ(files.Failure(), std::errc::no_space_on_device) << size;
  }
}

TEST_F(DiskFiles, ADeviceThatCannotBeSynchronisedIsNoFailure) {
  const auto writer = files.OpenForWriting(L"/dev/null");
  ASSERT_NE(writer, nullptr);
  EXPECT_TRUE(writer->Write("x"));
  EXPECT_TRUE(writer->Close());
}

TEST_F(DiskFiles, APipeIsNotOpenedForReading) {
  const fs::path pipe = directory.Path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(files.OpenForReading(pipe.wstring()), nullptr);
}

TEST_F(DiskFiles, AWriteProtectedFileIsNotEmptied) {
  const fs::path file = directory.Path() / "protected";
  std::ofstream(file) << "kept";
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(files.OpenForWriting(file.wstring()), nullptr);
  EXPECT_EQ(fs::file_size(file), 4U);
}

TEST_F(DiskFiles, AnErrorWhileReadingIsTold) {
  const auto reader = files.OpenForReading(L"/proc/self/mem");
  ASSERT_NE(reader, nullptr);
  char byte = 'x';
  files.ForgetFailure();
  EXPECT_EQ(reader->Read(&byte, 1), -1);
  EXPECT_EQ(reader->Read(&byte, 1), -1);
  EXPECT_EQ(files.Failure(), std::errc::io_error);
}
#endif

}  // namespace
}  // namespace qv
