#include <algorithm>

#include "apps/qvdisc/Verbs.h"

namespace qvdisc {

void Copy(const qv::DiscriminatorClipboard& clipboard, const std::vector<int>& rows,
          const StreamClipboard& stream, Outcome& outcome) {
  clipboard.Copy(rows);
  outcome.payload = stream.Put();
}

void Paste(qv::DiscriminatorClipboard& clipboard, Outcome& outcome) {
  const auto pasted = clipboard.Paste();
  const auto lost = std::count_if(pasted.begin(), pasted.end(),
                                  [](const auto& discriminator) { return !discriminator.written; });
  if (pasted.empty()) {
    outcome.Fail(Word::NothingToPaste);
  } else if (lost > 0) {
    outcome.Fail(Word::NotAllPasted, {static_cast<unsigned>(lost)});
  }
}

}  // namespace qvdisc
