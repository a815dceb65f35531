#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "tools/QVBasicString.h"

namespace qv {

/// A text of the rules as one of Qt.
inline QString ToQString(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString ToQString(const QVWideString& text) { return ToQString(text.ToView()); }

/// A text of Qt as one of the rules.
inline QVWideString ToWide(const QString& text) {
  const std::wstring wide = text.toStdWString();
  return QVWideString{std::wstring_view{wide}};
}

}  // namespace qv
