#pragma once

#include <QString>

#include "calendar/DateWords.h"
#include "host/Text.h"

namespace qv {

/// The installed host's wording, without a mnemonic; nothing if it has none, which includes no
/// host.
QString YearWord(Text text);
/// The same for a text that every host has.
QString HostWord(Text text);
/// The same as `YearWord` for a line of a menu: "&" stands before its mnemonic.
QString YearCaption(Text text);

/// The host's forms in which dates are told, as far as it has them.
DateForms HostDateForms();

}  // namespace qv
