#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/Export.h"
#include "host/Prompter.h"
#include "host/Text.h"

namespace qv {

/// The fields of editors that a refusal can be about.
enum class Field { Name, Expression };

/// Why a verb refused: what the user is told, and where they can mend it.
struct Refusal {
  std::optional<Text> text{};             ///< nothing where there are words of another source
  std::vector<std::wstring> arguments{};  ///< for the placeholders of `text`
  std::wstring words{};                   ///< what is told if there is no `text`
  std::optional<Field> field{};           ///< gets the focus; without one it stays where it is
  bool selectsAll = false;                ///< whether all of the field is selected then
  std::optional<int> row{};               ///< of the list that it is about: becomes the current one
  Addition addition{};                    ///< what is told below `text`

  friend bool operator==(const Refusal&, const Refusal&) = default;
};

/// A refusal that is told by this text, and by what is added to it.
inline Refusal Refused(Text text, Addition addition = {}) {
  return {.text = text, .addition = std::move(addition)};
}

/// Tells the user of a refusal; the focus is up to the caller.
QVHOST_EXPORT void Tell(Prompter& prompter, const Refusal& refusal);

}  // namespace qv
