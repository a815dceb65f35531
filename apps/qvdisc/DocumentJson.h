#pragma once

#include <nlohmann/json_fwd.hpp>

#include "tools/XmlNode.h"

namespace qvdisc {

/// The document of a discriminator with this root: its fields, its parts as objects whose colours
/// are "#RRGGBB", and all of it as it stands.
nlohmann::ordered_json DocumentJson(const qv::XmlNode& root);

}  // namespace qvdisc
