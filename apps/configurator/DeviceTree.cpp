#include "apps/configurator/DeviceTree.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>

#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "tools/Nodes.h"

namespace configurator {
namespace {

using qv::XmlNode;
using Items = std::vector<DeviceTreeItem>;
using NamesById = std::unordered_map<std::wstring, std::wstring>;

/// What the installation calls its devices and its discriminators.
struct Names {
  NamesById devices;
  NamesById discriminators;
};

/// A device without a name goes by its id.
NamesById DeviceNames(const XmlNode* commSystem) {
  NamesById names;
  for (const XmlNode& device : qv::ChildrenWithTag(commSystem, qv::tag::Device)) {
    const std::wstring id = qv::FieldOf(device, qv::tag::Id);
    const std::wstring name = qv::FieldOf(device, qv::tag::Name);
    names.emplace(id, name.empty() ? id : name);
  }
  return names;
}

NamesById DiscriminatorNames(std::wstring_view directory, qv::Files& files) {
  NamesById names;
  const qv::DiscriminatorDirectory discriminators(QVWideString(directory), files);
  for (const std::wstring& file : discriminators.FileNames()) {
    const auto stem = qv::WithoutExtension(file);
    if (const auto name = stem ? qv::NameOfStem(*stem) : std::nullopt) {
      names.emplace(qv::IdOfStem(QVWideString(*stem)).ToView(), *name);
    }
  }
  return names;
}

std::wstring NameIn(const NamesById& names, const std::wstring& id, std::wstring_view prefix) {
  const auto found = names.find(id);
  return found == names.end() ? std::wstring() : std::wstring(prefix) + found->second;
}

DeviceTreeItem ReadDevice(const XmlNode& device, const Names& names) {
  using Kind = DeviceTreeItem::Kind;
  DeviceTreeItem item;
  item.id = qv::FieldOf(device, L"id");
  item.type = qv::FieldOf(device, L"type");
  item.kind = item.type == qv::word::DiscriminatorDevice ? Kind::Discriminator : Kind::Device;
  item.name = item.kind == Kind::Discriminator
                  ? NameIn(names.discriminators, item.id, item.type + L"_")
                  : NameIn(names.devices, item.id, L"");
  return item;
}

Items ReadLevel(const XmlNode& level, const Names& names);

DeviceTreeItem ReadGroup(const XmlNode& group, const Names& names) {
  DeviceTreeItem item;
  item.kind = DeviceTreeItem::Kind::Group;
  item.name = qv::FieldOf(group, L"name");
  item.below = ReadLevel(group, names);
  return item;
}

/// The depth is bounded: a document is nested 512 levels deep at most.
Items ReadLevel(const XmlNode& level, const Names& names) {
  Items items;
  if (const XmlNode* groups = level.Node(qv::tag::Groups)) {
    std::transform(groups->ChildsBegin(), groups->ChildsEnd(), std::back_inserter(items),
                   [&](const XmlNode* group) { return ReadGroup(*group, names); });
  }
  if (const XmlNode* devices = level.Node(qv::tag::Devices)) {
    std::transform(devices->ChildsBegin(), devices->ChildsEnd(), std::back_inserter(items),
                   [&](const XmlNode* device) { return ReadDevice(*device, names); });
  }
  return items;
}

}  // namespace

std::vector<DeviceTreeItem> ReadDeviceTree(const XmlNode* deviceGroups, const XmlNode* commSystem,
                                           std::wstring_view directory, qv::Files& files) {
  if (!deviceGroups) {
    return {};
  }
  return ReadLevel(*deviceGroups, {DeviceNames(commSystem), DiscriminatorNames(directory, files)});
}

}  // namespace configurator
