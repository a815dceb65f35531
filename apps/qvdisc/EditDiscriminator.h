#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "apps/qvdisc/Verbs.h"
#include "editor/DiscriminatorForm.h"

namespace qvdisc {

/// The discriminator that a call is about, the first of the rows, and what its editor works with.
struct Edited {
  qv::DiscriminatorList& list;
  const std::vector<int>& rows;  ///< none for a new discriminator
  const Editing& editing;
  Outcome& outcome;
};

/// What a user does in the opened editor: gives the fields as they are when OK is pressed, or
/// nothing if it is cancelled, after telling why.
using UseEditor = std::function<std::optional<qv::DiscriminatorFields>(qv::DiscriminatorForm&)>;

/// Runs the editor for a new discriminator, or for the one of the first row, as the manager does.
/// Whether it was saved; the outcome tells why not. What could not be written stays with the user,
/// as a payload that can be pasted again.
bool AddDiscriminator(const Edited& edited, const UseEditor& use);
bool ModifyDiscriminator(const Edited& edited, const UseEditor& use);

/// What a user does with the parts of a discriminator: runs one of the dialogs that the editor
/// opens. Whether that was confirmed; if not, the outcome tells why.
using UseParts = std::function<bool(qv::DiscriminatorForm&)>;

/// The same for a discriminator whose fields stay as they are while `use` works on copies of its
/// parts. One that isn't of this type is refused.
bool ModifyParts(const Edited& edited, qv::DiscriminatorType type, const UseParts& use);

/// Lets `use` see the parts of a discriminator of this type, of which nothing is saved. Whether
/// that was possible; the outcome tells why not.
bool ReadParts(const Edited& edited, qv::DiscriminatorType type, const UseParts& use);

}  // namespace qvdisc
