#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "hostkit/Language.h"
#include "tools/Format.h"

namespace qvdisc {

/// What this program says itself. What the rules say is in the language files.
enum class Word {
  // Why something was refused
  NoSuchDiscriminator,      ///< the text of the call
  SeveralDiscriminators,    ///< the text of the call
  ConfigurationUnreadable,  ///< the directory
  ConfigurationForeign,     ///< the directory
  ConfigurationNotSaved,    ///< the directory
  LanguageFileMissing,      ///< the file
  TypeNotSelectable,
  DiscriminatorUnreadable,  ///< the stem
  ContentFollows,
  IndexNotWritten,  ///< the name
  NothingToPaste,
  NotAllPasted,  ///< how many are missing
  AnswerNeeded,
  OutputFailed,
  LeftOutBeyondWalk,   ///< the dates
  LeftOutWithoutType,  ///< the dates

  // Questions
  YesOrNo,

  // What is shown to people
  Name,
  Description,
  Stem,
  Id,
  Type,
  ZeroOutside,
  Revision,
  HourTypes,
  DayTypes,
  Calendar,
  Conditions,
  Yes,
  No,
  OneDate,
  Dates,        ///< how many
  DatesFromTo,  ///< the first and the last
  NoKnownDayType,
  MarkedAs,     ///< the dates, counted, and the day type
  Unmarked,     ///< the dates, counted
  Answer,       ///< the answer that was given to a question
  Made,         ///< the stem
  WouldWrite,   ///< the path
  WouldRemove,  ///< the path
  WouldDoNothing,
  IndexWritten,    ///< the stem
  IndexNotNeeded,  ///< the stem
  Reading,         ///< how many of how many
  Listed,          ///< the file
  OneFile,
  Files,  ///< how many
  OneFault,
  Faults,  ///< how many
  OneNote,
  Notes,           ///< how many
  Note,            ///< the sentence of a note
  NothingFound,    ///< the files, counted
  Found,           ///< the faults or the notes, and the files, counted
  FaultsAndNotes,  ///< the faults, the notes and the files, counted

  // What a check finds
  Unreadable,    ///< reason
  UnreadableAt,  ///< line, column, reason
  ForeignConfiguration,
  HiddenType,
  FileNameForm,
  IdDiffers,     ///< the field's, the file's
  NameDiffers,   ///< the field's, the file's
  DeadHourType,  ///< place, id
  DeadDayType,   ///< date, id
  IndexMissing,
  IndexStale,
  IndexUnreadable,
  IndexWithoutUse,
  EntryWithoutDiscriminator,  ///< place, id
  DiscriminatorWithoutEntry,
  DuplicateEntry,       ///< place, id
  DuplicateId,          ///< the id
  DuplicateName,        ///< the name
  DuplicatePart,        ///< tag of the field, place, value
  MalformedTime,        ///< place, the text
  TimeOutOfRange,       ///< place, the text
  StartAfterEnd,        ///< place
  SlotsOverlap,         ///< place, the other slot
  DayGaps,              ///< place, how many minutes
  WrongYear,            ///< the text, the year as which it is read
  NoSuchMonth,          ///< place, tag
  NoSuchDate,           ///< place, tag
  DatesBeyondWalk,      ///< place, how many dates
  ConditionMissing,     ///< place
  ConditionMalformed,   ///< place, why
  ConditionNotLogical,  ///< place
  ConditionFails,       ///< place, why
  ConditionsAlike,      ///< place, the name of the other
  ConditionTooLong,     ///< place, how many characters

  Count
};

/// The text in this language, its placeholders filled in.
std::wstring Words(Word word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments = {});

/// The same in UTF-8.
std::string NarrowWords(Word word, qv::Language language,
                        std::initializer_list<qv::FormatArgument> arguments = {});

/// `text` on one line, with blanks for control characters, which would do things to a terminal.
std::wstring OneLine(std::wstring text);

/// `text` in UTF-8, with U+FFFD for what is no character.
std::string Utf8(std::wstring_view text);

}  // namespace qvdisc
