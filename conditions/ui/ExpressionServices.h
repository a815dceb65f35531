#pragma once

#include "host/QVDriverSupport.h"
#include "host/QVInformes.h"

namespace qv {

/// Whether the host has installed what conditions are edited with, beside what all dialogs need.
inline bool HasExpressionServices() { return QVDriverSupport::Get() && QVInformes::Get(); }

}  // namespace qv
