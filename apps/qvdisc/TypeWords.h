#pragma once

#include <initializer_list>
#include <string>

#include "apps/qvdisc/Outcome.h"

namespace qvdisc {

/// What this program says itself of hour types and day types.
enum class TypeWord {
  // Why something was refused
  NoTimeSlots,       ///< name of the discriminator
  NoSuchHourType,    ///< the text of the call
  NoSuchDayType,     ///< the text of the call
  SeveralHourTypes,  ///< the text of the call
  SeveralDayTypes,   ///< the text of the call
  ValueNotOffered,
  CannotMark,  ///< name of the day type

  // What became of one
  HourType,
  DayType,
  Made,       ///< one of the two before, the name
  Changed,    ///< one of the two before, the name
  Unchanged,  ///< one of the two before, the name
  Removed,    ///< one of the two before, the name

  Count
};

/// The text in this language, its placeholders filled in.
std::wstring Words(TypeWord word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments = {});

/// The call ends as refused, for one more reason.
void Fail(Outcome& outcome, TypeWord reason,
          std::initializer_list<qv::FormatArgument> arguments = {});

}  // namespace qvdisc
