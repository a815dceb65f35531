#include "hostkit/GuidNotices.h"

#include <utility>

namespace qv {

GuidNotices::GuidNotices(Listener listener) : m_listener(std::move(listener)) {}

void GuidNotices::invalidateGuid(int id, bool stale) {
  if (stale && m_listener) {
    m_listener(id);
  }
}

}  // namespace qv
