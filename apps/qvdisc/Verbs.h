#pragma once

#include "apps/qvdisc/Session.h"

namespace qvdisc {

/// Does what the call asks for in an open session; its outcome tells how that ended.
void Perform(Session& session);

}  // namespace qvdisc
