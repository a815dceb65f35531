#pragma once

#include <optional>
#include <vector>

#include "manager/DiscriminatorList.h"

namespace qv {

/// The row from which the arrow keys go on after the list was read anew: the first one that is new,
/// else the one whose discriminator was current before, also under a new name, else the one at its
/// place or the new last one. Nothing if there is none, or none was current and nothing is new.
std::optional<int> CurrentRow(const std::vector<STagDiscriminatorRow>& before,
                              std::optional<int> currentBefore,
                              const std::vector<STagDiscriminatorRow>& after);

}  // namespace qv
