#pragma once

#include <concepts>
#include <ostream>

namespace qv {

/// The base of a case in a table of tests, which goes by its name: as the name of its test, and
/// where the test fails.
struct NamedCase {
  const char* name;
};

/// More constrained than the library's own, which would show a case as its bytes.
template <std::derived_from<NamedCase> Case>
void PrintTo(const Case& tested, std::ostream* out) {
  *out << tested.name;
}

}  // namespace qv
