#include "apps/qvdisc/Verbs.h"

namespace qvdisc {

void Copy(const qv::DiscriminatorClipboard& clipboard, const std::vector<int>& rows,
          const StreamClipboard& stream, Outcome& outcome) {
  clipboard.Copy(rows);
  outcome.payload = stream.Put();
}

void Paste(qv::DiscriminatorClipboard& clipboard, Outcome& outcome) {
  const auto pasted = clipboard.Paste();
  for (const qv::PastedDiscriminator& discriminator : pasted) {
    if (discriminator.written) {
      outcome.made.emplace_back(discriminator.fileStem.ToView());
    }
  }
  const std::size_t lost = pasted.size() - outcome.made.size();
  if (pasted.empty()) {
    outcome.Fail(Word::NothingToPaste);
  } else if (lost > 0) {
    outcome.Fail(Word::NotAllPasted, {static_cast<unsigned>(lost)});
  }
}

}  // namespace qvdisc
