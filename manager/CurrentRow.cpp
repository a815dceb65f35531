#include "manager/CurrentRow.h"

#include <algorithm>

#include "discriminator/FileNames.h"
#include "discriminator/ListEnd.h"

namespace qv {
namespace {

using Rows = std::vector<STagDiscriminatorRow>;

QVWideString IdOf(const STagDiscriminatorRow& row) { return IdOfStem(row.shown.fileStem); }

bool Holds(const Rows& rows, const QVWideString& id) {
  return std::any_of(rows.begin(), rows.end(),
                     [&](const STagDiscriminatorRow& row) { return IdOf(row) == id; });
}

template <class Predicate>
std::optional<int> FirstRow(const Rows& rows, const Predicate& predicate) {
  const auto found = std::find_if(rows.begin(), rows.end(), predicate);
  return found == rows.end() ? std::nullopt : std::optional(static_cast<int>(found - rows.begin()));
}

}  // namespace

std::optional<int> CurrentRow(const Rows& before, std::optional<int> currentBefore,
                              const Rows& after) {
  const auto isNew = [&](const STagDiscriminatorRow& row) { return !Holds(before, IdOf(row)); };
  if (const auto added = before.empty() ? std::nullopt : FirstRow(after, isNew)) {
    return added;
  }
  if (!currentBefore || *currentBefore >= static_cast<int>(before.size())) {
    return std::nullopt;
  }
  const QVWideString id = IdOf(before[static_cast<std::size_t>(*currentBefore)]);
  const auto same =
      FirstRow(after, [&](const STagDiscriminatorRow& row) { return IdOf(row) == id; });
  return same ? same : NearestRow(*currentBefore, after.size());
}

}  // namespace qv
