#include "apps/qvdisc/Verbs.h"
#include "discriminator/FileNames.h"

namespace qvdisc {
namespace {

void MakeIndex(const qv::DiscriminatorDirectory& directory, const QVWideString& stem,
               Outcome& outcome) {
  XmlDocument document;
  if (!directory.Load(document, (stem + qv::discriminatorExtension).ToView())) {
    outcome.Fail(Word::DiscriminatorUnreadable, {stem});
    return;
  }
  const qv::IndexOutcome end = directory.SaveIndex(*document.Root());
  if (end == qv::IndexOutcome::NotWritten) {
    outcome.Fail(Word::IndexNotWritten, {stem});
  }
  outcome.indexes.push_back({std::wstring(stem.ToView()), end != qv::IndexOutcome::NotNeeded,
                             end == qv::IndexOutcome::Written});
}

}  // namespace

void Index(const qv::DiscriminatorDirectory& directory, const std::vector<QVWideString>& stems,
           qv::Progress& progress, Outcome& outcome) {
  for (std::size_t i = 0; i < stems.size(); ++i) {
    progress.Advance(i, stems.size());
    MakeIndex(directory, stems[i], outcome);
  }
}

}  // namespace qvdisc
