#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "hostkit/Device.h"
#include "tools/XmlNode.h"

namespace qv {

/// The devices of an installation with their variables.
class DeviceModel {
 public:
  /// Takes the devices of `commSystem` of the configuration with this root, in place of all that
  /// were there. What has no name is left out, and so is what has the name of one before it.
  void Read(const XmlNode& configurationRoot);

  /// Adds a device behind the others; false, and nothing is added, if it has no name or one that is
  /// there already. Devices that were found before may have moved.
  bool Add(Device device);

  /// In the order in which they were added.
  const std::vector<Device>& Devices() const { return m_devices; }

  /// The device of exactly this name, or null.
  const Device* Find(std::wstring_view name) const;

 private:
  std::vector<Device> m_devices;
  std::map<std::wstring, std::size_t, std::less<>> m_places;
};

}  // namespace qv
