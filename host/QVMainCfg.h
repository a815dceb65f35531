#pragma once

#include "host/HostService.h"
#include "tools/XmlDocument.h"

class QVMainCfg;
extern template class QVHOST_EXPORT HostService<QVMainCfg>;

/// The host's main configuration in memory. The dialogs read the `commSystem` child of its root,
/// and make a child `deviceGroups` if they were given none.
class QVHOST_EXPORT QVMainCfg : public XmlDocument, public HostService<QVMainCfg> {
 public:
  QVMainCfg();
  ~QVMainCfg() override;
};
