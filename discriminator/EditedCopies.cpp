#include "discriminator/EditedCopies.h"

#include <algorithm>

namespace qv {

EditedCopies::EditedCopies(std::initializer_list<XmlNode*> originals) {
  for (XmlNode* original : originals) {
    m_parts.emplace_back(*original);
  }
}

XmlNode& EditedCopies::Of(const XmlNode& original) {
  const auto part = std::find_if(m_parts.begin(), m_parts.end(),
                                 [&](const Part& known) { return &known.original == &original; });
  return *part->copy.Root();
}

bool EditedCopies::TakeBack(const EditorEnd& end, bool& modified) {
  if (end.confirmed) {
    modified = modified || end.modified;
    for (const Part& part : m_parts) {
      part.original = *part.copy.Root();
    }
  }
  return end.confirmed;
}

}  // namespace qv
