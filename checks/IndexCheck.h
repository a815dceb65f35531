#pragma once

#include <set>
#include <string>

#include "checks/Finding.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "tools/Files.h"
#include "tools/XmlNode.h"

namespace qv {

/// The index files of a directory, beside the discriminator files that are told one by one.
class IndexCheck {
 public:
  /// Both outlive the check; the directory is on the disk `files`.
  IndexCheck(const DiscriminatorDirectory& directory, Files& files)
      : m_directory(directory), m_files(files) {}

  /// What is wrong with the index file of the discriminator file `file`, whose content is `root`;
  /// one without hour types needs none.
  void Check(const std::wstring& file, const XmlNode& root, Findings& findings);

  /// Nobody knows what index `file` needs: nothing is told of one.
  void LeaveAlone(const std::wstring& file);

  /// The index files that belong to none of the files that were told.
  void CheckOthers(Findings& findings) const;

 private:
  const DiscriminatorDirectory& m_directory;
  Files& m_files;
  std::set<std::wstring> m_known;  ///< the names of index files that belong to a file
};

}  // namespace qv
