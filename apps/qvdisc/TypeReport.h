#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "apps/qvdisc/ToldTypes.h"
#include "hostkit/Language.h"

namespace qvdisc {

/// The types as a JSON array of objects.
nlohmann::ordered_json TypesAsJson(const ToldTypes& told);

/// The same in lines for people: what there is, or what became of it.
std::vector<std::wstring> TypesAsLines(const ToldTypes& told, qv::Language language);

}  // namespace qvdisc
