#pragma once

#include <string>
#include <vector>

namespace qvdisc {

/// What the verbs for hour types and day types take as texts, to be turned into values once all of
/// them are known to be good.
struct TypeTexts {
  std::string type;
  std::string name;
  std::string colour;
  std::string value;
  std::vector<std::string> slots;
  bool noSlots = false;
};

}  // namespace qvdisc
