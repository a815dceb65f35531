#pragma once

#include <memory>
#include <vector>

#include "host/Host.h"
#include "manager/DiscriminatorList.h"
#include "tools/Files.h"
#include "tools/XmlDocument.h"

namespace qv {

/// Which commands the context menu of the list offers.
struct ClipboardOffer {
  bool copy = false;
  bool paste = false;

  friend bool operator==(const ClipboardOffer&, const ClipboardOffer&) = default;
};

/// What became of a discriminator of the clipboard. Its entry has been made in either case.
struct PastedDiscriminator {
  QVWideString fileStem;  ///< its new id and its free name
  bool written = false;   ///< whether its file could be written

  friend bool operator==(const PastedDiscriminator&, const PastedDiscriminator&) = default;
};

/// The road of discriminators from the list to the host's clipboard and back.
class DiscriminatorClipboard {
 public:
  /// All that is referred to outlives this object.
  DiscriminatorClipboard(const Host& host, Files& files, DiscriminatorList& list);

  /// Puts the files of the selected rows on the clipboard. Does nothing without a row.
  void Copy(const std::vector<int>& selectedRows) const;

  /// Makes a new discriminator of each one on the clipboard, under new ids and free names, with two
  /// notices for each, and then refreshes the list. Gives those that were made, in their order.
  /// Anything else on the clipboard is passed over in silence, without a refresh.
  std::vector<PastedDiscriminator> Paste();

  /// What the context menu offers while `selectedRows` rows are selected.
  ClipboardOffer Offer(std::size_t selectedRows) const;

 private:
  std::unique_ptr<XmlDocument> Read() const;
  PastedDiscriminator PasteItem(const XmlNode& item);
  QVWideString FreeName(const QVWideString& name) const;
  bool IsShown(const QVWideString& name) const;

  Host m_host;
  Files& m_files;
  DiscriminatorList& m_list;
};

}  // namespace qv
