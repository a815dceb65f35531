#include "apps/configurator/HostServices.h"

namespace configurator {
namespace {

/// The icon of this program among the host's images: PROGRAM-1.png.
constexpr unsigned programIcon = 1;

}  // namespace

HostServices::HostServices(std::wstring_view images)
    : m_images(images),
      m_setup(std::make_unique<qv::DirectorySetup>(L"", m_images, programIcon)),
      m_notices([this](int id) {
        if (m_listener) {
          m_listener(id);
        }
      }),
      m_installed(*m_setup, m_mainCfg, m_notices, m_texts, m_indexFiles, m_clipboard, m_expressions,
                  m_wizards) {}

void HostServices::SetDirectory(std::wstring_view directory) {
  auto setup = std::make_unique<qv::DirectorySetup>(directory, m_images, programIcon);
  QVVornelSetup::Install(setup.get());
  m_setup = std::move(setup);
  if (const qv::XmlNode* root = m_mainCfg.Root()) {
    m_devices.Read(*root);
  }
}

}  // namespace configurator
