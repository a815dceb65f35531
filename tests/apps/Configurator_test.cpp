// The program as its users start it: a process of its own.
#include <gmock/gmock.h>

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "tests/apps/ExampleCopy.h"

namespace configurator {
namespace {

using testing::HasSubstr;

struct Ended {
  int status = -1;
  std::string output;
  std::string errors;
};

/// Runs the program in `directory`, or in one where nothing is, with settings that aren't the
/// user's.
Ended Start(const QStringList& arguments, const std::map<QString, QString>& variables = {},
            const QString& directory = {}) {
  const qv::TemporaryDirectory empty;
  const auto nowhere = QString::fromStdString(empty.Path().string());
  QProcess process;
  process.setWorkingDirectory(directory.isEmpty() ? nowhere : directory);
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.remove("QVDISC_INSTALLATION");
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  for (const auto& [name, value] : variables) {
    environment.insert(name, value);
  }
  process.setProcessEnvironment(environment);
  process.start(CONFIGURATOR_FILE,
                QStringList({"--settings", nowhere + "/settings.ini"}) + arguments);
  constexpr int patience = 120000;
  EXPECT_TRUE(process.waitForFinished(patience)) << qPrintable(process.errorString());
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString()};
}

/// The program on a copy of the example installation.
class ConfiguratorTest : public testing::Test {
 protected:
  Ended RunOnCopy(QStringList arguments, const std::map<QString, QString>& variables = {}) {
    arguments = QStringList({"--installation", installation.Directory()}) + arguments;
    return Start(arguments, variables);
  }

  /// The picture that the program makes with these arguments.
  QImage Picture(const QStringList& arguments, const std::map<QString, QString>& variables = {}) {
    const auto file = QString::fromStdString((pictures.Path() / "a.png").string());
    const Ended ended = RunOnCopy(QStringList({"--picture", file}) + arguments, variables);
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_EQ(ended.output, "");
    return QImage(file, "PNG");
  }

  ExampleCopy installation;
  qv::TemporaryDirectory pictures;
};

int Lightness(const QImage& image) {
  return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .pixelColor(0, 0)
      .lightness();
}

TEST(Configurator, HelpAndVersionNeedNoInstallationAndNoScreen) {
  const Ended help = Start({"--help"}, {{"QT_QPA_PLATFORM", "none-such"}});
  EXPECT_EQ(help.status, 0);
  EXPECT_THAT(help.output, HasSubstr("--installation"));
  EXPECT_EQ(help.errors, "");
  const Ended version = Start({"--version"}, {{"QT_QPA_PLATFORM", "none-such"}});
  EXPECT_EQ(version.status, 0);
  EXPECT_THAT(version.output, testing::StartsWith("configurator "));
}

TEST(Configurator, ABadCallGivesItsReasonAndStatus2) {
  for (const QStringList& call :
       {QStringList({"--list"}), QStringList({"--installation", "nowhere"}),
        QStringList({"--nonsense"})}) {
    const Ended ended = Start(call);
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors, testing::StartsWith("configurator: "));
  }
}

TEST_F(ConfiguratorTest, PicturesTheFastSelectionAlone) {
  EXPECT_FALSE(Picture({"--show", "fast-selection"}).isNull());
  const Ended ended =
      RunOnCopy({"--show", "fast-selection", "--discriminator", "none", "--picture", "none.png"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("time slots"));
}

TEST_F(ConfiguratorTest, PicturesTheWizardAlone) {
  EXPECT_FALSE(Picture({"--show", "wizard"}).isNull());
}

TEST_F(ConfiguratorTest, ListsTheDiscriminatorsSortedByName) {
  const Ended ended = RunOnCopy({"--show", "discriminators", "--list", "--language", "es"});
  EXPECT_EQ(ended.status, 0) << ended.errors;
  const QStringList lines = QString::fromStdString(ended.output).split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 4);
  const qsizetype column = lines.first().indexOf("Hours of daylight");
  ASSERT_GT(column, 0);
  QStringList names;
  for (const QString& line : lines) {
    names += line.left(column).trimmed();
    EXPECT_TRUE(line.at(column - 1).isSpace() && !line.at(column).isSpace()) << qPrintable(line);
  }
  EXPECT_EQ(names, QStringList({"Day and night", "Tariff 2-0TD 2026", "Tariff 3-0TD and 6-1TD 2026",
                                "Transformer station state"}));
  EXPECT_TRUE(lines.at(1).contains("península")) << "not UTF-8";
}

TEST_F(ConfiguratorTest, PicturesAndListsNeedNoDisplay) {
  const std::map<QString, QString> none = {
      {"QT_QPA_PLATFORM", ""}, {"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}};
  EXPECT_EQ(Picture({"--size", "640x480"}, none).size(), QSize(640, 480));
  const Ended list = RunOnCopy({"--show", "discriminators", "--list"}, none);
  EXPECT_EQ(list.status, 0) << list.errors;
  EXPECT_THAT(list.output, HasSubstr("Day and night"));
}

TEST_F(ConfiguratorTest, FindsTheInstallationThatTheCallDoesNotName) {
  const QStringList call = {"--show", "discriminators", "--list"};
  const auto list = RunOnCopy(call).output;
  EXPECT_THAT(list, HasSubstr("Day and night"));
  EXPECT_EQ(Start(call, {{"QVDISC_INSTALLATION", installation.Directory()}}).output, list);
  EXPECT_EQ(Start(call, {}, installation.Directory()).output, list);
  const auto settings = pictures.Path() / "a.ini";
  std::ofstream(settings) << "[General]\ninstallation=" << installation.Directory().toStdString();
  const QStringList last = {"--settings", QString::fromStdString(settings.string())};
  EXPECT_EQ(Start(last + call).output, list);
}

TEST(Configurator, NobodyIsAskedForAnInstallationInARunThatEndsByItself) {
  for (const QStringList& call :
       {QStringList({"--show", "discriminators", "--list"}), QStringList({"--picture", "a.png"})}) {
    const Ended ended = Start(call);
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.errors, HasSubstr("configurator: No installation is named: "));
  }
}

TEST_F(ConfiguratorTest, SavesAPictureOfTheStartWindowWithoutAnInstallation) {
  const auto file = QString::fromStdString((pictures.Path() / "a.png").string());
  const Ended ended = Start({"--show", "start", "--picture", file});
  EXPECT_EQ(ended.status, 0) << ended.errors;
  EXPECT_GT(QImage(file, "PNG").width(), 300);
}

TEST_F(ConfiguratorTest, ListsNoConditionsOnAnEmbeddedInstallation) {
  std::ofstream(installation.File("configuration.xml"))
      << "<configuration><commSystem><device><driver>KORVAXEMBEDDED</driver></device>"
         "</commSystem></configuration>";
  const Ended ended = RunOnCopy({"--show", "discriminators", "--list"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(std::count(ended.output.begin(), ended.output.end(), '\n'), 3);
  EXPECT_THAT(ended.output, Not(HasSubstr("Transformer station state")));
}

TEST_F(ConfiguratorTest, AnInstallationWithoutDiscriminatorsListsNothing) {
  const qv::TemporaryDirectory empty;
  const Ended ended = Start({"--installation", QString::fromStdString(empty.Path().string()),
                             "--show", "discriminators", "--list"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output, "");
  EXPECT_TRUE(std::filesystem::is_empty(empty.Path()));
}

TEST_F(ConfiguratorTest, SavesAPictureOfEachWindow) {
  const QImage mainWindow = Picture({"--show", "main"});
  EXPECT_GT(mainWindow.width(), 300);
  EXPECT_GT(mainWindow.height(), 200);
  const QImage manager = Picture({"--show", "discriminators"});
  EXPECT_GT(manager.width(), 300);
  EXPECT_GT(manager.height(), 200);
  EXPECT_NE(mainWindow, manager);
}

TEST_F(ConfiguratorTest, APictureHasTheSizeAskedForAtEveryDensity) {
  const QStringList size = {"--size", "640x480"};
  EXPECT_EQ(Picture(size).size(), QSize(640, 480));
  EXPECT_EQ(Picture(size, {{"QT_SCALE_FACTOR", "2"}}).size(), QSize(1280, 960));
  const QStringList manager = {"--show", "discriminators", "--size", "900x700"};
  EXPECT_EQ(Picture(manager).size(), QSize(900, 700));
}

TEST_F(ConfiguratorTest, TheThemeDecidesTheColours) {
  for (const char* window : {"main", "discriminators"}) {
    EXPECT_GT(Lightness(Picture({"--show", window, "--theme", "light"})), 180) << window;
    EXPECT_LT(Lightness(Picture({"--show", window, "--theme", "dark"})), 80) << window;
  }
}

TEST_F(ConfiguratorTest, TheLanguageDecidesTheWords) {
  EXPECT_NE(Picture({"--language", "es"}), Picture({"--language", "en"}));
  EXPECT_EQ(Picture({"--language", "es"}), Picture({"--language", "es"}));
}

TEST_F(ConfiguratorTest, SpeaksTheSystemsLanguageOrEnglish) {
  const QStringList call = {"--picture", "/nowhere/a.png"};
  const auto said = [&](const char* locale) {
    return RunOnCopy(call, {{"LC_ALL", locale}, {"LANGUAGE", ""}}).errors;
  };
  EXPECT_THAT(said("es_ES.UTF-8"), HasSubstr("No se ha podido guardar la imagen"));
  EXPECT_THAT(said("en_US.UTF-8"), HasSubstr("could not be saved"));
  EXPECT_THAT(said("fr_FR.UTF-8"), HasSubstr("could not be saved"));
  EXPECT_THAT(said("C"), HasSubstr("could not be saved"));
}

TEST_F(ConfiguratorTest, APictureThatCanNotBeWrittenIsToldWithItsName) {
  const Ended ended = RunOnCopy({"--picture", "/nowhere/a.png", "--language", "en"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "");
  EXPECT_THAT(ended.errors, HasSubstr("configurator: The picture “/nowhere/a.png” could not"));
}

TEST_F(ConfiguratorTest, NothingIsWrittenWhenNothingIsChanged) {
  const auto before = installation.Files();
  ASSERT_EQ(before.size(), 8U);
  Picture({"--show", "main"});
  Picture({"--show", "discriminators"});
  EXPECT_EQ(RunOnCopy({"--show", "discriminators", "--list"}).status, 0);
  EXPECT_EQ(installation.Files(), before);
}

TEST_F(ConfiguratorTest, ABrokenConfigurationIsToldAndNotOverwritten) {
  std::ofstream(installation.File("configuration.xml")) << "<configuration>";
  const Ended ended = RunOnCopy({"--show", "discriminators", "--list", "--language", "en"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "");
  EXPECT_THAT(ended.errors, HasSubstr("configuration.xml” cannot be read. The file is damaged: it "
                                      "cannot be read from line 1, column 16 on. It has not been"));
  EXPECT_EQ(installation.ConfigurationBytes(), "<configuration>");
}

}  // namespace
}  // namespace configurator
