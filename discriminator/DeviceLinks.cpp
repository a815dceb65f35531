#include "discriminator/DeviceLinks.h"

#include <deque>

#include "discriminator/Fields.h"

namespace qv {
namespace {

void RemoveEntries(XmlNode& devices, const QVWideString& id) {
  while (XmlNode* device = devices.NodeV(L"device?id=%s?", id)) {
    devices.RemoveChild(device);
  }
}

}  // namespace

void AddDiscriminatorToDeviceGroupsNode(XmlNode* deviceGroups, const XmlNode& root) {
  if (!deviceGroups) {
    return;
  }
  XmlNode* devices = deviceGroups->Node(tag::Devices);
  if (!devices) {
    devices = deviceGroups->NewChild(tag::Devices, nullptr);
  }
  XmlNode* device = devices->NewChild(tag::Device, nullptr);
  device->SetValue(tag::Id, root.Value(tag::Id));
  device->SetValue(tag::Type, word::DiscriminatorDevice);
}

void RemoveDiscriminatorFromDeviceGroupsNode(XmlNode* deviceGroups, const QVWideString& id) {
  std::deque<XmlNode*> toVisit;
  if (deviceGroups) {
    toVisit.push_back(deviceGroups);
  }
  for (; !toVisit.empty(); toVisit.pop_front()) {
    XmlNode* group = toVisit.front();
    if (XmlNode* devices = group->Node(tag::Devices)) {
      RemoveEntries(*devices, id);
    }
    if (XmlNode* groups = group->Node(tag::Groups)) {
      toVisit.insert(toVisit.end(), groups->ChildsBegin(), groups->ChildsEnd());
    }
  }
}

}  // namespace qv
