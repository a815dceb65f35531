#include "discriminator/ClipboardPayload.h"

#include "discriminator/Fields.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

constexpr wchar_t payloadTag[] = L"discriminatorClipboard";
constexpr wchar_t itemTag[] = L"discriminator";

constexpr char opening[] = "<discriminatorClipboard>";
constexpr char closing[] = "</discriminatorClipboard>";

/// Appends the document as an item. What would make the payload too large to be read again is
/// passed over.
void AppendItem(const XmlDocument& document, QVNarrowString& payload) {
  QVNarrowString code;
  if (document.CreateXmlCode(code, false) && payload.Length() + code.Length() < maxXmlSize) {
    payload += "<discriminator>";
    payload += code;
    payload += "</discriminator>";
  }
}

}  // namespace

QVNarrowString ComposePayload(const std::vector<QVWideString>& paths, Files& files) {
  QVNarrowString payload(QVNarrowString::GrowSmall);
  payload += opening;
  XmlDocument document;
  for (const QVWideString& path : paths) {
    if (document.Load(path, files)) {
      AppendItem(document, payload);
    }
  }
  payload += closing;
  return payload;
}

QVNarrowString ComposePayload(const XmlNode& root) {
  QVNarrowString payload(QVNarrowString::GrowSmall);
  payload += opening;
  AppendItem(XmlDocument(root), payload);
  payload += closing;
  return payload;
}

std::unique_ptr<XmlDocument> ParsePayload(const char* text) {
  XmlReader reader(payloadTag);
  reader.Feed(std::string_view(text ? text : ""));
  auto root = reader.Finish();
  return root ? std::make_unique<XmlDocument>(std::move(root)) : nullptr;
}

std::vector<const XmlNode*> ItemsOfPayload(const XmlDocument& payload) {
  std::vector<const XmlNode*> items;
  const XmlNode& root = *payload.Root();
  for (auto child = root.ChildsBegin(); child != root.ChildsEnd(); ++child) {
    const XmlNode& wrapper = **child;
    if (wrapper.Tag() != itemTag) {
      continue;
    }
    const XmlNode* item = wrapper.Node(tag::Main);
    item = item ? item : wrapper.Node(tag::Root);
    if (item) {
      items.push_back(item);
    }
  }
  return items;
}

}  // namespace qv
