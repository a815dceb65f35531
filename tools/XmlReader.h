#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "tools/Export.h"
#include "tools/Files.h"
#include "tools/XmlNode.h"

namespace qv {

/// How many levels of elements a document may have, the root being the first.
constexpr int maxXmlDepth = 512;
/// How many bytes the text of a document may have.
constexpr std::size_t maxXmlSize = std::size_t{256} * 1024 * 1024;

/// How many elements a document may have.
constexpr std::size_t maxXmlNodes = 4'000'000;

/// Why and where a text was refused.
struct XmlError {
  std::string reason;        ///< in English; empty if nothing was refused
  unsigned long line = 0;    ///< from 1; 0 if the text as a whole is meant
  unsigned long column = 0;  ///< from 1, in characters; 0 likewise
};

/// Makes a tree of XML text that comes in pieces.
///
/// Attributes, comments, processing instructions and a DOCTYPE without internal subset are read
/// over. Refused are text that isn't well-formed, a DOCTYPE with an internal subset, references to
/// entities that aren't predefined, and documents beyond `maxXmlDepth`,
/// `maxXmlSize` or `maxXmlNodes`. The text of
/// an element without children is kept verbatim; beside children, text of blanks alone is
/// indentation and counts as none, unless a character reference stands in it.
class QVTOOLS_EXPORT XmlReader {
 public:
  XmlReader();
  /// Refuses a text whose root has another tag, as soon as that root opens. The text may be deeper
  /// by the levels that it wraps around documents.
  explicit XmlReader(std::wstring_view onlyRoot, std::size_t wrappingLevels = 0);
  XmlReader(const XmlReader&) = delete;
  XmlReader& operator=(const XmlReader&) = delete;
  ~XmlReader();

  /// Takes the next piece; false once the text is refused.
  bool Feed(std::string_view piece);

  /// Ends the text: its root, or null if it was refused. To be called once, last.
  std::unique_ptr<XmlNode> Finish();

  /// What was wrong, once `Feed` or `Finish` has refused the text.
  XmlError Error() const;

 private:
  class Builder;
  std::unique_ptr<Builder> m_builder;
};

/// The root of the XML file `path`, or null; `error`, if given, then says why.
QVTOOLS_EXPORT std::unique_ptr<XmlNode> ReadXmlFile(std::wstring_view path, Files& files,
                                                    XmlError* error = nullptr);

}  // namespace qv
