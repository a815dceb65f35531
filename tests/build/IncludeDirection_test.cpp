#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "tests/support/TemporaryDirectory.h"

namespace {

namespace fs = std::filesystem;
using Folders = std::set<std::string>;

/// Which folders of the project the files of a folder may include from, beside their own.
const std::map<std::string, Folders>& AllowedFolders() {
  static const std::map<std::string, Folders> allowed = [] {
    std::map<std::string, Folders> table;
    const auto add = [&](const std::string& folder, const Folders& direct) {
      Folders all = {folder};
      for (const auto& used : direct) {
        all.insert(used);
        all.insert(table.at(used).begin(), table.at(used).end());
      }
      table[folder] = all;
    };
    add("tools", {});
    add("host", {"tools"});
    add("discriminator", {"host"});
    for (const char* subsystem : {"timestructure", "calendar", "conditions", "variables"}) {
      add(subsystem, {"discriminator"});
    }
    for (const char* whole : {"editor", "checks"}) {
      add(whole, {"timestructure", "calendar", "conditions", "variables"});
    }
    add("manager", {"editor", "checks"});
    add("hostkit", {"discriminator"});
    add("toolkit", {"host"});
    add("timestructure/ui", {"timestructure", "toolkit"});
    add("calendar/ui", {"calendar", "toolkit"});
    add("conditions/ui", {"conditions", "toolkit"});
    add("variables/ui", {"variables", "toolkit"});
    add("editor/ui", {"editor", "timestructure/ui", "calendar/ui", "conditions/ui", "toolkit"});
    add("manager/ui", {"manager", "editor/ui", "toolkit"});
    add("hostkit/ui", {"hostkit", "toolkit"});
    add("library", {"manager/ui", "calendar/ui", "variables/ui", "timestructure/ui"});
    add("apps/commandline", {"hostkit"});
    add("apps/configurator", {"library", "hostkit/ui", "apps/commandline"});
    add("apps/qvdisc", {"manager", "hostkit", "apps/commandline"});
    return table;
  }();
  return allowed;
}

std::vector<std::string> Includes(const fs::path& file) {
  static const std::regex include("^\\s*#\\s*include\\s*\"([^\"]+)\"");
  std::vector<std::string> found;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    std::smatch match;
    if (std::regex_search(line, match, include)) {
      found.push_back(match[1]);
    }
  }
  return found;
}

bool IsSource(const fs::path& file) {
  return file.extension() == ".h" || file.extension() == ".cpp";
}

/// The includes of `folder` that the table doesn't allow, as "file includes that".
std::vector<std::string> Offences(const fs::path& root, const std::string& folder) {
  std::vector<std::string> offences;
  for (const auto& entry : fs::directory_iterator(root / folder)) {
    if (!IsSource(entry.path())) {
      continue;
    }
    for (const auto& included : Includes(entry.path())) {
      const std::string from = fs::path(included).parent_path().string();
      // A header without a folder is one that the build generates.
      if (!from.empty() && !AllowedFolders().at(folder).contains(from)) {
        offences.push_back(folder + "/" + entry.path().filename().string() + " includes " +
                           included);
      }
    }
  }
  return offences;
}

TEST(IncludeDirection, EachFolderIncludesOnlyWhatLiesBelowIt) {
  const fs::path root(PROJECT_FOLDER);
  int foldersSeen = 0;
  for (const auto& [folder, allowed] : AllowedFolders()) {
    if (fs::exists(root / folder)) {
      ++foldersSeen;
      EXPECT_EQ(Offences(root, folder), std::vector<std::string>());
    }
  }
  EXPECT_GE(foldersSeen, 8);
}

TEST(IncludeDirection, AWrongIncludeIsFound) {
  const qv::TemporaryDirectory directory;
  const fs::path& root = directory.Path();
  fs::create_directories(root / "tools");
  std::ofstream(root / "tools" / "Wrong.h") << "#include \"toolkit/CDialog.h\"\n";
  EXPECT_EQ(Offences(root, "tools"),
            std::vector<std::string>{"tools/Wrong.h includes toolkit/CDialog.h"});
}

TEST(IncludeDirection, NoSourceFolderIsMissingFromTheTable) {
  const fs::path root(PROJECT_FOLDER);
  const Folders aside = {"tests", "bench", "build", "docs", "examples", "apps", ".git"};
  for (const auto& entry : fs::directory_iterator(root)) {
    const std::string folder = entry.path().filename().string();
    if (!entry.is_directory() || aside.contains(folder)) {
      continue;
    }
    for (const auto& file : fs::recursive_directory_iterator(entry.path())) {
      const auto holder = fs::relative(file.path().parent_path(), root).string();
      EXPECT_TRUE(!IsSource(file.path()) || AllowedFolders().contains(holder)) << file.path();
    }
  }
}

}  // namespace
