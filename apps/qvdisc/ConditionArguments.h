#pragma once

#include "apps/qvdisc/CallOptions.h"
#include "apps/qvdisc/ConditionCall.h"

namespace qvdisc {

/// Adds to `verb`, that of conditions, the verbs that it consists of. `texts` outlives it, and
/// `language` is that of the help.
void AddConditionVerbs(CLI::App& verb, OptionTexts& texts, qv::Language language);

/// What the call asks for, of which `action` is one of those verbs.
ConditionCall ReadConditionCall(const CLI::App& action, const ConditionTexts& texts);

/// Adds to `verb` the expression that it evaluates.
void AddEvaluated(CLI::App& verb, OptionTexts& texts, qv::Language language);

}  // namespace qvdisc
