#pragma once

#include <QString>

namespace configurator {

/// `text` as a tooltip shows it as it stands: left alone, tooltips guess rich text.
inline QString PlainTooltip(const QString& text) {
  return QStringLiteral("<p style='white-space: pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

/// `text` as the caption of a command that shows it as it stands, without a key.
inline QString LiteralCaption(QString text) {
  return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace configurator
