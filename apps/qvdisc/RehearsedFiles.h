#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tools/Files.h"

namespace qvdisc {

/// What would have become of a file.
struct FileChange {
  std::wstring path;
  bool isRemoved = false;  ///< or else written

  friend bool operator==(const FileChange&, const FileChange&) = default;
};

/// A disk on which nothing is changed: what is written or removed is only remembered, and found so
/// by what is read afterwards. What the disk is known to refuse is refused here as well; that it
/// may be full isn't foreseen.
class RehearsedFiles : public qv::Files {
 public:
  /// `disk` outlives this object, and what is opened doesn't.
  explicit RehearsedFiles(qv::Files& disk) : m_disk(disk) {}

  /// How the disk would differ, by path. A file that only was there in between isn't named.
  std::vector<FileChange> Changes() const;

  std::unique_ptr<qv::FileReader> OpenForReading(std::wstring_view path) override;
  std::unique_ptr<qv::FileWriter> OpenForWriting(std::wstring_view path) override;
  bool Exists(std::wstring_view path) override;
  qv::Removal Remove(std::wstring_view path) override;
  /// Makes none: true if it is there.
  bool MakeDirectory(std::wstring_view path) override;
  std::vector<std::wstring> Walk(std::wstring_view pattern) override;

 private:
  bool IsRefused(std::wstring_view path, qv::FileVerb verb);

  qv::Files& m_disk;
  /// By path the content that was written, or nothing where the file was removed.
  std::map<std::wstring, std::optional<std::string>, std::less<>> m_changed;
};

}  // namespace qvdisc
