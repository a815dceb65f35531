#include "apps/configurator/HostServices.h"

namespace configurator {
namespace {

/// The icon of this program among the host's images: PROGRAM-1.png.
constexpr unsigned programIcon = 1;

}  // namespace

HostServices::HostServices(std::wstring_view images)
    : m_images(images), m_notices([this](int id) {
        if (m_listener) {
          m_listener(id);
        }
      }) {
  SetDirectory(L"");
  QVMainCfg::Install(&m_mainCfg);
  QVVornelGuids::Install(&m_notices);
  QVLoadString::Install(&m_texts);
  CreateDiscriminatorIndex::Install(&m_indexFiles);
  QVClipboard::Install(&m_clipboard);
}

HostServices::~HostServices() {
  QVClipboard::Install(nullptr);
  CreateDiscriminatorIndex::Install(nullptr);
  QVLoadString::Install(nullptr);
  QVVornelGuids::Install(nullptr);
  QVMainCfg::Install(nullptr);
  QVVornelSetup::Install(nullptr);
}

void HostServices::SetDirectory(std::wstring_view directory) {
  auto setup = std::make_unique<qv::DirectorySetup>(directory, m_images, programIcon);
  QVVornelSetup::Install(setup.get());
  m_setup = std::move(setup);
}

}  // namespace configurator
