#include "hostkit/Configuration.h"

#include <gtest/gtest.h>

#include <utility>

#include "host/Installation.h"
#include "tests/support/ScriptedFiles.h"

namespace qv {
namespace {

using Loaded = Configuration::Loaded;

std::string CodeOf(const XmlDocument& document) {
  QVNarrowString code;
  EXPECT_TRUE(document.CreateXmlCode(code, false));
  return std::string(code.ToView());
}

/// `text` as documents write it.
std::string Written(const char* text) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(text));
  return CodeOf(document);
}

constexpr wchar_t path[] = L"/inst/configuration.xml";

/// A configuration over a disk in memory.
class ConfigurationTest : public testing::Test {
 protected:
  /// Puts `text` into the file and loads it.
  Loaded Load(const char* text) {
    files.contents[path] = text;
    return configuration.Load(L"/inst/");
  }

  std::string Code() const { return CodeOf(document); }

  ScriptedFiles files;
  QVMainCfg document;
  Configuration configuration{document, files};
};

TEST_F(ConfigurationTest, IsAnEmptyConfigurationBeforeAnythingIsLoaded) {
  EXPECT_EQ(Code(), Written("<configuration/>"));
  EXPECT_FALSE(configuration.DeviceGroups());
  EXPECT_FALSE(configuration.CommSystem());
  EXPECT_FALSE(configuration.IsEmbedded());
}

TEST_F(ConfigurationTest, LoadsItsFile) {
  EXPECT_EQ(Load("<configuration><a>1</a></configuration>"), Loaded::FromFile);
  EXPECT_EQ(Code(), Written("<configuration><a>1</a></configuration>"));
  EXPECT_EQ(configuration.Path(), path);
  EXPECT_FALSE(configuration.IsChanged());
}

TEST_F(ConfigurationTest, WithoutAFileIsNewAndWritesNothing) {
  files.contents[L"/inst/old-configuration.xml"] = "<configuration/>";
  EXPECT_EQ(configuration.Load(L"/inst/"), Loaded::New);
  EXPECT_EQ(Code(), Written("<configuration/>"));
  EXPECT_EQ(configuration.Path(), path);
  EXPECT_FALSE(configuration.IsChanged());
  EXPECT_FALSE(files.contents.contains(path));
}

TEST_F(ConfigurationTest, ANewOneLeavesNothingOfTheOneBefore) {
  Load("<configuration><a>1</a></configuration>");
  EXPECT_EQ(configuration.Load(L"/other/"), Loaded::New);
  EXPECT_EQ(Code(), Written("<configuration/>"));
}

TEST_F(ConfigurationTest, SaysWhereAFileIsDamagedAndWhatTheSystemSays) {
  Addition why;
  files.contents[path] = "<configuration>\n <a></b>";
  EXPECT_EQ(configuration.Load(L"/inst/", &why), Loaded::Unreadable);
  EXPECT_EQ(why, (Addition{{Text::DiscriminatorDamagedAt, {L"2", L"7"}}}));
  files.unreadable.insert(path);
  EXPECT_EQ(configuration.Load(L"/inst/", &why), Loaded::Unreadable);
  ASSERT_EQ(why.size(), 1U);
  EXPECT_EQ(why.front().text, Text::FailureReason);
}

TEST_F(ConfigurationTest, ABrokenFileChangesNeitherDocumentNorFile) {
  Load("<configuration><a>1</a></configuration>");
  files.contents[L"/other/configuration.xml"] = "<configuration><a>";
  EXPECT_EQ(configuration.Load(L"/other/"), Loaded::Unreadable);
  EXPECT_EQ(Code(), Written("<configuration><a>1</a></configuration>"));
  EXPECT_EQ(configuration.Path(), path);
  ASSERT_TRUE(configuration.Save());
  EXPECT_EQ(files.contents[L"/other/configuration.xml"], "<configuration><a>");
}

TEST_F(ConfigurationTest, AFileThatCanNotBeOpenedIsNotTakenForAMissingOne) {
  files.contents[path] = "<configuration/>";
  files.unreadable.insert(path);
  EXPECT_EQ(configuration.Load(L"/inst/"), Loaded::Unreadable);
}

TEST_F(ConfigurationTest, AFileThatBreaksWhileReadIsUnreadable) {
  files.contents[path] = "<configuration><a>1</a></configuration>";
  files.breakingReads.insert(path);
  EXPECT_EQ(configuration.Load(L"/inst/"), Loaded::Unreadable);
  EXPECT_EQ(Code(), Written("<configuration/>"));
}

TEST_F(ConfigurationTest, ADirectoryOfItsNameIsUnreadable) {
  files.directories.insert(path);
  EXPECT_EQ(configuration.Load(L"/inst/"), Loaded::Unreadable);
}

TEST_F(ConfigurationTest, AnotherRootTagIsForeign) {
  EXPECT_EQ(Load("<main><a>1</a></main>"), Loaded::Foreign);
  EXPECT_EQ(Code(), Written("<configuration/>"));
  EXPECT_EQ(files.contents[path], "<main><a>1</a></main>");
}

TEST_F(ConfigurationTest, IsTheSameAfterSavingAndLoading) {
  Load("<configuration><deviceGroups><devices/></deviceGroups><z> </z></configuration>");
  const std::string before = Code();
  ASSERT_TRUE(configuration.Save());
  EXPECT_EQ(configuration.Load(L"/inst/"), Loaded::FromFile);
  EXPECT_EQ(Code(), before);
}

TEST_F(ConfigurationTest, AFailedSavingIsToldAndCanBeRepeated) {
  Load("<configuration><a>1</a></configuration>");
  files.diskSpace = 10;
  EXPECT_FALSE(configuration.Save());
  EXPECT_TRUE(configuration.IsChanged());
  files.diskSpace.reset();
  EXPECT_TRUE(configuration.Save());
  EXPECT_FALSE(configuration.IsChanged());
}

TEST_F(ConfigurationTest, IsChangedAsLongAsItDiffersFromItsFile) {
  Load("<configuration><a>1</a></configuration>");
  document.Root()->SetValue(L"a", L"2");
  EXPECT_TRUE(configuration.IsChanged());
  document.Root()->SetValue(L"a", L"1");
  EXPECT_FALSE(configuration.IsChanged());
  document.Root()->SetValue(L"b", L"2");
  ASSERT_TRUE(configuration.Save());
  EXPECT_FALSE(configuration.IsChanged());
}

TEST_F(ConfigurationTest, FindsItsNodesOrNull) {
  Load("<configuration><deviceGroups/><commSystem/></configuration>");
  EXPECT_EQ(configuration.DeviceGroups(), document.Root()->Node(L"deviceGroups"));
  EXPECT_TRUE(configuration.DeviceGroups());
  EXPECT_EQ(std::as_const(configuration).DeviceGroups(), configuration.DeviceGroups());
  EXPECT_EQ(configuration.CommSystem(), document.Root()->Node(L"commSystem"));
  EXPECT_TRUE(configuration.CommSystem());
}

TEST_F(ConfigurationTest, EmbeddedAddsOneDeviceWithAnIdOfItsOwn) {
  Load(
      "<configuration><commSystem><device><driver>D</driver></device></commSystem>"
      "</configuration>");
  configuration.SetEmbedded(true);
  EXPECT_TRUE(configuration.IsEmbedded());
  EXPECT_TRUE(IsEmbedded(document));
  const auto* device =
      document.Root()->Node(L"commSystem")->NodeV(L"device?driver=%s?", L"KORVAXEMBEDDED");
  ASSERT_TRUE(device);
  EXPECT_EQ(device->Value(L"id").Length(), 36U);
  const std::string once = Code();
  configuration.SetEmbedded(true);
  EXPECT_EQ(Code(), once);
}

TEST_F(ConfigurationTest, EmbeddedMakesTheCommSystemThatIsMissing) {
  Load("<configuration/>");
  configuration.SetEmbedded(true);
  EXPECT_TRUE(configuration.IsEmbedded());
}

TEST_F(ConfigurationTest, NoLongerEmbeddedRemovesExactlyTheDevicesThatMarkIt) {
  Load(
      "<configuration><commSystem>"
      "<device><driver>KORVAXEMBEDDED</driver></device>"
      "<device><driver>korvaxembedded</driver></device>"
      "<other><driver>KORVAXEMBEDDED</driver></other>"
      "<device><driver>D</driver></device>"
      "<device><name>b</name><driver>KORVAXEMBEDDED</driver></device>"
      "</commSystem><device><driver>KORVAXEMBEDDED</driver></device></configuration>");
  EXPECT_TRUE(configuration.IsEmbedded());
  configuration.SetEmbedded(false);
  EXPECT_FALSE(configuration.IsEmbedded());
  EXPECT_EQ(
      Code(),
      Written("<configuration><commSystem>"
              "<device><driver>korvaxembedded</driver></device>"
              "<other><driver>KORVAXEMBEDDED</driver></other>"
              "<device><driver>D</driver></device>"
              "</commSystem><device><driver>KORVAXEMBEDDED</driver></device></configuration>"));
}

TEST_F(ConfigurationTest, OnAndOffAgainLeavesTheDevicesAsTheyWere) {
  Load(
      "<configuration><commSystem><device><driver>D</driver></device></commSystem>"
      "</configuration>");
  configuration.SetEmbedded(true);
  configuration.SetEmbedded(false);
  EXPECT_FALSE(configuration.IsChanged());
}

TEST_F(ConfigurationTest, NotEmbeddedWithoutACommSystemMakesNone) {
  Load("<configuration/>");
  configuration.SetEmbedded(false);
  EXPECT_EQ(Code(), Written("<configuration/>"));
}

}  // namespace
}  // namespace qv
