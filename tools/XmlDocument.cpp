#include "tools/XmlDocument.h"

#include <string>

#include "tools/XmlReader.h"
#include "tools/XmlWriter.h"

XmlDocument::XmlDocument() = default;

XmlDocument::XmlDocument(const XmlNode& source) : m_root(std::make_unique<XmlNode>(source)) {}

XmlDocument::XmlDocument(std::unique_ptr<XmlNode> root) : m_root(std::move(root)) {}

XmlDocument::~XmlDocument() = default;

void XmlDocument::Reset() {
  m_root.reset();
  m_path = QVWideString();
}

bool XmlDocument::Load(const wchar_t* path, qv::Files& files) {
  const QVWideString kept(path);  // `path` may be this document's own
  Reset();
  m_root = qv::ReadXmlFile(kept.ToView(), files);
  if (m_root) {
    m_path = kept;
  }
  return m_root != nullptr;
}

bool XmlDocument::Save(qv::Files& files) const { return !m_path.Empty() && SaveAs(m_path, files); }

void XmlDocument::Create(const wchar_t* tag) {
  auto root = std::make_unique<XmlNode>(QVWideString(tag));
  Reset();
  m_root = std::move(root);
}

bool XmlDocument::SaveAs(const wchar_t* path, qv::Files& files) const {
  const auto text = m_root ? qv::WriteXml(*m_root, qv::Declaration::Yes) : std::nullopt;
  if (!text) {
    return false;
  }
  const std::wstring_view target(path ? path : L"");
  auto file = files.OpenForWriting(target);
  if (!file) {
    return false;
  }
  const bool written = file->Write(*text);
  const bool closed = file->Close();
  if (written && closed) {
    return true;
  }
  files.Remove(target);
  return false;
}

bool XmlDocument::Parse(const char* text) {
  qv::XmlReader reader;
  reader.Feed(std::string_view(text ? text : ""));
  auto root = reader.Finish();
  Reset();
  m_root = std::move(root);
  return m_root != nullptr;
}

bool XmlDocument::CreateXmlCode(QVNarrowString& out, bool withDeclaration) const {
  const auto declaration = withDeclaration ? qv::Declaration::Yes : qv::Declaration::No;
  const auto text = m_root ? qv::WriteXml(*m_root, declaration) : std::nullopt;
  out.Assign(text ? std::string_view{*text} : std::string_view());
  return text.has_value();
}
