#include "host/Installation.h"

#include <algorithm>

#include "tools/Nodes.h"

namespace qv {

bool IsEmbeddedDevice(const XmlNode& node) {
  return node.Tag() == L"device" && node.Value(L"driver") == embeddedDriver;
}

bool IsEmbedded(const XmlDocument& mainCfg) {
  const XmlNode* commSystem = mainCfg.Root() ? mainCfg.Root()->Node(L"commSystem") : nullptr;
  const auto devices = ChildrenWithTag(commSystem, L"device");
  return std::any_of(devices.begin(), devices.end(), IsEmbeddedDevice);
}

}  // namespace qv
