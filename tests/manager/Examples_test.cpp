#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <string>

#include "discriminator/FileNames.h"
#include "manager/DiscriminatorList.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/CountingProgress.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"
#include "tests/support/TemporaryDirectory.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

/// `path` as the library takes it, whatever the locale.
std::wstring Wide(const fs::path& path) { return FromUtf8(path.string()); }

using Contents = std::map<fs::path, std::string>;

fs::path Example(const char* name) { return fs::path(QV_PROJECT_DIR) / "examples" / name; }

Contents ContentsOf(const fs::path& directory) {
  Contents contents;
  for (const auto& entry : fs::directory_iterator(directory)) {
    contents[entry.path().filename()] = FileBytes(entry.path());
  }
  return contents;
}

/// The rows of the list over an example, as the host with the example's configuration shows them.
std::vector<DiscriminatorSummary> RowsOf(const fs::path& directory) {
  FakeHost host;
  host.setup.cfgPath = Wide(directory / "").c_str();
  EXPECT_TRUE(host.mainCfg.Load(Wide(directory / "configuration.xml").c_str()));
  ScriptedPrompter prompter;
  QuietListView view;
  DiscriminatorList list(host.Services(), Files::Disk(), prompter, view, nullptr);
  list.ReadInstallation();
  CountingProgress progress;
  EXPECT_TRUE(list.Refresh(progress));
  std::vector<DiscriminatorSummary> rows;
  for (const auto& row : list.Rows()) {
    rows.push_back(row.shown);
  }
  return rows;
}

std::vector<std::wstring> NamesOf(const std::vector<DiscriminatorSummary>& rows) {
  std::vector<std::wstring> names(rows.size());
  std::transform(rows.begin(), rows.end(), names.begin(),
                 [](const auto& row) { return std::wstring(row.name.ToView()); });
  return names;
}

TEST(ExampleInstallation, FilesComeBackByteForByte) {
  const fs::path directory = Example("installation");
  const Contents contents = ContentsOf(directory);
  ASSERT_EQ(contents.size(), 8U);
  for (const auto& [name, bytes] : contents) {
    XmlDocument document;
    ASSERT_TRUE(document.Load(Wide(directory / name).c_str())) << name;
    ScriptedFiles files;
    ASSERT_TRUE(document.SaveAs(L"/copy.xml", files)) << name;
    EXPECT_EQ(files.contents.at(L"/copy.xml"), bytes) << name;
  }
}

TEST(ExampleInstallation, ListShowsItsFourDiscriminators) {
  const auto rows = RowsOf(Example("installation"));
  const std::vector<std::wstring> expected = {L"Day and night", L"Tariff 2-0TD 2026",
                                              L"Tariff 3-0TD and 6-1TD 2026",
                                              L"Transformer station state"};
  EXPECT_EQ(NamesOf(rows), expected);
  for (const auto& row : rows) {
    EXPECT_FALSE(row.description.Empty()) << testing::PrintToString(std::wstring(row.name));
  }
}

TEST(ExampleInstallation, IsLeftUntouchedByTheList) {
  const Contents before = ContentsOf(Example("installation"));
  RowsOf(Example("installation"));
  EXPECT_EQ(ContentsOf(Example("installation")), before);
}

/// The files of the table in the description of the awkward example, and whether it says that they
/// are listed.
std::map<fs::path, bool> DescribedFiles() {
  static const std::regex row(R"(\| `([^`]*)` \|[^|]*\|(.*)\|)");
  std::istringstream readme(FileBytes(Example("awkward") / "README.md"));
  std::map<fs::path, bool> described;
  for (std::string line; std::getline(readme, line);) {
    std::smatch parts;
    if (std::regex_match(line, parts, row)) {
      described[parts[1].str()] = parts[2].str().find("**Lists it**") != std::string::npos;
    }
  }
  return described;
}

TEST(AwkwardExample, DescribesEachOfItsDiscriminatorFiles) {
  std::map<fs::path, bool> described = DescribedFiles();
  ASSERT_EQ(described.size(), 4U);
  for (const auto& entry : fs::directory_iterator(Example("awkward"))) {
    const bool isDiscriminator = entry.path().extension() == discriminatorExtension;
    EXPECT_EQ(described.erase(entry.path().filename()), isDiscriminator ? 1U : 0U) << entry.path();
  }
  EXPECT_TRUE(described.empty()) << described.begin()->first << " isn't there";
}

TEST(AwkwardExample, ListShowsWhatIsDescribed) {
  const auto rows = RowsOf(Example("awkward"));
  EXPECT_EQ(NamesOf(rows), std::vector<std::wstring>{L"Seasons of 2026"});
  std::size_t listed = 0;
  for (const auto& [file, isListed] : DescribedFiles()) {
    const std::wstring stem = Wide(file.stem());
    const auto isRow = [&](const auto& row) { return row.fileStem == stem; };
    EXPECT_EQ(std::any_of(rows.begin(), rows.end(), isRow), isListed) << file;
    listed += isListed ? 1 : 0;
  }
  EXPECT_EQ(rows.size(), listed);
}

TEST(AwkwardExample, IsLeftUntouchedByTheList) {
  const Contents before = ContentsOf(Example("awkward"));
  RowsOf(Example("awkward"));
  EXPECT_EQ(ContentsOf(Example("awkward")), before);
}

}  // namespace
}  // namespace qv
