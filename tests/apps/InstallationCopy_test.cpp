#include "apps/configurator/InstallationCopy.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/apps/ExampleCopy.h"

namespace configurator {
namespace {

namespace fs = std::filesystem;

class InstallationCopyTest : public testing::Test {
 protected:
  std::optional<QString> Copy() const { return CopyInstallation(from.Directory(), into, "Name"); }

  const ExampleCopy from;
  const qv::TemporaryDirectory directory;
  const QString into = QString::fromStdString(directory.Path().string());
};

TEST_F(InstallationCopyTest, HoldsTheSameFilesInADirectoryOfItsOwn) {
  const auto copy = Copy();
  ASSERT_EQ(copy, into + "/Name");
  int files = 0;
  for (const auto& [name, bytes] : from.Files()) {
    EXPECT_EQ(qv::FileBytes(directory.Path() / "Name" / name), bytes) << name;
    ++files;
  }
  EXPECT_EQ(files, 8);
}

TEST_F(InstallationCopyTest, CanBeWrittenThoughTheExampleCanNot) {
  fs::permissions(from.File("configuration.xml"), fs::perms::owner_read);
  ASSERT_TRUE(Copy());
  const auto copied = fs::status(directory.Path() / "Name" / "configuration.xml").permissions();
  EXPECT_NE(copied & fs::perms::owner_write, fs::perms::none);
}

TEST_F(InstallationCopyTest, NeverOverwritesAnything) {
  ASSERT_TRUE(Copy());
  std::ofstream(directory.Path() / "Name" / "configuration.xml") << "mine";
  EXPECT_EQ(Copy(), into + "/Name 2");
  EXPECT_EQ(Copy(), into + "/Name 3");
  EXPECT_EQ(qv::FileBytes(directory.Path() / "Name" / "configuration.xml"), "mine");
}

TEST_F(InstallationCopyTest, IsRefusedWithinTheExampleItself) {
  const auto before = from.Files();
  EXPECT_FALSE(CopyInstallation(from.Directory(), from.Directory(), "Name"));
  fs::create_directory_symlink(from.File("."), directory.Path() / "link");
  EXPECT_FALSE(CopyInstallation(from.Directory(), into + "/link", "Name"));
  EXPECT_EQ(from.Files(), before);
}

TEST_F(InstallationCopyTest, LeavesNothingWhereItIsNotPossible) {
  EXPECT_FALSE(CopyInstallation(into, from.Directory(), "Name")) << "nothing to copy";
  EXPECT_FALSE(fs::exists(from.File("Name")));
  EXPECT_FALSE(CopyInstallation(from.Directory(), into + "/none", "Name"));
  EXPECT_FALSE(CopyInstallation(into + "/none", into, "Name"));
  EXPECT_TRUE(fs::is_empty(directory.Path()));
}

}  // namespace
}  // namespace configurator
