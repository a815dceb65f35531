#pragma once

#include <string>
#include <vector>

namespace qv {

/// What a check can find.
enum class FindingKind {
  Unreadable,
  HiddenType,
  FileName,
  IdDiffers,
  NameDiffers,
  DeadHourType,
  DeadDayType,
  IndexMissing,
  IndexStale,
  IndexUnreadable,
  IndexWithoutUse,
  EntryWithoutDiscriminator,
  DiscriminatorWithoutEntry,
  DuplicateEntry,
  DuplicateId,
  DuplicateName,
  DuplicatePart,
  ForeignConfiguration,
  MalformedTime,
  TimeOutOfRange,
  StartAfterEnd,
  SlotsOverlap,
  DayGaps,
  WrongYear,
  NoSuchMonth,
  NoSuchDate,
  DatesBeyondWalk,
  ConditionMissing,
  ConditionMalformed,
  ConditionNotLogical,
  ConditionFails,
  ConditionsAlike,
  ConditionTooLong,

  Count
};

/// Something that a check tells of a file.
struct Finding {
  FindingKind kind = FindingKind::Unreadable;
  std::wstring file{};      ///< the name of the file; entries are in the configuration's
  std::wstring place{};     ///< where in it
  std::wstring value{};     ///< what is wrong there
  std::wstring expected{};  ///< what it is compared with
  unsigned line = 0;        ///< from 1, of what cannot be read; 0 for the file as a whole
  unsigned column = 0;

  /// Whether something has to be mended; any other finding is a note, which only explains.
  bool IsFault() const {
    return kind != FindingKind::HiddenType && kind != FindingKind::DayGaps &&
           kind != FindingKind::DatesBeyondWalk && kind != FindingKind::ConditionsAlike &&
           kind != FindingKind::ConditionTooLong;
  }
  /// Whether it is why the list leaves the file out.
  bool LeavesOut() const { return kind <= FindingKind::NameDiffers; }

  friend bool operator==(const Finding&, const Finding&) = default;
};

using Findings = std::vector<Finding>;

}  // namespace qv
