#pragma once

#include <QFontMetrics>
#include <QIcon>
#include <QString>
#include <QWidget>

#include "tools/QVBasicString.h"

namespace qv {

/// The caption that shows `text`, which is data, as it stands.
QString LiteralText(const QString& text);

/// `caption`, which may have a mnemonic, cut at the right with an ellipsis if it is wider than
/// `width` pixels.
QString ElidedCaption(const QString& caption, const QFontMetrics& font, int width);

/// The least width in which `caption` isn't cut.
int CaptionWidth(const QString& caption, const QFontMetrics& font);

/// Gives `widget` the whole caption, as it reads, for its accessible name, and for its tooltip
/// exactly if the caption is wider than `width` pixels. The tooltip also shows `hint`, which is the
/// accessible name where there is no caption.
void DescribeByCaption(QWidget* widget, const QString& caption, int width,
                       const QString& hint = {});

/// Gives `widget` a tooltip that shows `text` as it stands, which becomes its accessible
/// description as well; none for an empty text.
void SetPlainToolTip(QWidget* widget, const QString& text);

/// `text` for a tooltip that shows it as it stands.
QString PlainToolTip(const QString& text);

/// The doubled form of a picture's file: "NAME@2x.png" of "NAME.png".
QString DoubledFile(const QString& file);

/// The picture at `path`, with its doubled form "<name>@2x.png" for dense screens if there is one.
/// A file that is missing or holds no picture gives a null icon.
QIcon PictureIcon(const QVWideString& path);

}  // namespace qv
