#pragma once

#include "host/QVLoadString.h"
#include "hostkit/ui/EntryTree.h"

namespace qv {

/// The operators, constants and functions of expressions, each with a line of help.
class VocabularyList : public EntryTree {
  Q_OBJECT

 public:
  explicit VocabularyList(const QVLoadString& texts, QWidget* parent = nullptr);
};

}  // namespace qv
