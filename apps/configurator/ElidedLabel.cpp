#include "apps/configurator/ElidedLabel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "apps/configurator/Strings.h"

namespace configurator {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), m_mode(mode) {
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("…")), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && ShownText() != text()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTooltip(text()), this);
    return true;
  }
  return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), ShownText(), foregroundRole());
}

QString ElidedLabel::ShownText() const {
  return fontMetrics().elidedText(text(), m_mode, contentsRect().width());
}

}  // namespace configurator
