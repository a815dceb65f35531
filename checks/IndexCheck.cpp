#include "checks/IndexCheck.h"

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

std::wstring IndexOf(const std::wstring& file) {
  return std::wstring(IndexPath(QVWideString(std::wstring_view{file})).ToView());
}

}  // namespace

void IndexCheck::Check(const std::wstring& file, const XmlNode& root, Findings& findings) {
  const XmlNode* hourTypes = root.Node(tag::HourTypes);
  if (!hourTypes) {
    return;
  }
  const std::wstring index = IndexOf(file);
  m_known.insert(index);
  const QVWideString path = m_directory.PathOf(index);
  if (!m_files.Exists(path.ToView())) {
    findings.push_back({.kind = FindingKind::IndexMissing, .file = file});
    return;
  }
  const auto found = ReadXmlFile(path.ToView(), m_files);
  if (!found) {
    findings.push_back({.kind = FindingKind::IndexUnreadable, .file = file});
  } else if (*found != *MakeIndexDocument(*hourTypes)->Root()) {
    findings.push_back({.kind = FindingKind::IndexStale, .file = file});
  }
}

void IndexCheck::LeaveAlone(const std::wstring& file) { m_known.insert(IndexOf(file)); }

void IndexCheck::CheckOthers(Findings& findings) const {
  for (const std::wstring& index : m_directory.IndexFileNames()) {
    if (!m_known.contains(index)) {
      findings.push_back({.kind = FindingKind::IndexWithoutUse, .file = index});
    }
  }
}

}  // namespace qv
