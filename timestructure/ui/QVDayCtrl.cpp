#include "timestructure/ui/QVDayCtrl.h"

#include <QHelpEvent>
#include <QToolTip>

#include "host/QVLoadString.h"
#include "timestructure/DayDial.h"
#include "timestructure/DialHit.h"
#include "timestructure/SlotWords.h"
#include "toolkit/Caption.h"
#include "toolkit/OffScreen.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace {

/// Two faces of 100 pixels with their labels, which are broader than the margin left to them.
constexpr QSize naturalSize(280, 128);

/// The host's wording, or nothing if it has none, which includes a host without texts.
QString Words(Text text) {
  const QVLoadString* loadString = QVLoadString::Get();
  return loadString ? qv::OwnText(*loadString, text) : QString();
}

/// The forms in which slots are told: plain ones where the host has no words.
qv::SlotForms Forms() {
  qv::SlotForms forms;
  if (const QString times = Words(Text::DayDialSlot); !times.isEmpty()) {
    forms.times = times.toStdWString();
  }
  forms.typed = Words(Text::DayDialTyped).toStdWString();
  return forms;
}

}  // namespace

QVDayCtrl::QVDayCtrl(CWnd* parent) : QWidget(parent), m_dial(std::make_unique<qv::DayDial>()) {
  // Each paint covers all of it. Nothing is erased before, and a parent that refreshes the dial
  // when it is painted isn't painted again for that.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(Words(Text::DayDialName));
  DescribeSlots();
}

QVDayCtrl::~QVDayCtrl() = default;

void QVDayCtrl::SetBkColor(COLORREF color) { m_dial->SetBkColor(color); }

void QVDayCtrl::SetColor(COLORREF color) { m_dial->SetColor(color); }

void QVDayCtrl::Setup(BYTE options) { m_dial->Setup(options); }

void QVDayCtrl::Setup(const BYTE* map, int count) {
  m_hourTypes.clear();
  m_dial->Setup(map, count);
  DescribeSlots();
}

void QVDayCtrl::Setup(const XmlDocument::XmlNode* day, const XmlDocument::XmlNode* hourTypes) {
  m_dial->Setup(day, hourTypes);
  m_hourTypes = qv::HourTypesOfSlots(day, hourTypes);
  DescribeSlots();
}

QSize QVDayCtrl::sizeHint() const { return naturalSize; }

void QVDayCtrl::paintEvent(QPaintEvent*) {
  qv::PaintOffScreen(*this, [this](const qv::OffScreenSurface& surface) {
    m_dial->Paint(surface.canvas, surface.size.cx, surface.size.cy,
                  {surface.ground, qv::InkOn(surface.ground), surface.density});
  });
}

bool QVDayCtrl::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto& help = static_cast<const QHelpEvent&>(*event);
  QToolTip::showText(help.globalPos(), qv::PlainToolTip(SlotAt(help.pos())), this);
  return true;
}

QString QVDayCtrl::SlotAt(const QPoint& place) const {
  const auto minute = qv::MinuteAt({place.x(), place.y()}, width(), height());
  const auto slot = minute ? qv::SlotAt(*minute, m_dial->Slots()) : std::nullopt;
  if (!slot) {
    return {};
  }
  const QVWideString hourType = *slot < m_hourTypes.size() ? m_hourTypes[*slot] : QVWideString();
  return qv::ToQString(qv::SlotInWords(m_dial->Slots()[*slot], hourType, Forms()));
}

void QVDayCtrl::DescribeSlots() {
  const std::wstring words = qv::SlotsInWords(m_dial->Slots(), m_hourTypes, Forms());
  setAccessibleDescription(words.empty() ? Words(Text::DayDialEmpty) : qv::ToQString(words));
}
