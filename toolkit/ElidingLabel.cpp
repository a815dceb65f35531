#include "toolkit/ElidingLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

#include "toolkit/Caption.h"
#include "toolkit/Texts.h"

namespace qv {

QString ElidingLabel::Shown() const {
  return ElidedCaption(text(), fontMetrics(), contentsRect().width());
}

bool ElidingLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QLabel::event(event);
  }
  const QString whole = Shown() == text() ? QString() : WithoutMnemonic(text());
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(whole), this);
  return true;
}

void ElidingLabel::paintEvent(QPaintEvent*) {
  QStyleOption option;
  option.initFrom(this);
  const bool hidesMnemonic = !style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this);
  const int mnemonic = hidesMnemonic ? Qt::TextHideMnemonic : Qt::TextShowMnemonic;
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | mnemonic,
                        option.palette, isEnabled(), Shown(), foregroundRole());
}

}  // namespace qv
