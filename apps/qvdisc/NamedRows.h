#pragma once

#include <optional>
#include <string>
#include <vector>

#include "apps/qvdisc/Outcome.h"
#include "manager/DiscriminatorList.h"

namespace qvdisc {

/// The rows that a call names, in ascending order and each once; a name is a stem, or the id or the
/// name of a discriminator alone. Nothing, and `outcome` tells why, if one of the names is of no
/// row or of several.
[[nodiscard]] std::optional<std::vector<int>> NamedRows(
    const std::vector<qv::STagDiscriminatorRow>& rows, const std::vector<std::wstring>& names,
    Outcome& outcome);

}  // namespace qvdisc
