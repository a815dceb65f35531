#pragma once

#include <initializer_list>
#include <string>

#include "apps/qvdisc/Outcome.h"

namespace qvdisc {

/// What this program says itself of conditions and expressions.
enum class ConditionWord {
  // Why something was refused
  NoConditions,       ///< name of the discriminator
  NoSuchCondition,    ///< the text of the call
  SeveralConditions,  ///< the text of the call
  NotEvaluatedAt,     ///< the place, from 1, and why
  WouldBeCut,         ///< how many characters are kept, and the text

  // What became of one
  Made,         ///< name
  Changed,      ///< name
  Unchanged,    ///< name
  Removed,      ///< name
  Moved,        ///< name, place from 1
  CannotMove,   ///< name
  ListedFirst,  ///< name: the first that is true
  NoneIsTrue,

  // Results
  True,
  False,

  Count
};

/// The text in this language, its placeholders filled in.
std::wstring Words(ConditionWord word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments = {});

/// The call ends as refused, for one more reason.
void Fail(Outcome& outcome, ConditionWord reason,
          std::initializer_list<qv::FormatArgument> arguments = {});

}  // namespace qvdisc
