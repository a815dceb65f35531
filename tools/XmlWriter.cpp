#include "tools/XmlWriter.h"

#include <unordered_set>

#include "tools/Utf8.h"
#include "tools/XmlReader.h"
#include "tools/XmlText.h"

namespace qv {
namespace {

constexpr std::wstring_view blanks = L" \t\r\n";

/// Whether the parser takes `tag` for the name of an element.
bool IsElementName(std::string_view tag, std::wstring_view wideTag) {
  XmlReader reader;
  reader.Feed("<");
  reader.Feed(tag);
  reader.Feed("/>");
  const auto node = reader.Finish();
  return node && node->Tag() == wideTag;
}

class Writer {
 public:
  explicit Writer(Declaration declaration) : m_declaration(declaration) {
    if (m_declaration == Declaration::Yes) {
      m_text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    }
  }

  bool WriteNode(const XmlNode& node, int depth, bool indented) {
    const auto tag = Name(node.Tag());
    if (!tag || depth >= maxXmlDepth || ++m_nodes > maxXmlNodes || m_text.size() > maxXmlSize) {
      return false;
    }
    Indent(depth, indented);
    const bool hasChildren = node.ChildsBegin() != node.ChildsEnd();
    if (!hasChildren && node.Value().Empty()) {
      m_text += "<" + *tag + "/>";
    } else {
      m_text += "<" + *tag + ">";
      if (!WriteContent(node, depth, indented && node.Value().Empty())) {
        return false;
      }
      m_text += "</" + *tag + ">";
    }
    return true;
  }

  std::optional<std::string> Take() {
    if (m_declaration == Declaration::Yes) {
      m_text += '\n';
    }
    return m_text.size() <= maxXmlSize ? std::optional(std::move(m_text)) : std::nullopt;
  }

 private:
  bool WriteContent(const XmlNode& node, int depth, bool indented) {
    const bool hasChildren = node.ChildsBegin() != node.ChildsEnd();
    if (!WriteText(node.Value().ToView(), hasChildren)) {
      return false;
    }
    if (!hasChildren) {
      return true;
    }
    for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
      EndLine(indented);
      if (!WriteNode(**child, depth + 1, indented)) {
        return false;
      }
    }
    EndLine(indented);
    Indent(depth, indented);
    return true;
  }

  bool WriteText(std::wstring_view value, bool besideChildren) {
    const auto bytes = IsXmlText(value) ? ToUtf8(value) : std::nullopt;
    if (!bytes) {
      return false;
    }
    // Blanks beside children would be taken for indentation; one that is a reference keeps them
    // all.
    const bool blank = value.find_first_not_of(blanks) == std::wstring_view::npos;
    const bool keepBlanks = besideChildren && blank;
    for (const char byte : *bytes) {
      WriteByte(byte, keepBlanks);
    }
    return true;
  }

  void WriteByte(char byte, bool keepBlanks) {
    switch (byte) {
      case '&':
        m_text += "&amp;";
        break;
      case '<':
        m_text += "&lt;";
        break;
      case '>':
        m_text += "&gt;";
        break;
      case '\t':
        m_text += "&#9;";
        break;
      case '\n':
        m_text += "&#10;";
        break;
      case '\r':
        m_text += "&#13;";
        break;
      case ' ':
        m_text += keepBlanks ? "&#32;" : " ";
        break;
      default:
        m_text += byte;
    }
  }

  /// The tag in UTF-8, or nothing if no element can have it.
  std::optional<std::string> Name(const QVWideString& tag) {
    auto bytes = ToUtf8(tag.ToView());
    if (!bytes || m_names.contains(*bytes)) {
      return bytes;
    }
    if (!IsElementName(*bytes, tag.ToView())) {
      return std::nullopt;
    }
    m_names.insert(*bytes);
    return bytes;
  }

  void Indent(int depth, bool indented) {
    if (indented) {
      m_text.append(static_cast<std::size_t>(depth) * 2, ' ');
    }
  }

  void EndLine(bool indented) {
    if (indented) {
      m_text += '\n';
    }
  }

  Declaration m_declaration;
  std::size_t m_nodes = 0;
  std::string m_text;
  std::unordered_set<std::string> m_names;
};

}  // namespace

std::optional<std::string> WriteXml(const XmlNode& root, Declaration declaration) {
  Writer writer(declaration);
  return writer.WriteNode(root, 0, true) ? writer.Take() : std::nullopt;
}

}  // namespace qv
