#include "hostkit/DirectorySetup.h"

namespace qv {
namespace {

#ifdef _WIN32
constexpr wchar_t separator = L'\\';
constexpr std::wstring_view separators = L"/\\";
#else
constexpr wchar_t separator = L'/';
constexpr std::wstring_view separators = L"/";
#endif

QVWideString WithSeparator(std::wstring_view directory) {
  // Nothing but a separator would be the root of the disk.
  QVWideString path(directory.empty() ? L"." : directory);
  if (directory.empty() || separators.find(directory.back()) == std::wstring_view::npos) {
    path.Append(&separator, 1);
  }
  return path;
}

}  // namespace

DirectorySetup::DirectorySetup(std::wstring_view configuration, std::wstring_view images,
                               unsigned programIcon)
    : m_configuration(WithSeparator(configuration)),
      m_images(WithSeparator(images)),
      m_programIcon(programIcon) {}

}  // namespace qv
