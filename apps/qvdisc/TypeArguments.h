#pragma once

#include "apps/qvdisc/CallOptions.h"
#include "apps/qvdisc/TypeCall.h"

namespace qvdisc {

/// Adds to `verb`, that of one kind of types, the verbs that it consists of. `texts` outlives it,
/// and `language` is that of the help.
void AddHourTypeVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language);
void AddDayTypeVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// What the call asks for, of which `action` is one of those verbs.
TypeCall ReadTypeCall(const CLI::App& action, const TypeTexts& texts);

}  // namespace qvdisc
