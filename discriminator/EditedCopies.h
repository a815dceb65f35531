#pragma once

#include <initializer_list>
#include <list>

#include "host/EditorEnd.h"
#include "tools/XmlDocument.h"

namespace qv {

/// Copies of some parts of a document for an editor to work on. They take the places of the
/// originals if the editor is confirmed, and are dropped on any other end.
class EditedCopies {
 public:
  /// Copies `originals`, which outlive this object; in their order they are taken back.
  explicit EditedCopies(std::initializer_list<XmlNode*> originals);
  EditedCopies(const EditedCopies&) = delete;
  EditedCopies& operator=(const EditedCopies&) = delete;

  /// The copy of one of the originals.
  XmlNode& Of(const XmlNode& original);

  /// Takes the copies back if the editor was confirmed, also without a change, and sets `modified`
  /// if it changed something; whether they were taken back.
  bool TakeBack(const EditorEnd& end, bool& modified);

 private:
  struct Part {
    explicit Part(XmlNode& node) : original(node), copy(node) {}

    XmlNode& original;
    XmlDocument copy;
  };

  std::list<Part> m_parts;
};

}  // namespace qv
