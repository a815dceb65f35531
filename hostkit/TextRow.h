#pragma once

#include "hostkit/Language.h"

namespace qv {

/// A text of a program itself in each language, a row of an `EnumTable`.
template <class TextKey, class Letter>
struct TextRow {
  TextKey key;
  const Letter* spanish;
  const Letter* english;

  constexpr const Letter* In(Language language) const {
    return language == Language::Spanish ? spanish : english;
  }
};

}  // namespace qv
