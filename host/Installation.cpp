#include "host/Installation.h"

#include <algorithm>

namespace qv {

bool IsEmbeddedDevice(const XmlNode& node) {
  return node.Tag() == L"device" && node.Value(L"driver", L"") == embeddedDriver;
}

bool IsEmbedded(const XmlDocument& mainCfg) {
  const XmlNode* commSystem = mainCfg.Root() ? mainCfg.Root()->Node(L"commSystem") : nullptr;
  return commSystem && std::any_of(commSystem->ChildsBegin(), commSystem->ChildsEnd(),
                                   [](const XmlNode* node) { return IsEmbeddedDevice(*node); });
}

}  // namespace qv
