#pragma once

#include <QString>
#include <filesystem>
#include <map>
#include <string>

#include "tests/support/TemporaryDirectory.h"

namespace configurator {

/// A copy of the example installation that a test may change.
class ExampleCopy {
 public:
  ExampleCopy() {
    std::filesystem::copy(EXAMPLE_INSTALLATION, m_directory.Path());
    // What is copied may be write-protected.
    for (const auto& file : std::filesystem::directory_iterator(m_directory.Path())) {
      std::filesystem::permissions(file, std::filesystem::perms::owner_write,
                                   std::filesystem::perm_options::add);
    }
  }

  std::filesystem::path File(const char* name) const { return m_directory.Path() / name; }
  QString Directory() const { return QString::fromStdString(m_directory.Path().string()); }

  /// The bytes of all files, by name.
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(m_directory.Path())) {
      files[file.path().filename().string()] = qv::FileBytes(file.path());
    }
    return files;
  }

  std::string ConfigurationBytes() const { return qv::FileBytes(File("configuration.xml")); }

 private:
  qv::TemporaryDirectory m_directory;
};

}  // namespace configurator
