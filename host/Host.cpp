#include "host/Host.h"

#include "host/QVDriverSupport.h"
#include "host/QVInformes.h"

template <class Service>
static Service*& Installed() {
  static Service* installed = nullptr;
  return installed;
}

template <class Service>
Service* HostService<Service>::Get() {
  return Installed<Service>();
}

template <class Service>
Service* HostService<Service>::Install(Service* service) {
  Service* before = Installed<Service>();
  Installed<Service>() = service;
  return before;
}

template class HostService<QVVornelSetup>;
template class HostService<QVMainCfg>;
template class HostService<QVVornelGuids>;
template class HostService<QVLoadString>;
template class HostService<CreateDiscriminatorIndex>;
template class HostService<QVClipboard>;
template class HostService<QVDriverSupport>;
template class HostService<QVInformes>;

QVMainCfg::QVMainCfg() = default;
QVMainCfg::~QVMainCfg() = default;

bool QVLoadString::Has(unsigned /*id*/) const { return false; }

bool QVLoadString::IsMute(Text id) const {
  constexpr unsigned firstOwn = 60000;
  return Number(id) >= firstOwn && !Has(Number(id));
}

QVWideString QVLoadString::Load(Text id) const {
  QVWideString text;
  return (*this)(Number(id), text);
}

namespace qv {

std::optional<Host> InstalledHost() {
  const auto* setup = QVVornelSetup::Get();
  auto* mainCfg = QVMainCfg::Get();
  auto* guids = QVVornelGuids::get();
  const auto* loadString = QVLoadString::Get();
  auto* createIndex = CreateDiscriminatorIndex::Get();
  auto* clipboard = QVClipboard::Get();
  if (!setup || !mainCfg || !guids || !loadString || !createIndex || !clipboard) {
    return std::nullopt;
  }
  return Host{*setup, *mainCfg, *guids, *loadString, *createIndex, *clipboard};
}

}  // namespace qv
