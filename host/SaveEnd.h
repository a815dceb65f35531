#pragma once

#include <optional>

#include "host/Refusal.h"

namespace qv {

/// What became of a save.
enum class SaveOutcome {
  Saved,
  Unchanged,  ///< done as well, but what was edited is what it was before
  Refused,    ///< nothing was written
  NotWritten  ///< accepted, but the disk refused
};

/// How a save ended, and what the user has still to be told about it.
struct [[nodiscard]] SaveEnd {
  SaveOutcome outcome = SaveOutcome::Refused;
  std::optional<Refusal> refusal{};  ///< nothing where all has been said, or nothing is

  /// Whether the editor has done its work.
  bool IsDone() const { return outcome == SaveOutcome::Saved || outcome == SaveOutcome::Unchanged; }
  friend bool operator==(const SaveEnd&, const SaveEnd&) = default;
};

/// The end of a save that changed something, or didn't.
inline SaveEnd SavedOrUnchanged(bool isModified) {
  return {isModified ? SaveOutcome::Saved : SaveOutcome::Unchanged, {}};
}

}  // namespace qv
