#include "toolkit/Caption.h"

#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPixmap>
#include <QtMath>

#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {

QString LiteralText(const QString& text) {
  return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString ElidedCaption(const QString& caption, const QFontMetrics& font, int width) {
  return font.elidedText(caption, Qt::ElideRight, width, Qt::TextShowMnemonic);
}

void DescribeByCaption(QWidget* widget, const QString& caption, int width, const QString& hint) {
  const bool elided = ElidedCaption(caption, widget->fontMetrics(), width) != caption;
  const QString reading = WithoutMnemonic(caption);
  QStringList lines = {elided ? reading : QString(), hint};
  lines.removeAll(QString());
  SetPlainToolTip(widget, lines.join(QLatin1Char('\n')));
  widget->setAccessibleName(reading);
  if (reading.isEmpty()) {
    // What has a picture alone is called by its hint.
    widget->setAccessibleName(hint);
    widget->setAccessibleDescription({});
  }
}

void SetPlainToolTip(QWidget* widget, const QString& text) {
  widget->setToolTip(PlainToolTip(text));
  // By itself the description would be the tooltip's text with its tags.
  widget->setAccessibleDescription(text);
}

QString PlainToolTip(const QString& text) {
  // Escaped in a pair of tags, since a tooltip takes a text with tags of its own for rich text.
  return text.isEmpty()
             ? QString()
             : QStringLiteral("<p>%1</p>")
                   .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QString DoubledFile(const QString& file) {
  const QFileInfo info(file);
  return info.dir().filePath(info.completeBaseName() + QStringLiteral("@2x.") + info.suffix());
}

int CaptionWidth(const QString& caption, const QFontMetrics& font) {
  return qCeil(QFontMetricsF(font).horizontalAdvance(WithoutMnemonic(caption)));
}

QIcon PictureIcon(const QVWideString& path) {
  const QString file = ToQString(path);
  if (QPixmap(file).isNull()) {
    return {};  // an icon of a file that can't be read isn't null and takes room
  }
  QIcon icon(file);
  // By itself an icon looks for this form only if there is a dense screen at this moment.
  icon.addFile(DoubledFile(file));
  return icon;
}

}  // namespace qv
