#pragma once

#include "tools/Colour.h"

namespace qv {

/// How far two colours differ in lightness, from 1 to 21, as WCAG 2 defines its contrast ratio.
/// Text is legible from 4.5 on.
double ContrastOf(Colour first, Colour second);

/// Black or white, whichever stands out more from `ground`; the contrast is at least 4.58.
Colour LegibleInkOn(Colour ground);

/// Whether two colours are hard to tell apart with common sight or with one of the three kinds of
/// colour blindness. The measure is their distance in CIE Lab (CIE76, white of D65), which has to
/// be at least 15 for each kind of sight; blindness is simulated by the matrices of Machado,
/// Oliveira and Fernandes (2009) for full severity, on linear light.
bool LookAlike(Colour first, Colour second);

}  // namespace qv
