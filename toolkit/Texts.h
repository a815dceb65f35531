#pragma once

#include <QString>

#include "host/QVLoadString.h"

namespace qv {

/// The host's text of this number, without the sign of its mnemonic.
QString HostText(const QVLoadString& loadString, Text text);

/// One of the library's own texts (60000 and up), empty if the host's language lacks it.
QString OwnText(const QVLoadString& loadString, Text text);

/// The host's text of this number for the caption of a button, a label, a check box or a menu: "&"
/// stands before its mnemonic, "&&" for an "&".
QString HostCaption(const QVLoadString& loadString, Text text);

/// A caption in the language's own words, as it reads.
QString WithoutMnemonic(const QString& caption);

}  // namespace qv
