#pragma once

#include <QBasicTimer>

#include "hostkit/ExpressionSupport.h"
#include "hostkit/VariableFilter.h"
#include "hostkit/ui/EntryTree.h"

namespace qv {

/// The variables that an expression may have, below their devices, with their values of the moment.
class VariableTree : public EntryTree {
  Q_OBJECT

 public:
  /// `support` and `texts` are to outlive the tree.
  VariableTree(const ExpressionSupport& support, const QVLoadString& texts,
               const VariableFilter& allowed, QWidget* parent = nullptr);

  /// Shows those alone that have all these words in their device's name, their own or their
  /// description, letters in either case; all of them for an empty text.
  void Find(const QString& words);

  /// Gives the first variable, if there is one, the place of the cursor.
  void GoToFirst();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void SizeColumns();

  const ExpressionSupport& m_support;
  VariableFilter m_allowed;
  QBasicTimer m_refresh;
};

}  // namespace qv
