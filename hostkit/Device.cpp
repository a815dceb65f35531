#include "hostkit/Device.h"

#include <utility>

namespace qv {

Device::Device(std::wstring name, std::wstring driver)
    : m_name(std::move(name)), m_driver(std::move(driver)) {}

DeviceKind Device::Kind() const {
  return IsDiscriminatorName(m_name) ? DeviceKind::Discriminator : DeviceKind::Meter;
}

bool Device::Add(Variable variable) {
  if (variable.name.empty() || !m_places.try_emplace(variable.name, m_variables.size()).second) {
    return false;
  }
  m_variables.push_back(std::move(variable));
  return true;
}

const Variable* Device::Find(std::wstring_view name) const {
  const auto found = m_places.find(name);
  return found == m_places.end() ? nullptr : &m_variables[found->second];
}

bool IsDiscriminatorName(std::wstring_view deviceName) {
  return deviceName.starts_with(L"R$DISC_");
}

}  // namespace qv
