#include "apps/configurator/HostServices.h"

#include <gmock/gmock.h>

#include <fstream>
#include <vector>

#include "host/Host.h"
#include "tests/support/TemporaryDirectory.h"

namespace configurator {
namespace {

using testing::ElementsAre;

TEST(HostServices, AreInstalledAsLongAsTheyLive) {
  ASSERT_FALSE(qv::InstalledHost());
  {
    HostServices services(L"/images");
    const auto host = qv::InstalledHost();
    ASSERT_TRUE(host);
    EXPECT_EQ(&host->mainCfg, &services.MainCfg());
    EXPECT_EQ(host->setup.getImageFilePath(), L"/images/");
    EXPECT_EQ(host->setup.ProgramIDResource(), 1U);
    EXPECT_TRUE(QVDriverSupport::Get());
    EXPECT_TRUE(QVInformes::Get());
  }
  EXPECT_FALSE(QVVornelSetup::Get());
  EXPECT_FALSE(QVMainCfg::Get());
  EXPECT_FALSE(QVVornelGuids::Get());
  EXPECT_FALSE(QVLoadString::Get());
  EXPECT_FALSE(CreateDiscriminatorIndex::Get());
  EXPECT_FALSE(QVClipboard::Get());
  EXPECT_FALSE(QVDriverSupport::Get());
  EXPECT_FALSE(QVInformes::Get());
}

TEST(HostServices, TheDirectoryCanBeChanged) {
  HostServices services(L"/images");
  services.SetDirectory(L"/a");
  EXPECT_EQ(QVVornelSetup::Get()->CfgPath(), L"/a/");
  services.SetDirectory(L"/b/");
  EXPECT_EQ(QVVornelSetup::Get()->CfgPath(), L"/b/");
  EXPECT_EQ(services.Setup().CfgPath(), L"/b/");
}

TEST(HostServices, ExpressionsAreOverTheDevicesOfTheOpenInstallation) {
  HostServices services(L"/images");
  const auto code = [](const wchar_t* expression) {
    double value = 0;
    int type = 0;
    return QVDriverSupport::Get()->NewEvaluator(expression)->Evaluate(value, type);
  };
  const auto unknown = static_cast<int>(qv::ExpressionCode::UnknownDevice);
  EXPECT_EQ(code(L"D.V"), unknown);
  ASSERT_TRUE(services.MainCfg().Parse(
      "<configuration><commSystem><device><name>D</name><variables><variable><name>V</name>"
      "<value>1</value></variable></variables></device></commSystem></configuration>"));
  services.SetDirectory(L"/a");
  EXPECT_EQ(code(L"D.V"), QVEvaluator::CodeEvaluated);
  services.MainCfg().Create(L"configuration");
  services.SetDirectory(L"/b");
  EXPECT_EQ(code(L"D.V"), unknown);
}

TEST(HostServices, NoticesReachThePresentListener) {
  HostServices services(L"/images");
  QVVornelGuids::get()->invalidateGuid(5, true);
  std::vector<int> heard;
  services.SetListener([&](int id) { heard.push_back(id); });
  QVVornelGuids::get()->invalidateGuid(8, true);
  QVVornelGuids::get()->invalidateGuid(5, true);
  services.SetListener({});
  QVVornelGuids::get()->invalidateGuid(8, true);
  EXPECT_THAT(heard, ElementsAre(8, 5));
}

TEST(HostServices, ALanguageFileThatIsMissingLeavesTheTexts) {
  const qv::TemporaryDirectory directory;
  std::ofstream(directory.Path() / "a.txt") << "419 Out\n";
  HostServices services(L"/images");
  EXPECT_TRUE(services.SetLanguageFile(directory.WidePath() + L"a.txt"));
  EXPECT_FALSE(services.SetLanguageFile(directory.WidePath() + L"b.txt"));
  EXPECT_EQ(QVLoadString::Get()->Load(Text::Exit), L"Out");
}

}  // namespace
}  // namespace configurator
