#include "toolkit/ColourChoice.h"

#include "toolkit/ColourIcons.h"

namespace qv {

void ColourChoice::ShowEntries(const std::vector<Entry>& entries, std::optional<int> select) {
  const QSize small = SmallIconSize(this);
  const QSize boxSize(small.width(), small.height() - 2);
  clear();
  setIconSize(boxSize);
  for (const Entry& entry : entries) {
    addItem(ColourIcon(entry.colour, boxSize), entry.text);
  }
  setCurrentIndex(select.value_or(-1));
}

}  // namespace qv
