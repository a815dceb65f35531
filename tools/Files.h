#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "tools/Export.h"

namespace qv {

/// An open file that is read from its start to its end. Destroying it closes it.
class QVTOOLS_EXPORT FileReader {
 public:
  virtual ~FileReader() = default;
  /// Reads up to `size` bytes into `buffer`: how many they were, 0 at the end, -1 on an error.
  virtual std::ptrdiff_t Read(char* buffer, std::size_t size) = 0;
};

/// An open file that is written from its start. Destroying it without `Close` closes it as it is.
class QVTOOLS_EXPORT FileWriter {
 public:
  virtual ~FileWriter() = default;
  /// Writes all of `bytes`; false on any error, after which part of them may stand in the file.
  virtual bool Write(std::string_view bytes) = 0;
  /// Flushes to the disk and closes; false if either fails. To be called once, last.
  virtual bool Close() = 0;
};

/// How the removal of a file ended.
enum class Removal {
  Removed,  ///< the file is gone
  Missing,  ///< there was none of this name
  Refused   ///< it is still there: write-protected, a directory, or the system said no
};

/// What is done to a file.
enum class FileVerb { Write, Remove };

/// The one road to the disk: every open, write, removal, new directory and walk. Paths are full
/// paths or relative to the working directory. Nothing here throws for what the disk answers.
class QVTOOLS_EXPORT Files {
 public:
  virtual ~Files() = default;

  /// The real disk.
  static Files& Disk();

  /// The file, or null if it can't be opened for reading; what is no regular file can't.
  virtual std::unique_ptr<FileReader> OpenForReading(std::wstring_view path) = 0;

  /// The file, made or emptied, or null if it can't be opened for writing or is
  /// write-protected, as with `Remove`. Makes no directory.
  virtual std::unique_ptr<FileWriter> OpenForWriting(std::wstring_view path) = 0;

  /// Whether there is anything of this name; also true where that can't be found out.
  virtual bool Exists(std::wstring_view path) = 0;

  /// Unlinks a file or a link, never a directory. A file without any write permission counts as
  /// write-protected and is refused, whoever runs the program.
  virtual Removal Remove(std::wstring_view path) = 0;

  /// Why the file of this path, there or still to be made, would be refused to `verb` now; no error
  /// if nothing is known to be in the way. Changes nothing, and counts as no failure.
  virtual std::error_code Obstacle(std::wstring_view /*path*/, FileVerb /*verb*/) { return {}; }

  /// Makes the directory and those above it that are missing; true if it is there afterwards.
  virtual bool MakeDirectory(std::wstring_view path) = 0;

  /// The names, without directory, of the entries that `pattern` matches, in the order of their
  /// characters: a directory, then "*" and an ending, as in "/etc/cfg/*.xdct". Letters count with
  /// their case. A directory that can't be read gives none. Bytes of a name that aren't UTF-8 come
  /// as U+FFFD.
  virtual std::vector<std::wstring> Walk(std::wstring_view pattern) = 0;

  /// Why the system refused the first verb, reading or writing that has failed since
  /// `ForgetFailure`; no error if none has. That a file to remove is missing is no failure.
  const std::error_code& Failure() const { return m_failure; }
  void ForgetFailure() { m_failure.clear(); }
  /// For those who do the work: keeps why it failed.
  void NoteFailure(const std::error_code& failure) { m_failure = m_failure ? m_failure : failure; }

 private:
  std::error_code m_failure;
};

}  // namespace qv

/// Makes the directory `path` if it doesn't exist, with those above it; true if it is there
/// afterwards.
QVTOOLS_EXPORT bool CreateDirectoryW(const wchar_t* path, qv::Files& files = qv::Files::Disk());
