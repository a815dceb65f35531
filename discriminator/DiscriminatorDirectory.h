#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "discriminator/DiscriminatorFile.h"
#include "tools/Files.h"
#include "tools/XmlDocument.h"

namespace qv {

/// What became of an index file.
enum class IndexOutcome {
  NotNeeded,  ///< the discriminator has no hour types
  Written,
  NotWritten  ///< the disk refused, or the name would lead to another place
};

/// The directory in which an installation keeps its discriminators, and the disk that it is on.
///
/// It keeps nothing of what it reads: each verb asks the disk anew, with the one access that it
/// names. It is a path and a reference, to be made wherever it is needed.
class DiscriminatorDirectory {
 public:
  /// `path` ends in its separator; `files` outlives this object.
  DiscriminatorDirectory(const QVWideString& path, Files& files);

  /// The names of the discriminator files, in the order of their characters; one walk. None if the
  /// directory can't be read.
  std::vector<std::wstring> FileNames() const;

  /// The names of the index files, likewise.
  std::vector<std::wstring> IndexFileNames() const;

  /// Whether a discriminator file has this name but for case, by what stands between the first two
  /// dots of the file's name; one walk.
  bool HasName(std::wstring_view name) const;

  /// The path of the file with this name.
  QVWideString PathOf(std::wstring_view fileName) const;

  /// The path of the discriminator file with this stem.
  QVWideString PathOfStem(const QVWideString& fileStem) const;

  /// Loads the file into `document`; one reading. False if it can't be read, or if its name isn't
  /// `<id>.<name>.xdct` of its own fields to the letter: such a file is nobody's discriminator.
  [[nodiscard]] bool Load(XmlDocument& document, std::wstring_view fileName) const;

  /// What the list shows of the file, or nothing if the list leaves it out: `Load` says no, or it
  /// is of the hidden type.
  std::optional<DiscriminatorSummary> Summary(std::wstring_view fileName,
                                              ShowConditions showConditions) const;

  /// Writes the document to the file that its own fields name. False if the disk refuses; an empty
  /// document, and a name that would lead to another place, are refused before the disk is asked.
  [[nodiscard]] bool Save(const XmlDocument& document) const;

  /// Writes the index file that belongs to the document with this root. Refuses as `Save` does.
  IndexOutcome SaveIndex(const XmlNode& root) const;

 private:
  std::vector<std::wstring> Walk(const QVWideString& pattern) const;
  std::optional<QVWideString> PathOfDocument(const XmlNode& root) const;

  QVWideString m_path;
  Files& m_files;
};

}  // namespace qv
