#pragma once

#include <QString>

namespace qv {

/// The place of a text of Qt, from 0 to its length, as one of the same text of the rules, whose
/// characters may be fewer: the inner place of a character of two units counts as that behind it.
int ToWidePlace(const QString& text, int qtPlace);

/// The place of a text of the rules as one of the same text of Qt. Places before the start are the
/// start, those behind the end are the end.
int ToQtPlace(const QString& text, int widePlace);

/// The number of characters that the text has for the rules.
int WideLength(const QString& text);

}  // namespace qv
