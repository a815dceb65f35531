#include "hostkit/DeviceModel.h"

#include <utility>

#include "discriminator/Fields.h"
#include "hostkit/DeviceReader.h"
#include "tools/Nodes.h"

namespace qv {

void DeviceModel::Read(const XmlNode& configurationRoot) {
  m_devices.clear();
  m_places.clear();
  for (const XmlNode& device :
       ChildrenWithTag(configurationRoot.Node(L"commSystem"), tag::Device)) {
    Add(ReadDevice(device));
  }
}

bool DeviceModel::Add(Device device) {
  if (device.Name().empty() || !m_places.try_emplace(device.Name(), m_devices.size()).second) {
    return false;
  }
  m_devices.push_back(std::move(device));
  return true;
}

const Device* DeviceModel::Find(std::wstring_view name) const {
  const auto found = m_places.find(name);
  return found == m_places.end() ? nullptr : &m_devices[found->second];
}

}  // namespace qv
