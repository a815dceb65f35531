#pragma once

#include <memory>

#include "manager/DiscriminatorListView.h"
#include "tests/support/CountingProgress.h"

namespace qv {

/// Lets every reading run to its end, and shows nothing.
class QuietListView : public DiscriminatorListView {
 public:
  std::unique_ptr<Progress> NewProgress() override { return std::make_unique<CountingProgress>(); }
};

}  // namespace qv
