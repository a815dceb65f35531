#pragma once

#include "host/CreateDiscriminatorIndex.h"
#include "tools/Files.h"

namespace qv {

/// Makes index files from the discriminators on the disk.
class IndexFiles : public CreateDiscriminatorIndex {
 public:
  explicit IndexFiles(Files& files = Files::Disk());

  /// `fileName` is "<name>.xdct". Writes the index of every file of the directory `path` whose name
  /// part is exactly that name, that loads, is named as its own fields say, and has `hourTypes`;
  /// touches nothing else. False if there is none, or one could not be written.
  bool operator()(const QVWideString& path, const QVWideString& fileName) override;

 private:
  Files& m_files;
};

}  // namespace qv
