#pragma once

#include <optional>

#include "conditions/ConditionEvaluation.h"
#include "host/SaveEnd.h"
#include "tools/XmlNode.h"

namespace qv {

/// One condition while it is edited: its name and its expression. Nothing is written into its node
/// but by `Save`. Lengths are in wide characters.
class ConditionForm {
 public:
  /// The number of characters that may be typed into the expression.
  static constexpr int longestTypedExpression = 512;
  /// The first characters of the expression that are looked at while it is typed.
  static constexpr int longestSeenExpression = 511;
  /// The first characters of a name, and of an expression, that are kept.
  static constexpr int longestKept = 64;

  /// `condition` is the node to edit, which may lie outside `conditions`, in which other conditions
  /// of the same name are looked for; null has none. All outlive the form.
  ConditionForm(XmlNode& condition, const XmlNode* conditions, const QVDriverSupport& drivers);

  /// The name in the node.
  QVWideString Name() const;
  /// The expression in the node.
  QVWideString Expression() const;

  /// What the expression is while it is typed; of a long one the first characters count.
  ConditionEvaluation Status(const QVWideString& expression) const;

  /// The characters of `text` that a save keeps.
  static QVWideString Kept(const QVWideString& text);

  /// Why these can't be a condition of the list, or nothing. They are taken as they are, of any
  /// length.
  std::optional<Refusal> CheckCondition(const QVWideString& name,
                                        const QVWideString& expression) const;

  /// Whether these differ from what is in the node.
  bool HasChanged(const QVWideString& name, const QVWideString& expression) const;

  /// Checks what is kept of both, and writes it into the node. `Unchanged`, and nothing written, if
  /// the node has it already.
  SaveEnd Save(const QVWideString& name, const QVWideString& expression);

  /// Whether a save changed the node; never cleared.
  bool IsModified() const { return m_modified; }

 private:
  std::optional<Refusal> Fault(const QVWideString& expression) const;
  bool IsTaken(const QVWideString& name) const;

  XmlNode& m_condition;
  const XmlNode* m_conditions;
  const QVDriverSupport& m_drivers;
  bool m_modified = false;
};

}  // namespace qv
