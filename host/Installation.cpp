#include "host/Installation.h"

#include <algorithm>

namespace qv {
namespace {

bool IsEmbeddedDevice(const XmlNode* node) {
  return node->Tag() == L"device" && node->Value(L"driver", L"") == L"KORVAXEMBEDDED";
}

}  // namespace

bool IsEmbedded(const XmlDocument& mainCfg) {
  const XmlNode* commSystem = mainCfg.Root() ? mainCfg.Root()->Node(L"commSystem") : nullptr;
  return commSystem &&
         std::any_of(commSystem->ChildsBegin(), commSystem->ChildsEnd(), IsEmbeddedDevice);
}

}  // namespace qv
