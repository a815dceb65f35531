#include "toolkit/QVHyperlink.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cstdlib>

#include "toolkit/Caption.h"

namespace {

constexpr int pictureSide = 32;
constexpr int margin = 6;
constexpr int pictureGap = 4;
constexpr int cornerRadius = 3;
constexpr int hoverAlpha = 40;
constexpr int pressedAlpha = 80;
constexpr int leastContrast = 50;  // below it a link colour can't be read on its ground

int Brightness(const QColor& colour) { return qGray(colour.rgb()); }

}  // namespace

QVHyperlink::QVHyperlink(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setIconSize(QSize(pictureSide, pictureSide));
}

void QVHyperlink::SetImage(const QVWideString& path) {
  setIcon(qv::PictureIcon(path));
  updateGeometry();
}

void QVHyperlink::SetCaption(const QString& caption) {
  m_caption = caption;
  setText(caption);
  updateGeometry();
  Describe();
}

QString QVHyperlink::ShownCaption() const {
  return qv::ElidedCaption(m_caption, fontMetrics(), CaptionRoom());
}

QSize QVHyperlink::sizeHint() const {
  const int caption = qv::CaptionWidth(m_caption, fontMetrics());
  return {std::max(iconSize().width(), caption) + 2 * margin,
          iconSize().height() + pictureGap + fontMetrics().height() + 2 * margin};
}

void QVHyperlink::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) {  // a held key that has just left a dialog must not reopen it
      click();
    }
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void QVHyperlink::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintGround(painter);
  const int height = iconSize().height() + pictureGap + fontMetrics().height();
  const QRect content(margin, (rect().height() - height) / 2, CaptionRoom(), height);
  PaintPicture(painter, content);
  PaintCaption(painter, content);
}

void QVHyperlink::resizeEvent(QResizeEvent* event) {
  QAbstractButton::resizeEvent(event);
  Describe();
}

void QVHyperlink::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    Describe();
  }
}

int QVHyperlink::CaptionRoom() const { return rect().width() - 2 * margin; }

void QVHyperlink::SetHint(const QString& hint) {
  m_hint = hint;
  Describe();
}

void QVHyperlink::Describe() {
  qv::DescribeByCaption(this, m_caption, CaptionRoom());
  if (!m_hint.isEmpty()) {
    qv::SetPlainToolTip(this, m_hint);
  }
}

QColor QVHyperlink::CaptionColour() const {
  const QColor link = palette().color(QPalette::Link);
  const QColor text = palette().color(QPalette::WindowText);
  const int contrast = Brightness(link) - Brightness(palette().color(QPalette::Window));
  return isEnabled() && std::abs(contrast) >= leastContrast ? link : text;
}

void QVHyperlink::PaintGround(QPainter& painter) const {
  const bool lit = isEnabled() && (underMouse() || isDown());
  if (!lit && !hasFocus()) {
    return;
  }
  QColor tint = palette().color(QPalette::Highlight);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(hasFocus() ? QPen(tint) : QPen(Qt::NoPen));
  tint.setAlpha(isDown() ? pressedAlpha : hoverAlpha);
  painter.setBrush(lit ? QBrush(tint) : QBrush(Qt::NoBrush));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                          cornerRadius);
}

void QVHyperlink::PaintPicture(QPainter& painter, const QRect& content) const {
  const QRect place(content.topLeft(), QSize(content.width(), iconSize().height()));
  icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

int QVHyperlink::MnemonicFlag() const {
  const bool isUnderlined = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  return isUnderlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
}

void QVHyperlink::PaintCaption(QPainter& painter, const QRect& content) const {
  QFont shown = font();
  shown.setUnderline(isEnabled() && underMouse());
  painter.setFont(shown);
  painter.setPen(CaptionColour());
  painter.drawText(content,
                   Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine | MnemonicFlag(),
                   ShownCaption());
}
