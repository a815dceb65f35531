#pragma once

#include "timestructure/TypeIdentity.h"
#include "toolkit/AskColour.h"
#include "toolkit/ColourSwatch.h"

namespace qv {

/// Lets the user choose the colour of a type and shows it in the swatch; whether it is another one
/// than before.
inline bool ChooseColour(TypeIdentity& identity, ColourSwatch& swatch, const QString& title) {
  const auto chosen = AskColour(swatch.window(), identity.CurrentColour(), title);
  const bool isOther = chosen && identity.ChooseColour(*chosen);
  if (isOther) {
    swatch.SetColour(*chosen);
  }
  return isOther;
}

}  // namespace qv
