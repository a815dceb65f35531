#pragma once

#include "apps/qvdisc/CallOptions.h"
#include "apps/qvdisc/MarkCall.h"

namespace qvdisc {

/// Adds to `verb` what says which dates get which day type. `texts` outlives it, and `language` is
/// that of the help.
void AddMark(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// The same for the verb that leaves dates without a day type.
void AddUnmark(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// What the call asks for, of which `verb` is one of those two; breaks the reading off if it names
/// no dates, or both dates and a rule.
MarkCall ReadMarkCall(const CLI::App& verb, const MarkTexts& texts);

}  // namespace qvdisc
