#pragma once

#include <bitset>
#include <memory>

#include "host/HostService.h"
#include "tools/QVBasicString.h"

class QWidget;
class QVInformes;
extern template class QVHOST_EXPORT HostService<QVInformes>;

/// The host's wizard, a modal window in which an expression is composed.
class QVHOST_EXPORT CDlgWizzard {
 public:
  CDlgWizzard() = default;
  CDlgWizzard(const CDlgWizzard&) = delete;
  CDlgWizzard& operator=(const CDlgWizzard&) = delete;
  virtual ~CDlgWizzard() = default;

  /// Hands over what there is: the text, and the part of it from `selectionStart` to before
  /// `selectionEnd`, which are equal where only the cursor stands.
  virtual void SetExpression(const QVWideString& text, int selectionStart, int selectionEnd) = 0;

  /// Shows the window and returns when the user has left it: 1 if the expression is to be taken,
  /// else 2.
  virtual int DoModal() = 0;

  /// What was composed, after `DoModal` gave 1.
  QVWideString m_expression;
};

/// What the host has for composing texts.
class QVHOST_EXPORT QVInformes : public HostService<QVInformes> {
 public:
  /// A set of classes of variables, by the number of their bit.
  using VariableClasses = std::bitset<34>;

  virtual ~QVInformes() = default;

  /// A wizard over `parent` that offers the variables of these classes, with or without those of
  /// discriminators. `purpose` says what the expression is for: the library gives 13, a condition.
  virtual std::unique_ptr<CDlgWizzard> NewWizzard(QWidget* parent, const VariableClasses& classes,
                                                  bool withDiscriminators, int purpose) const = 0;
};
