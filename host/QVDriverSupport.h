#pragma once

#include <memory>
#include <string>

#include "host/HostService.h"
#include "host/QVEvaluator.h"

class QVDriverSupport;
extern template class QVHOST_EXPORT HostService<QVDriverSupport>;

/// What the host knows of its devices' values: the expressions over them.
class QVHOST_EXPORT QVDriverSupport : public HostService<QVDriverSupport> {
 public:
  virtual ~QVDriverSupport() = default;

  /// An evaluator of this expression. Never null.
  virtual std::unique_ptr<QVEvaluator> NewEvaluator(const QVWideString& expression) const = 0;

  /// Fills `text` with the wording of a code that `QVEvaluator::Evaluate` gave. False, and `text`
  /// says so, if there is no such code.
  virtual bool ErrorMsg(int code, QVWideString& text) const = 0;

  /// Whether the expression refers to a module, whose values can't be had here. False for what
  /// isn't well-formed.
  virtual bool isThereAModuleInExpression(const std::wstring& expression) const = 0;
};
