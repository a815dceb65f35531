#pragma once

#include <optional>
#include <vector>

#include "toolkit/ChoiceBox.h"
#include "tools/Colour.h"

namespace qv {

/// A drop-down list of things that have a colour, with its box before each.
class ColourChoice : public ChoiceBox {
  Q_OBJECT

 public:
  struct Entry {
    QString text;
    Colour colour;
  };

  using ChoiceBox::ChoiceBox;

  /// Offers these entries in place of those before, and selects one of them, or none.
  void ShowEntries(const std::vector<Entry>& entries, std::optional<int> select);
};

}  // namespace qv
