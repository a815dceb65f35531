#include "hostkit/InstalledServices.h"

namespace qv {

InstalledServices::InstalledServices(QVVornelSetup& setup, QVMainCfg& mainCfg, QVVornelGuids& guids,
                                     QVLoadString& loadString,
                                     CreateDiscriminatorIndex& createIndex,
                                     QVClipboard& clipboard) {
  QVVornelSetup::Install(&setup);
  QVMainCfg::Install(&mainCfg);
  QVVornelGuids::Install(&guids);
  QVLoadString::Install(&loadString);
  CreateDiscriminatorIndex::Install(&createIndex);
  QVClipboard::Install(&clipboard);
}

InstalledServices::~InstalledServices() {
  QVClipboard::Install(nullptr);
  CreateDiscriminatorIndex::Install(nullptr);
  QVLoadString::Install(nullptr);
  QVVornelGuids::Install(nullptr);
  QVMainCfg::Install(nullptr);
  QVVornelSetup::Install(nullptr);
}

}  // namespace qv
