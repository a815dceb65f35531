#pragma once

#include <string_view>

#include "tools/Colour.h"
#include "tools/QVBasicString.h"

/// The forms in which values stand in a discriminator's document, in the one place that writes and
/// reads them.
namespace qv {

/// A colour as "%06X": blue, green, red.
QVWideString ColourText(Colour color);

/// The colour that `text` writes as it stands, without folding the case of its letters; an empty or
/// wrong text gives what its first hexadecimal digits write, which may be 0.
Colour ColourAsStored(const QVWideString& text);

/// The colour that `text` writes, in letters of either case; an empty or wrong text gives what its
/// first hexadecimal digits write, which may be 0.
Colour ColourOfText(const QVWideString& text);

/// A time of day, 00:00 to 24:00. What comes from a file may be any numbers.
struct TimeOfDay {
  int hours = 0;
  int minutes = 0;

  int Minutes() const { return hours * 60 + minutes; }
  friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;
};

/// "%02d:%02d".
QVWideString TimeText(TimeOfDay time);

/// The same of a minute of the day, counted from 00:00.
inline QVWideString TimeText(int minute) { return TimeText({minute / 60, minute % 60}); }

/// Hours from the first two characters and minutes from the last two, as far as they are decimal
/// numbers.
TimeOfDay TimeOf(const QVWideString& text);

/// "T" or "F".
const wchar_t* FlagText(bool set);

/// Whether `text` is "T".
bool IsFlagSet(const QVWideString& text);

}  // namespace qv
