#include "discriminator/DiscriminatorDirectory.h"

#include <algorithm>

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"
#include "tools/Names.h"

namespace qv {

DiscriminatorDirectory::DiscriminatorDirectory(const QVWideString& path, Files& files)
    : m_path(path), m_files(files) {}

std::vector<std::wstring> DiscriminatorDirectory::FileNames() const {
  return Walk(discriminatorPattern);
}

std::vector<std::wstring> DiscriminatorDirectory::IndexFileNames() const {
  return Walk(IndexPath(discriminatorPattern));
}

std::vector<std::wstring> DiscriminatorDirectory::Walk(const QVWideString& pattern) const {
  return m_files.Walk((m_path + pattern).ToView());
}

bool DiscriminatorDirectory::HasName(std::wstring_view name) const {
  const auto names = FileNames();
  return std::any_of(names.begin(), names.end(), [&](const std::wstring& fileName) {
    const auto taken = NameBetweenDots(fileName);
    return taken && EqualUppered(*taken, name);
  });
}

QVWideString DiscriminatorDirectory::PathOf(std::wstring_view fileName) const {
  return m_path + QVWideString(fileName);
}

QVWideString DiscriminatorDirectory::PathOfStem(const QVWideString& fileStem) const {
  return DiscriminatorPath(m_path, fileStem);
}

bool DiscriminatorDirectory::Load(XmlDocument& document, std::wstring_view fileName) const {
  return document.Load(PathOf(fileName), m_files) &&
         StemOfDocument(*document.Root()) + discriminatorExtension == fileName;
}

std::optional<DiscriminatorSummary> DiscriminatorDirectory::Summary(
    std::wstring_view fileName, ShowConditions showConditions) const {
  XmlDocument document;
  return Load(document, fileName) ? SummaryOf(*document.Root(), showConditions) : std::nullopt;
}

bool DiscriminatorDirectory::Save(const XmlDocument& document) const {
  const XmlNode* root = document.Root();
  const auto path = root ? PathOfDocument(*root) : std::nullopt;
  return path && document.SaveAs(*path, m_files);
}

IndexOutcome DiscriminatorDirectory::SaveIndex(const XmlNode& root) const {
  const XmlNode* hourTypes = root.Node(tag::HourTypes);
  if (!hourTypes) {
    return IndexOutcome::NotNeeded;
  }
  const auto path = PathOfDocument(root);
  const bool written = path && MakeIndexDocument(*hourTypes)->SaveAs(IndexPath(*path), m_files);
  return written ? IndexOutcome::Written : IndexOutcome::NotWritten;
}

std::optional<QVWideString> DiscriminatorDirectory::PathOfDocument(const XmlNode& root) const {
  const QVWideString stem = StemOfDocument(root);
  return IsFileStem(stem) ? std::optional(PathOfStem(stem)) : std::nullopt;
}

}  // namespace qv
