#pragma once

namespace qv {

/// How an editor ended, of a discriminator or of a part of one.
struct EditorEnd {
  bool confirmed = false;  ///< what was edited is to be taken over
  bool modified = false;   ///< the user changed something
};

}  // namespace qv
