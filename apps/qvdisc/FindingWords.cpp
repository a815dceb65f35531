#include "apps/qvdisc/FindingWords.h"

#include <array>

#include "apps/qvdisc/Words.h"
#include "hostkit/EnumTable.h"

namespace qvdisc {
namespace {

using qv::Finding;
using qv::FindingKind;

struct KindRow {
  FindingKind key;
  const char* name;
  Word word;
};

constexpr qv::EnumTable kinds(std::array{
    KindRow{FindingKind::Unreadable, "unreadable", Word::Unreadable},
    KindRow{FindingKind::HiddenType, "hidden-type", Word::HiddenType},
    KindRow{FindingKind::FileName, "file-name", Word::FileNameForm},
    KindRow{FindingKind::IdDiffers, "id-differs", Word::IdDiffers},
    KindRow{FindingKind::NameDiffers, "name-differs", Word::NameDiffers},
    KindRow{FindingKind::DeadHourType, "dead-hour-type", Word::DeadHourType},
    KindRow{FindingKind::DeadDayType, "dead-day-type", Word::DeadDayType},
    KindRow{FindingKind::IndexMissing, "index-missing", Word::IndexMissing},
    KindRow{FindingKind::IndexStale, "index-stale", Word::IndexStale},
    KindRow{FindingKind::IndexUnreadable, "index-unreadable", Word::IndexUnreadable},
    KindRow{FindingKind::IndexWithoutUse, "index-without-use", Word::IndexWithoutUse},
    KindRow{FindingKind::EntryWithoutDiscriminator, "entry-without-discriminator",
            Word::EntryWithoutDiscriminator},
    KindRow{FindingKind::DiscriminatorWithoutEntry, "discriminator-without-entry",
            Word::DiscriminatorWithoutEntry},
    KindRow{FindingKind::DuplicateEntry, "duplicate-entry", Word::DuplicateEntry},
    KindRow{FindingKind::DuplicateId, "duplicate-id", Word::DuplicateId},
    KindRow{FindingKind::DuplicateName, "duplicate-name", Word::DuplicateName},
    KindRow{FindingKind::DuplicatePart, "duplicate-part", Word::DuplicatePart},
    KindRow{FindingKind::ForeignConfiguration, "foreign-configuration", Word::ForeignConfiguration},
    KindRow{FindingKind::MalformedTime, "malformed-time", Word::MalformedTime},
    KindRow{FindingKind::TimeOutOfRange, "time-out-of-range", Word::TimeOutOfRange},
    KindRow{FindingKind::StartAfterEnd, "start-after-end", Word::StartAfterEnd},
    KindRow{FindingKind::SlotsOverlap, "slots-overlap", Word::SlotsOverlap},
    KindRow{FindingKind::DayGaps, "day-gaps", Word::DayGaps},
});

}  // namespace

const char* KindName(FindingKind kind) { return kinds[kind].name; }

std::wstring Sentence(const Finding& finding, qv::Language language) {
  const Word word = kinds[finding.kind].word;
  switch (finding.kind) {
    case FindingKind::Unreadable:
      return finding.line == 0 ? Words(word, language, {finding.value.c_str()})
                               : Words(Word::UnreadableAt, language,
                                       {finding.line, finding.column, finding.value.c_str()});
    case FindingKind::IdDiffers:
    case FindingKind::NameDiffers:
      return Words(word, language, {finding.value.c_str(), finding.expected.c_str()});
    case FindingKind::DuplicatePart:
      return Words(word, language,
                   {finding.expected.c_str(), finding.place.c_str(), finding.value.c_str()});
    case FindingKind::DuplicateId:
    case FindingKind::DuplicateName:
      return Words(word, language, {finding.value.c_str()});
    default:
      return Words(word, language, {finding.place.c_str(), finding.value.c_str()});
  }
}

}  // namespace qvdisc
