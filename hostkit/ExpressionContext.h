#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/QVLoadString.h"
#include "hostkit/DeviceModel.h"
#include "hostkit/ExpressionEngine.h"

namespace qv {

/// What expressions are evaluated with.
struct ExpressionContext {
  const DeviceModel& devices;
  const QVLoadString& texts;
  std::function<int()> clock;  ///< gives the minute of the day
  ExpressionEngine& engine;

  /// The value of a variable at the moment; nothing if it has none or can't be read here.
  std::optional<double> ValueOf(const Variable& variable) const;
  /// The same in words, with its unit; without a value, why there is none.
  std::wstring ValueText(const Variable& variable) const;
};

}  // namespace qv
