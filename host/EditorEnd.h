#pragma once

#include <functional>

#include "tools/XmlNode.h"

namespace qv {

/// How an editor ended, of a discriminator or of a part of one.
struct EditorEnd {
  bool confirmed = false;  ///< what was edited is to be taken over
  bool modified = false;   ///< the user changed something

  friend bool operator==(const EditorEnd&, const EditorEnd&) = default;
};

/// Runs an editor on a node: of a dialog its `DoModal`, of a test what its user would do.
using RunEditor = std::function<EditorEnd(XmlNode& edited)>;

}  // namespace qv
