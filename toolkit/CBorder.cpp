#include "toolkit/CBorder.h"

#include <QEvent>

#include "toolkit/GroupBoxMargins.h"

void CBorder::SetMargin(int pixels) {
  m_margin = pixels;
  Place();
}

void CBorder::LinkControl(QWidget* control, bool places) {
  if (m_control) {
    m_control->removeEventFilter(this);
  }
  m_control = control;
  m_places = places;
  if (control) {
    control->installEventFilter(this);
    setVisible(!control->isHidden());
    setEnabled(control->isEnabled());
  }
  Place();
}

void CBorder::Place() {
  if (m_places && m_control) {
    m_control->setGeometry(rect().marginsRemoved(qv::GroupBoxMargins(this, m_margin, true)));
  }
}

void CBorder::resizeEvent(QResizeEvent* event) {
  QGroupBox::resizeEvent(event);
  Place();
}

bool CBorder::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
      setVisible(!m_control->isHidden());
      break;
    case QEvent::EnabledChange:
      setEnabled(m_control->isEnabled());
      break;
    default:
      break;
  }
  return QGroupBox::eventFilter(watched, event);
}
