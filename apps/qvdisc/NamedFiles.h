#pragma once

#include <string>
#include <vector>

namespace qvdisc {

/// Those of the discriminator files that `name` can mean, in order: by the stem of the file, or by
/// id or name alone as the file's name says them. Nothing is read, so that files are found which
/// the list leaves out.
std::vector<std::wstring> FilesNamed(const std::vector<std::wstring>& files,
                                     const std::wstring& name);

}  // namespace qvdisc
