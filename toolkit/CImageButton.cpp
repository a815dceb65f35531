#include "toolkit/CImageButton.h"

#include <QEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include "toolkit/Caption.h"

namespace {

constexpr int iconGap = 4;  // what styles leave between picture and caption

}  // namespace

CImageButton::CImageButton(QWidget* parent) : QPushButton(parent) {}

void CImageButton::SetImage(const QVWideString& path, unsigned long, bool) {
  setIcon(qv::PictureIcon(path));
  Describe();
}

void CImageButton::SetCaption(const QString& caption) {
  m_caption = caption;
  setText(caption);
  Describe();
}

void CImageButton::SetHint(const QString& hint) {
  m_hint = hint;
  Describe();
}

QString CImageButton::ShownCaption() const {
  return qv::ElidedCaption(m_caption, fontMetrics(), CaptionRoom());
}

void CImageButton::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  if (text() == m_caption) {
    option->text = ShownCaption();
  }
}

void CImageButton::resizeEvent(QResizeEvent* event) {
  QPushButton::resizeEvent(event);
  Describe();
}

void CImageButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    Describe();
  }
}

int CImageButton::CaptionRoom() const {
  QStyleOptionButton option;
  QPushButton::initStyleOption(&option);
  const int room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
  return icon().isNull() ? room : room - iconSize().width() - iconGap;
}

void CImageButton::Describe() { qv::DescribeByCaption(this, m_caption, CaptionRoom(), m_hint); }
