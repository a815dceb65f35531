#include "toolkit/ControlCaption.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "toolkit/CImageButton.h"
#include "toolkit/Caption.h"
#include "toolkit/QVHyperlink.h"
#include "toolkit/Texts.h"

namespace qv {

void ShowCaption(QWidget* control, const QString& caption) {
  if (auto* imageButton = qobject_cast<CImageButton*>(control)) {
    imageButton->SetCaption(caption);
  } else if (auto* link = qobject_cast<QVHyperlink*>(control)) {
    link->SetCaption(caption);
  } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
    button->setText(caption);
  } else if (auto* box = qobject_cast<QGroupBox*>(control)) {
    box->setTitle(LiteralText(WithoutMnemonic(caption)));
  } else if (auto* label = qobject_cast<QLabel*>(control)) {
    label->setText(label->buddy() ? caption : WithoutMnemonic(caption));
  }
}

void ShowPicture(QWidget* control, const QVWideString& path) {
  if (auto* button = qobject_cast<CImageButton*>(control)) {
    button->SetImage(path, static_cast<unsigned long>(-1), false);
  } else if (auto* link = qobject_cast<QVHyperlink*>(control)) {
    link->SetImage(path);
  }
}

void ShowHint(QWidget* control, const QString& hint) {
  if (auto* button = qobject_cast<CImageButton*>(control)) {
    button->SetHint(hint);
  } else if (auto* link = qobject_cast<QVHyperlink*>(control)) {
    link->SetHint(hint);
  }
}

}  // namespace qv
