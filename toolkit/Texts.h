#pragma once

#include <QString>

#include "host/QVLoadString.h"

namespace qv {

/// The host's text of this number.
QString HostText(const QVLoadString& loadString, Text text);

/// One of the library's own texts (60000 and up), empty if the host's language lacks it.
QString OwnText(const QVLoadString& loadString, Text text);

}  // namespace qv
