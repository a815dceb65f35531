#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tools/Files.h"

namespace qv {

/// A disk in memory whose operations fail where the test says so.
///
/// Each failure has the reason that a disk gives for it. Files are kept by their full path. A
/// failing write leaves the bytes that still fitted. Each operation is written into `log`, as in
/// "write /cfg/a.xdct", in the order in which it came.
class ScriptedFiles : public Files {
 public:
  /// The files by path.
  std::map<std::wstring, std::string> contents;
  /// Paths that are directories.
  std::set<std::wstring> directories;
  /// What was asked, in order; empty it when you like.
  std::vector<std::wstring> log;

  // What is to fail.
  std::set<std::wstring> unreadable;      ///< opening for reading fails
  std::set<std::wstring> unwritable;      ///< opening for writing fails
  std::set<std::wstring> writeProtected;  ///< removing is refused
  std::set<std::wstring> breakingReads;   ///< reading fails half-way
  bool refuseDirectories = false;         ///< no directory can be made
  bool failClose = false;                 ///< flushing or closing a written file fails
  std::optional<std::size_t>
      diskSpace;                   ///< bytes that may still be written before the disk is full
  std::size_t longestName = 4096;  ///< a file of a longer name can't be written
  std::size_t pieceSize = 0;       ///< the most that one read gives; 0 for no limit

  std::unique_ptr<FileReader> OpenForReading(std::wstring_view path) override;
  std::unique_ptr<FileWriter> OpenForWriting(std::wstring_view path) override;
  bool Exists(std::wstring_view path) override;
  Removal Remove(std::wstring_view path) override;
  bool MakeDirectory(std::wstring_view path) override;
  std::vector<std::wstring> Walk(std::wstring_view pattern) override;
};

}  // namespace qv
