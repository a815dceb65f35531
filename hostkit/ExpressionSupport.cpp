#include "hostkit/ExpressionSupport.h"

#include <ctime>
#include <utility>

#include "discriminator/DayMinutes.h"
#include "hostkit/DeviceExpression.h"
#include "tools/Format.h"

namespace qv {

int LocalMinuteOfDay() {
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  return local.tm_hour * minutesOfHour + local.tm_min;
}

ExpressionSupport::ExpressionSupport(const DeviceModel& devices, const QVLoadString& texts,
                                     Clock clock)
    : m_engine(std::make_unique<ExpressionEngine>()),
      m_context{devices, texts, std::move(clock), *m_engine} {}

ExpressionSupport::~ExpressionSupport() = default;

std::unique_ptr<QVEvaluator> ExpressionSupport::NewEvaluator(const QVWideString& expression) const {
  return std::make_unique<DeviceExpression>(expression, m_context);
}

bool ExpressionSupport::ErrorMsg(int code, QVWideString& text) const {
  const auto words = WordingOf(code);
  text = words ? m_context.texts.Load(*words) : QVWideString(Format(L"[%d]", {code}));
  return words.has_value();
}

bool ExpressionSupport::isThereAModuleInExpression(const std::wstring& expression) const {
  return DeviceExpression(QVWideString(std::wstring_view(expression)), m_context).HasModule();
}

std::optional<double> ExpressionSupport::ValueOf(const Variable& variable) const {
  return m_context.ValueOf(variable);
}

std::wstring ExpressionSupport::ValueText(const Variable& variable) const {
  return m_context.ValueText(variable);
}

}  // namespace qv
