#include "manager/ClipboardPayload.h"

#include <numeric>
#include <string>

#include "discriminator/Fields.h"
#include "tools/Nodes.h"
#include "tools/XmlReader.h"
#include "tools/XmlWriter.h"

namespace qv {
namespace {

constexpr wchar_t payloadTag[] = L"discriminatorClipboard";
constexpr wchar_t itemTag[] = L"discriminator";
constexpr std::string_view itemOpening = "<discriminator>";
constexpr std::string_view itemClosing = "</discriminator>";
constexpr std::string_view closing = "</discriminatorClipboard>";

/// How many levels a payload puts around a document.
constexpr std::size_t wrappingLevels = 2;

std::size_t CountOf(const XmlNode& node) {
  return std::accumulate(
      node.ChildsBegin(), node.ChildsEnd(), std::size_t{1},
      [](std::size_t count, const XmlNode* child) { return count + CountOf(*child); });
}

/// A payload while it is written. What would make it too large to be read again is passed over.
class Payload {
 public:
  Payload() { m_text += "<discriminatorClipboard>"; }

  void Append(const XmlNode& root) {
    const auto code = WriteXml(root, Declaration::No);
    const std::size_t count = m_count + 1 + CountOf(root);
    if (!code || count > maxXmlNodes || m_text.Length() + LengthOf(*code) > maxXmlSize) {
      return;
    }
    m_count = count;
    m_text += itemOpening.data();
    m_text += code->c_str();
    m_text += itemClosing.data();
  }

  QVNarrowString End() {
    m_text += closing.data();
    return m_text;
  }

 private:
  static std::size_t LengthOf(const std::string& code) {
    return itemOpening.size() + code.size() + itemClosing.size() + closing.size();
  }

  QVNarrowString m_text{QVNarrowString::GrowSmall};
  std::size_t m_count = 1;
};

}  // namespace

QVNarrowString ComposePayload(const std::vector<QVWideString>& paths, Files& files) {
  Payload payload;
  XmlDocument document;
  for (const QVWideString& path : paths) {
    if (document.Load(path, files)) {
      payload.Append(*document.Root());
    }
  }
  return payload.End();
}

QVNarrowString ComposePayload(const XmlNode& root) {
  Payload payload;
  payload.Append(root);
  return payload.End();
}

std::unique_ptr<XmlDocument> ParsePayload(const char* text) {
  XmlReader reader(payloadTag, wrappingLevels);
  reader.Feed(std::string_view(text ? text : ""));
  auto root = reader.Finish();
  return root ? std::make_unique<XmlDocument>(std::move(root)) : nullptr;
}

std::vector<const XmlNode*> ItemsOfPayload(const XmlDocument& payload) {
  std::vector<const XmlNode*> items;
  for (const XmlNode& wrapper : ChildrenWithTag(payload.Root(), itemTag)) {
    const XmlNode* item = wrapper.Node(tag::Main);
    item = item ? item : wrapper.Node(tag::Root);
    if (item) {
      items.push_back(item);
    }
  }
  return items;
}

}  // namespace qv
