#pragma once

#include "host/QVLoadString.h"
#include "hostkit/ExpressionVocabulary.h"
#include "hostkit/ui/EntryTree.h"

namespace qv {

/// The operators, constants and functions of expressions, each with a line of help.
class VocabularyList : public EntryTree {
  Q_OBJECT

 public:
  explicit VocabularyList(const QVLoadString& texts, QWidget* parent = nullptr);

  /// The word that an entry of this list stands for.
  const ExpressionWord& WordOf(const QTreeWidgetItem& entry) const;
};

}  // namespace qv
