#pragma once

#include "host/SaveEnd.h"

namespace qv {

/// Tells the user of the refusal, as an editor's window does; whether the save was done.
inline bool Told(Prompter& prompter, const SaveEnd& end) {
  if (end.refusal) {
    Tell(prompter, *end.refusal);
  }
  return end.IsDone();
}

}  // namespace qv
