#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "host/Export.h"
#include "host/QVLoadString.h"
#include "host/Text.h"
#include "tools/XmlReader.h"

namespace qv {

/// One line of what a message says more.
struct AddedLine {
  Text text{};                            ///< one of the library's own, from 60000 up
  std::vector<std::wstring> arguments{};  ///< for its placeholders

  friend bool operator==(const AddedLine&, const AddedLine&) = default;
};

/// What a message or a question says more, in lines below its own text.
using Addition = std::vector<AddedLine>;

/// The first five of the lines, and one that tells how many more there are.
QVHOST_EXPORT Addition Shortened(Addition lines);

/// Which file it was, and why the system refused it. Without a reason the file alone is told.
QVHOST_EXPORT Addition AboutFile(std::wstring_view path, const std::error_code& reason);

/// Why an XML file can't be read: what the system says, or else where its text is damaged.
QVHOST_EXPORT Addition WhyUnreadable(const std::error_code& reason, const XmlError& error);

/// The lines in words, with line ends between them. A line whose text the language lacks is left
/// out, so that nothing may be left.
QVHOST_EXPORT std::wstring InWords(const Addition& addition, const QVLoadString& loadString);

}  // namespace qv
