#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, which is how a fuzzer learns of a fault.
inline void Demand(bool condition, const char* what) {
  if (!condition) {
    std::fprintf(stderr, "failed: %s\n", what);
    std::abort();
  }
}
