#pragma once

#include <memory>
#include <vector>

#include "host/Progress.h"

namespace qv {

struct STagDiscriminatorRow;

/// Who shows a `DiscriminatorList`. A verb tells it of each change of the rows before the host
/// hears what follows, so that a handler of a notice finds on the screen what the list holds.
///
/// What shows no rows leaves the last two as they are.
class DiscriminatorListView {
 public:
  virtual ~DiscriminatorListView() = default;

  /// Watches a reading of all files that begins now. It goes before the rows are shown.
  virtual std::unique_ptr<Progress> NewProgress() = 0;
  /// The rows are these now, and none is selected.
  virtual void ShowRows(const std::vector<STagDiscriminatorRow>& /*rows*/) {}
  /// The row of this number has gone; the others stay as they are, selected or not.
  virtual void RemoveRow(int /*row*/) {}
};

}  // namespace qv
