#include <gtest/gtest.h>

#include "apps/configurator/DiscriminatorManager.h"
#include "library/QVDiscriminator.h"
#include "tests/apps/ExampleCopy.h"

namespace configurator {
namespace {

/// An installation whose document differs from its file.
class SaveIfAskedTest : public testing::Test {
 protected:
  SaveIfAskedTest() {
    EXPECT_FALSE(workspace.Open(installation.Directory()));
    workspace.Config().SetEmbedded(true);
  }

  ExampleCopy installation;
  Workspace workspace{ProgramDirectories::OfThisProgram()};
};

TEST_F(SaveIfAskedTest, IdOkSaves) {
  EXPECT_FALSE(SaveIfAsked(workspace, IDOK));
  EXPECT_FALSE(workspace.Config().IsChanged());
  EXPECT_NE(installation.ConfigurationBytes().find("KORVAXEMBEDDED"), std::string::npos);
}

TEST_F(SaveIfAskedTest, NothingElseDoes) {
  const std::string before = installation.ConfigurationBytes();
  for (const int result : {IDCANCEL, -1, 0, 3}) {
    EXPECT_FALSE(SaveIfAsked(workspace, result));
    EXPECT_EQ(installation.ConfigurationBytes(), before) << result;
  }
  EXPECT_TRUE(workspace.Config().IsChanged());
}

TEST_F(SaveIfAskedTest, AFailureIsToldWithTheFileAndWhatToDo) {
  std::filesystem::remove(installation.File("configuration.xml"));
  std::filesystem::create_directory(installation.File("configuration.xml"));
  const auto problem = SaveIfAsked(workspace, IDOK);
  ASSERT_TRUE(problem);
  EXPECT_TRUE(problem->contains(installation.Directory() + "/configuration.xml"));
  EXPECT_TRUE(problem->contains("File > Save")) << problem->toStdString();
}

TEST(ResultName, IsTheWordThatHostsKnow) {
  EXPECT_EQ(ResultName(IDOK), "IDOK");
  EXPECT_EQ(ResultName(IDCANCEL), "IDCANCEL");
  EXPECT_EQ(ResultName(-1), "-1");
}

}  // namespace
}  // namespace configurator
