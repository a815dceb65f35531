#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "host/QVDriverSupport.h"
#include "host/QVLoadString.h"
#include "hostkit/ExpressionCodes.h"
#include "hostkit/ExpressionContext.h"

namespace qv {

/// The minute of the day, from 00:00, in local time.
int LocalMinuteOfDay();

/// Expressions over the variables of a model. Its codes are those of `ExpressionCode`.
///
/// Evaluators look names and values up when they are asked, so that the model may be read anew
/// while there are some. They have to end before their support does.
class ExpressionSupport : public QVDriverSupport {
 public:
  /// Gives the minute of the day for which values are simulated.
  using Clock = std::function<int()>;

  /// All are to outlive this object.
  ExpressionSupport(const DeviceModel& devices, const QVLoadString& texts,
                    Clock clock = LocalMinuteOfDay);
  ~ExpressionSupport() override;

  std::unique_ptr<QVEvaluator> NewEvaluator(const QVWideString& expression) const override;
  bool ErrorMsg(int code, QVWideString& text) const override;
  bool isThereAModuleInExpression(const std::wstring& expression) const override;

  const DeviceModel& Devices() const { return m_context.devices; }

  /// The value of a variable at the moment; nothing if it has none or can't be read here.
  std::optional<double> ValueOf(const Variable& variable) const;

  /// The same in words, with its unit; without a value, why there is none.
  std::wstring ValueText(const Variable& variable) const;

 private:
  std::unique_ptr<ExpressionEngine> m_engine;
  ExpressionContext m_context;
};

}  // namespace qv
