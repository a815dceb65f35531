#include "timestructure/ui/QVDayCtrl.h"

#include "host/QVLoadString.h"
#include "timestructure/DayDial.h"
#include "timestructure/SlotWords.h"
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
  m_dial->Setup(map, count);
  DescribeSlots();
}

void QVDayCtrl::Setup(const XmlDocument::XmlNode* day, const XmlDocument::XmlNode* hourTypes) {
  m_dial->Setup(day, hourTypes);
  DescribeSlots();
}

QSize QVDayCtrl::sizeHint() const { return naturalSize; }

void QVDayCtrl::paintEvent(QPaintEvent*) {
  qv::PaintOffScreen(*this, [this](const qv::OffScreenSurface& surface) {
    m_dial->Paint(surface.canvas, surface.size.cx, surface.size.cy,
                  {surface.ground, qv::InkOn(surface.ground), surface.density});
  });
}

void QVDayCtrl::DescribeSlots() {
  const QString form = Words(Text::DayDialSlot);
  const std::wstring words = qv::SlotsInWords(
      m_dial->Slots(), form.isEmpty() ? std::wstring(L"%s-%s") : form.toStdWString());
  setAccessibleDescription(words.empty() ? Words(Text::DayDialEmpty) : qv::ToQString(words));
}
