#include "apps/qvdisc/NamedRows.h"

#include <set>

#include "discriminator/FileNames.h"
#include "tools/Names.h"

namespace qvdisc {
namespace {

using Rows = std::vector<qv::STagDiscriminatorRow>;

template <class Matches>
std::vector<int> RowsWhere(const Rows& rows, Matches matches) {
  std::vector<int> found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (matches(rows[i].shown)) {
      found.push_back(static_cast<int>(i));
    }
  }
  return found;
}

std::vector<int> Candidates(const Rows& rows, const std::wstring& name) {
  auto found = RowsWhere(rows, [&](const auto& shown) { return shown.fileStem == name; });
  if (found.empty()) {
    found =
        RowsWhere(rows, [&](const auto& shown) { return qv::IdOfStem(shown.fileStem) == name; });
  }
  if (found.empty()) {
    found = RowsWhere(
        rows, [&](const auto& shown) { return qv::EqualUppered(shown.name.ToView(), name); });
  }
  return found;
}

}  // namespace

std::optional<std::vector<int>> NamedRows(const Rows& rows, const std::vector<std::wstring>& names,
                                          Outcome& outcome) {
  std::set<int> named;
  for (const std::wstring& name : names) {
    const auto candidates = Candidates(rows, name);
    if (candidates.size() != 1) {
      outcome.Fail(candidates.empty() ? Word::NoSuchDiscriminator : Word::SeveralDiscriminators,
                   {name.c_str()});
      return std::nullopt;
    }
    named.insert(candidates.front());
  }
  return std::vector<int>(named.begin(), named.end());
}

}  // namespace qvdisc
