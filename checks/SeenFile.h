#pragma once

#include <string>
#include <vector>

namespace qv {

/// What a check keeps of a discriminator file.
struct SeenFile {
  std::wstring file;    ///< its name
  bool isRead = false;  ///< whether its content is known
  std::wstring id;      ///< the field's; of a file that can't be read, what its name says
  std::wstring name{};  ///< the field's
};

using SeenFiles = std::vector<SeenFile>;

}  // namespace qv
