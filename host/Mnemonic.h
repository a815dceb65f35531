#pragma once

#include <string>
#include <string_view>

#include "host/Export.h"

namespace qv {

/// A text of the host without the sign of its mnemonic: each "&" goes, and "&&" is one "&". For
/// every place but the captions of buttons, labels, check boxes and menus, where "&" stands before
/// the letter that reaches them by keyboard.
QVHOST_EXPORT std::wstring WithoutMnemonic(std::wstring_view text);

}  // namespace qv
