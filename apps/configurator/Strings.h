#pragma once

#include <QString>
#include <string_view>

namespace configurator {

/// A text of the documents and the services as one of Qt.
inline QString ToQString(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

/// `text` as a tooltip shows it as it stands: left alone, tooltips guess rich text.
inline QString PlainTooltip(const QString& text) {
  return QStringLiteral("<p style='white-space: pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

}  // namespace configurator
