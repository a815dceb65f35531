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
  // The faces stand on the ground of the dialog itself. Sizes stay those of the layout on a dense
  // screen, where the same picture has more dots: labels of 14 dots could not be read there.
  qv::PaintOffScreen(*this, [this](qv::Canvas& canvas, qv::Colour ground) {
    m_dial->Paint(canvas, width(), height(), {ground, qv::InkOn(ground)});
  });
}

void QVDayCtrl::DescribeSlots() {
  const QString form = Words(Text::DayDialSlot);
  const std::wstring words = qv::SlotsInWords(
      m_dial->Slots(), form.isEmpty() ? std::wstring(L"%s-%s") : form.toStdWString());
  setAccessibleDescription(words.empty() ? Words(Text::DayDialEmpty) : qv::ToQString(words));
}
