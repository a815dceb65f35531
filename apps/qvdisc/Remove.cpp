#include "apps/qvdisc/Verbs.h"

namespace qvdisc {

void Remove(qv::DiscriminatorList& list, const std::vector<int>& rows, qv::Prompter& prompter,
            Outcome& outcome) {
  const qv::RemovalEnd end = list.OnRemove(rows);
  if (end.refusal) {
    Tell(prompter, *end.refusal);
  }
  if (end.outcome != qv::RemovalOutcome::Done) {
    outcome.status = 1;
  }
}

}  // namespace qvdisc
