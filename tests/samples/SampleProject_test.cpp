// The samples as a project of their own, which takes this one in as a host does.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QStringList>

namespace {

constexpr int patience = 1'500'000;  // milliseconds, for all of the library without a cache

struct Outcome {
  int status;
  QString told;  ///< what it wrote as an error

  bool IsDone() const { return status == 0; }
};

Outcome RunProgram(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
  process.start(program, arguments);
  const bool ended = process.waitForFinished(patience);
  const auto told = QString::fromLocal8Bit(process.readAllStandardError());
  return {ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, told};
}

/// Makes CMake look for a package in vain.
QString Without(const char* package) {
  return QStringLiteral("-DCMAKE_DISABLE_FIND_PACKAGE_%1=ON").arg(QLatin1String(package));
}

/// The names of all programs that stand below `folder`.
QStringList ProgramsIn(const QString& folder) {
  QStringList programs;
  QDirIterator files(folder, QDir::Files | QDir::Executable, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QFileInfo file(files.next());
    if (file.suffix().isEmpty() && !file.path().contains(QStringLiteral("/CMakeFiles"))) {
      programs += file.fileName();
    }
  }
  return programs;
}

TEST(SampleProject, NeedsAndBuildsOnlyWhatAHostUses) {
  const QString folder = QStringLiteral(BUILD_FOLDER);
  const Outcome configured = RunProgram(
      CMAKE_PROGRAM, {"-G", "Ninja", "-S", SAMPLES_FOLDER, "-B", folder, Without("CLI11"),
                      Without("nlohmann_json"), Without("GTest"), Without("benchmark")});
  ASSERT_TRUE(configured.IsDone()) << qPrintable(configured.told);
  const Outcome built = RunProgram(CMAKE_PROGRAM, {"--build", folder});
  ASSERT_TRUE(built.IsDone()) << qPrintable(built.told);

  EXPECT_EQ(ProgramsIn(folder), QStringList{"managersample"});
  EXPECT_TRUE(QFile::exists(folder + "/images/OK-16.png")) << "beside the program";
  const Outcome sample = RunProgram(folder + "/managersample", {});
  EXPECT_EQ(sample.status, 1);
  EXPECT_TRUE(sample.told.contains("usage: managersample")) << qPrintable(sample.told);
}

}  // namespace
