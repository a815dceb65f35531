#pragma once

#include <memory>

#include "tools/Export.h"
#include "tools/Files.h"
#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

/// A tree of nodes that is read from and written to XML text. It owns its one root; an empty
/// document has none.
class QVTOOLS_EXPORT XmlDocument {
 public:
  using XmlNode = qv::XmlNode;

  /// Empty.
  XmlDocument();
  /// A deep copy of `source` and all below it as a document of its own.
  explicit XmlDocument(const XmlNode& source);
  /// Takes `root`, which may be null for an empty document.
  explicit XmlDocument(std::unique_ptr<XmlNode> root);
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;
  virtual ~XmlDocument();

  /// Empties the document.
  virtual void Reset();

  /// Replaces the content by that of the file; false if it can't be read or is no well-formed XML
  /// within the limits of `qv::XmlReader`, and the document is then empty.
  virtual bool Load(const wchar_t* path, qv::Files& files = qv::Files::Disk());

  /// Writes the document to the file that the last `Load` read; false as with `SaveAs`, and if
  /// there is no such file.
  virtual bool Save(qv::Files& files = qv::Files::Disk()) const;

  /// Replaces the content by one root with this tag.
  void Create(const wchar_t* tag);

  /// Writes the document to `path`, replacing a file of that name, and flushes it to the disk.
  /// False on any error, and then no half-written file is left. Makes no directory. An empty
  /// document and one that XML can't carry are refused before the file is touched.
  bool SaveAs(const wchar_t* path, qv::Files& files = qv::Files::Disk()) const;

  /// As `Load`, from zero-terminated text in UTF-8 or another encoding that the text declares.
  bool Parse(const char* text);

  /// Writes the document into `out` as the bare root element in UTF-8; with `withDeclaration` as
  /// the whole text of a file. False, and `out` empty, for what `SaveAs` refuses.
  bool CreateXmlCode(QVNarrowString& out, bool withDeclaration) const;

  /// The root, or null if the document is empty.
  XmlNode* Root() { return m_root.get(); }
  const XmlNode* Root() const { return m_root.get(); }

 private:
  std::unique_ptr<XmlNode> m_root;
  QVWideString m_path;
};
