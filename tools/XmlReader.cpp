#include "tools/XmlReader.h"

#include <expat.h>

#include <algorithm>
#include <exception>
#include <type_traits>
#include <utility>
#include <vector>

#include "tools/Utf8.h"

namespace qv {
namespace {

constexpr std::string_view blanks = " \t\r\n";

struct FreeParser {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ParserHandle = std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser>;

/// An element whose end hasn't come yet.
struct OpenElement {
  XmlNode* node = nullptr;
  std::string text;
  bool hasReference = false;  ///< some of the text came from a character reference
};

bool IsIndentation(const OpenElement& element) {
  return !element.hasReference && element.node->ChildsBegin() != element.node->ChildsEnd() &&
         element.text.find_first_not_of(blanks) == std::string::npos;
}

}  // namespace

/// Turns the parser's events into nodes. Handlers are called by C code, so that nothing may be
/// thrown through them: whatever goes wrong is kept and stops the parser.
class XmlReader::Builder {
 public:
  Builder(std::wstring_view onlyRoot, std::size_t maxDepth)
      : m_onlyRoot(onlyRoot), m_maxDepth(maxDepth), m_parser(XML_ParserCreate(nullptr)) {
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(m_parser.get(), OnStart, OnEnd);
    XML_SetCharacterDataHandler(m_parser.get(), OnText);
    XML_SetStartDoctypeDeclHandler(m_parser.get(), OnDoctype);
    XML_SetSkippedEntityHandler(m_parser.get(), OnSkippedEntity);
  }

  bool Feed(std::string_view piece, bool isLast) {
    m_size += piece.size();
    if (m_size > maxXmlSize) {
      Refuse("the document is larger than 256 MiB");
    }
    // The parser guesses the encoding from the first piece, for which it needs two bytes.
    if (m_size < 2 && !isLast) {
      m_start += piece;
      return true;
    }
    return m_start.empty() ? Parse(piece, isLast)
                           : Parse(std::exchange(m_start, {}).append(piece), isLast);
  }

  std::unique_ptr<XmlNode> Take() { return Refused() ? nullptr : std::move(m_root); }

  XmlError Error() const { return m_reason ? XmlError{m_reason, m_line, m_column} : XmlError{}; }

 private:
  template <class Action>
  void Guarded(Action action) noexcept {
    if (Refused()) {
      return;
    }
    try {
      action();
    } catch (const std::exception&) {
      Refuse("the document does not fit the memory");
    }
  }

  bool Parse(std::string_view piece, bool isLast) {
    if (Refused()) {
      return false;
    }
    // The pieces are below the size limit, and so fit the parser's int.
    const auto status =
        XML_Parse(m_parser.get(), piece.data(), static_cast<int>(piece.size()), isLast);
    if (status != XML_STATUS_OK && !Refused()) {
      Refuse(XML_ErrorString(XML_GetErrorCode(m_parser.get())));
    }
    return !Refused();
  }

  static Builder& Self(void* data) { return *static_cast<Builder*>(data); }

  static void XMLCALL OnStart(void* data, const XML_Char* name, const XML_Char** /*attributes*/) {
    Self(data).Guarded([&] { Self(data).Start(name); });
  }
  static void XMLCALL OnEnd(void* data, const XML_Char* /*name*/) {
    Self(data).Guarded([&] { Self(data).End(); });
  }
  static void XMLCALL OnText(void* data, const XML_Char* text, int length) {
    Self(data).Guarded(
        [&] { Self(data).Text(std::string_view(text, static_cast<std::size_t>(length))); });
  }
  static void XMLCALL OnDoctype(void* data, const XML_Char*, const XML_Char*, const XML_Char*,
                                int hasInternalSubset) {
    if (hasInternalSubset) {
      Self(data).Refuse("a DOCTYPE with an internal subset is not accepted");
    }
  }
  static void XMLCALL OnSkippedEntity(void* data, const XML_Char*, int /*isParameterEntity*/) {
    Self(data).Refuse("a reference to an unknown entity");
  }

  void Start(const XML_Char* name) {
    if (m_open.size() >= m_maxDepth) {
      Refuse("elements are nested more than 512 levels deep");
      return;
    }
    if (++m_nodes > maxXmlNodes) {
      Refuse("there are more than 4 million elements");
      return;
    }
    const std::wstring tag = FromUtf8(name);
    XmlNode* node = nullptr;
    if (m_open.empty() && !m_onlyRoot.empty() && tag != m_onlyRoot) {
      Refuse("the root is another one");
      return;
    }
    if (m_open.empty()) {
      m_root = std::make_unique<XmlNode>(QVWideString(tag));
      node = m_root.get();
    } else {
      node = m_open.back().node->NewChild(tag.c_str(), nullptr);
    }
    m_open.push_back({node, {}, false});
  }

  void End() {
    OpenElement& element = m_open.back();
    if (!element.text.empty() && !IsIndentation(element)) {
      element.node->SetValue(QVWideString(FromUtf8(element.text)));
    }
    m_open.pop_back();
  }

  void Text(std::string_view text) {
    OpenElement& element = m_open.back();
    element.text += text;
    // A blank that was written as a reference is meant: its source is longer than the one
    // character.
    const bool isBlank = text.size() == 1 && blanks.find(text.front()) != std::string_view::npos;
    element.hasReference |= isBlank && SourceIsReference();
  }

  bool SourceIsReference() {
    int offset = 0;
    int size = 0;
    const char* context = XML_GetInputContext(m_parser.get(), &offset, &size);
    // In big-endian UTF-16 a zero stands before the ampersand.
    const std::string_view source(context + offset, static_cast<std::size_t>(size - offset));
    return source.starts_with('&') || source.starts_with(std::string_view("\0&", 2));
  }

  bool Refused() const { return m_reason != nullptr; }

  /// `reason` lives as long as the program.
  void Refuse(const char* reason) noexcept {
    m_reason = reason;
    m_line = XML_GetCurrentLineNumber(m_parser.get());
    m_column = XML_GetCurrentColumnNumber(m_parser.get()) + 1;
    XML_StopParser(m_parser.get(), XML_FALSE);
  }

  std::wstring m_onlyRoot;
  std::size_t m_maxDepth;
  ParserHandle m_parser;
  std::unique_ptr<XmlNode> m_root;
  std::vector<OpenElement> m_open;
  std::string m_start;  ///< what is kept back until the parser can be started
  std::size_t m_size = 0;
  std::size_t m_nodes = 0;
  const char* m_reason = nullptr;  ///< why the text was refused
  unsigned long m_line = 0;
  unsigned long m_column = 0;
};

XmlReader::XmlReader() : XmlReader(std::wstring_view(), 0) {}

XmlReader::XmlReader(std::wstring_view onlyRoot, std::size_t wrappingLevels)
    : m_builder(std::make_unique<Builder>(onlyRoot, maxXmlDepth + wrappingLevels)) {}

XmlReader::~XmlReader() = default;

bool XmlReader::Feed(std::string_view piece) { return m_builder->Feed(piece, false); }

std::unique_ptr<XmlNode> XmlReader::Finish() {
  m_builder->Feed({}, true);
  return m_builder->Take();
}

XmlError XmlReader::Error() const { return m_builder->Error(); }

std::unique_ptr<XmlNode> ReadXmlFile(std::wstring_view path, Files& files, XmlError* error) {
  XmlError ignored;
  XmlError& refusal = error ? *error : ignored;
  const auto file = files.OpenForReading(path);
  if (!file) {
    refusal = {"the file cannot be opened", 0, 0};
    return nullptr;
  }
  XmlReader reader;
  std::vector<char> buffer(std::size_t{64} * 1024);
  std::ptrdiff_t count = 0;
  while ((count = file->Read(buffer.data(), buffer.size())) > 0) {
    if (!reader.Feed({buffer.data(), static_cast<std::size_t>(count)})) {
      break;
    }
  }
  if (count < 0) {
    refusal = {"the file cannot be read", 0, 0};
    return nullptr;
  }
  auto root = reader.Finish();
  refusal = reader.Error();
  return root;
}

}  // namespace qv
