#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "host/Progress.h"

namespace qv {

/// Keeps the steps of some work, and stops it where the test says so.
class CountingProgress : public Progress {
 public:
  CountingProgress() = default;
  /// Stops the work when it tells that `stopAt` steps are done.
  explicit CountingProgress(std::size_t stopAt) : m_stopAt(stopAt) {}

  /// What `Advance` was told: how many steps of how many were done.
  std::vector<std::pair<std::size_t, std::size_t>> steps;

  bool Advance(std::size_t done, std::size_t total) override {
    steps.emplace_back(done, total);
    return done != m_stopAt;
  }

 private:
  std::optional<std::size_t> m_stopAt;
};

}  // namespace qv
