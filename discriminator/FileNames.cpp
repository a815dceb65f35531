#include "discriminator/FileNames.h"

#include "tools/Names.h"

namespace qv {
namespace {

/// An empty string made for appends.
QVWideString Assembled() { return QVWideString(QVWideString::GrowSmall); }

}  // namespace

QVWideString FileStem(const QVWideString& id, const QVWideString& name) {
  auto stem = Assembled();
  stem += id;
  stem += L".";
  stem += name;
  return stem;
}

QVWideString DiscriminatorPath(const QVWideString& directory, const QVWideString& fileStem) {
  auto path = Assembled();
  path += directory;
  path += fileStem;
  path += discriminatorExtension;
  return path;
}

QVWideString IndexPath(const QVWideString& path) { return path + L"I"; }

std::optional<std::wstring_view> WithoutExtension(std::wstring_view fileName) {
  constexpr std::wstring_view extension = discriminatorExtension;
  if (!fileName.ends_with(extension)) {
    return std::nullopt;
  }
  return fileName.substr(0, fileName.size() - extension.size());
}

QVWideString IdOfStem(const QVWideString& fileStem) {
  const std::wstring_view stem = fileStem.ToView();
  return QVWideString(stem.substr(0, stem.find(L'.')));
}

std::optional<std::wstring_view> NameOfStem(std::wstring_view fileStem) {
  const std::size_t dot = fileStem.find(L'.');
  if (dot == std::wstring_view::npos) {
    return std::nullopt;
  }
  return fileStem.substr(dot + 1);
}

std::optional<std::wstring_view> NameBetweenDots(std::wstring_view fileName) {
  const auto name = NameOfStem(fileName);
  const std::size_t end = name ? name->find(L'.') : std::wstring_view::npos;
  return end == std::wstring_view::npos ? std::nullopt : std::optional(name->substr(0, end));
}

bool FitsFileName(const QVWideString& fileStem) {
  return FitsInFileName(IndexPath(fileStem + discriminatorExtension).ToView());
}

bool IsFileStem(const QVWideString& fileStem) {
#ifdef _WIN32
  constexpr std::wstring_view leadsElsewhere(L"/\\:\0", 4);
#else
  constexpr std::wstring_view leadsElsewhere(L"/\0", 2);
#endif
  return fileStem.ToView().find_first_of(leadsElsewhere) == std::wstring_view::npos;
}

}  // namespace qv
