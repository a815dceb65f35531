#pragma once

#include <filesystem>
#include <string>

namespace qv {

/// A new empty directory on the real disk, which is removed with all in it when this object dies.
class TemporaryDirectory {
 public:
  TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  const std::filesystem::path& Path() const { return m_path; }

  /// The path with a trailing separator, as a configuration directory is given.
  std::wstring WidePath() const;

 private:
  std::filesystem::path m_path;
};

/// The bytes of a file; fails the test if it can't be read.
std::string FileBytes(const std::filesystem::path& path);

}  // namespace qv
