#include "manager/DiscriminatorClipboard.h"

#include <algorithm>
#include <iterator>

#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "manager/ClipboardPayload.h"
#include "tools/Format.h"
#include "tools/Guid.h"
#include "tools/Names.h"

namespace qv {

DiscriminatorClipboard::DiscriminatorClipboard(const Host& host, Files& files,
                                               DiscriminatorList& list)
    : m_host(host), m_files(files), m_list(list) {}

void DiscriminatorClipboard::Copy(const std::vector<int>& selectedRows) const {
  if (selectedRows.empty()) {
    return;
  }
  std::vector<QVWideString> paths;
  std::transform(selectedRows.begin(), selectedRows.end(), std::back_inserter(paths),
                 [this](int row) { return m_list.PathOf(row); });
  const QVNarrowString payload = ComposePayload(paths, m_files);
  m_host.clipboard.PutToClipboard(payload, static_cast<int>(payload.Length() + 1),
                                  QVClipboard::TextFormat);
}

std::vector<PastedDiscriminator> DiscriminatorClipboard::Paste() {
  const auto payload = Read();
  if (!payload) {
    return {};
  }
  std::vector<PastedDiscriminator> pasted;
  for (const XmlNode* item : ItemsOfPayload(*payload)) {
    if (!item->Value(tag::Name).Empty()) {
      pasted.push_back(PasteItem(*item));
    }
  }
  m_list.Refresh();
  return pasted;
}

std::unique_ptr<XmlDocument> DiscriminatorClipboard::Read() const {
  std::unique_ptr<char[]> bytes;
  const int size = m_host.clipboard.GetFromClipboard(bytes, QVClipboard::TextFormat);
  return size > 0 ? ParsePayload(bytes.get()) : nullptr;
}

PastedDiscriminator DiscriminatorClipboard::PasteItem(const XmlNode& item) {
  XmlDocument document(item);
  XmlNode& root = *document.Root();
  root.SetValue(tag::Id, NewGuidText());
  root.SetValue(tag::Revision, NewGuidText());
  root.SetValue(tag::Name, FreeName(item.Value(tag::Name)));
  const DiscriminatorDirectory directory(m_host.setup.CfgPath(), m_files);
  const bool written = directory.Save(document);
  directory.SaveIndex(root);
  // What the disk doesn't take is a discriminator all the same.
  m_list.Announce(root);
  return {StemOfDocument(root), written};
}

QVWideString DiscriminatorClipboard::FreeName(const QVWideString& name) const {
  QVWideString candidate(name);
  for (int counter = 1; IsShown(candidate); ++counter) {
    candidate.Assign(Format(L"%s_%d", {name, counter}));
  }
  return candidate;
}

bool DiscriminatorClipboard::IsShown(const QVWideString& name) const {
  const auto& rows = m_list.Rows();
  return std::any_of(rows.begin(), rows.end(), [&](const STagDiscriminatorRow& row) {
    return EqualUppered(row.shown.name.ToView(), name.ToView());
  });
}

ClipboardOffer DiscriminatorClipboard::Offer(std::size_t selectedRows) const {
  return {selectedRows > 0, Read() != nullptr};
}

}  // namespace qv
