#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/Files.h"
#include "tools/XmlNode.h"

namespace configurator {

/// A line of the tree of device groups, with what lies below it.
struct DeviceTreeItem {
  enum class Kind { Group, Device, Discriminator };

  Kind kind = Kind::Group;
  std::wstring id;    ///< of a device or a discriminator
  std::wstring type;  ///< of a device or a discriminator
  /// The name to show. Empty for a group without a name, and for a device or a discriminator that
  /// the installation doesn't have.
  std::wstring name;
  std::vector<DeviceTreeItem> below;

  /// Whether it is an entry that leads nowhere.
  bool IsBroken() const { return kind != Kind::Group && name.empty(); }

  friend bool operator==(const DeviceTreeItem&, const DeviceTreeItem&) = default;
};

/// The groups and the devices directly below `deviceGroups`, groups first, each in the order of the
/// document; nothing for null.
///
/// The name of a device is that of the device of `commSystem` (or null) with its id. A
/// discriminator is a device of the type "R$DISC"; its name is "R$DISC_" and that of its file
/// `<id>.<name>.xdct` in `directory`, which ends in its separator.
std::vector<DeviceTreeItem> ReadDeviceTree(const qv::XmlNode* deviceGroups,
                                           const qv::XmlNode* commSystem,
                                           std::wstring_view directory,
                                           qv::Files& files = qv::Files::Disk());

}  // namespace configurator
