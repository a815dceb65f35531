#include "apps/qvdisc/Finding.h"

#include <algorithm>
#include <array>

namespace qvdisc {
namespace {

struct KindRow {
  Word kind;
  const char* name;
};

constexpr std::array kinds = {
    KindRow{Word::Unreadable, "unreadable"},
    KindRow{Word::HiddenType, "hidden-type"},
    KindRow{Word::FileNameForm, "file-name"},
    KindRow{Word::IdDiffers, "id-differs"},
    KindRow{Word::NameDiffers, "name-differs"},
    KindRow{Word::DeadHourType, "dead-hour-type"},
    KindRow{Word::DeadDayType, "dead-day-type"},
    KindRow{Word::IndexMissing, "index-missing"},
    KindRow{Word::IndexStale, "index-stale"},
    KindRow{Word::IndexUnreadable, "index-unreadable"},
    KindRow{Word::IndexWithoutUse, "index-without-use"},
    KindRow{Word::EntryWithoutDiscriminator, "entry-without-discriminator"},
    KindRow{Word::DiscriminatorWithoutEntry, "discriminator-without-entry"},
    KindRow{Word::DuplicateEntry, "duplicate-entry"},
    KindRow{Word::DuplicateId, "duplicate-id"},
    KindRow{Word::DuplicateName, "duplicate-name"},
    KindRow{Word::DuplicatePart, "duplicate-part"},
};

}  // namespace

const char* KindName(Word kind) {
  const auto* found = std::find_if(kinds.begin(), kinds.end(),
                                   [&](const KindRow& row) { return row.kind == kind; });
  return found == kinds.end() ? "" : found->name;
}

std::wstring Sentence(const Finding& finding, qv::Language language) {
  switch (finding.kind) {
    case Word::Unreadable:
      return Words(finding.kind, language, {finding.line, finding.column, finding.value.c_str()});
    case Word::IdDiffers:
    case Word::NameDiffers:
      return Words(finding.kind, language, {finding.value.c_str(), finding.expected.c_str()});
    case Word::DuplicatePart:
      return Words(finding.kind, language,
                   {finding.expected.c_str(), finding.place.c_str(), finding.value.c_str()});
    case Word::DuplicateId:
    case Word::DuplicateName:
      return Words(finding.kind, language, {finding.value.c_str()});
    default:
      return Words(finding.kind, language, {finding.place.c_str(), finding.value.c_str()});
  }
}

}  // namespace qvdisc
