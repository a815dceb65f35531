#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "toolkit/Export.h"
#include "toolkit/Types.h"
#include "tools/XmlDocument.h"

namespace qv {
class DayDial;
}

/// Shows how one day is divided into time slots, on two clock faces side by side: the left one for
/// 00:00 to 12:00, the right one for 12:00 to 24:00. It takes no input, changes no document and
/// needs no service of the host.
///
/// Colours have red in the lowest byte, then green, then blue. The setters store and don't repaint:
/// call `update` behind them. Marks, labels and the ground follow the palette; in a group box the
/// ground is that of the box.
///
/// For people who can't see it, its accessible description tells the slots; a tooltip tells the one
/// under the mouse. Name, description and tooltip are in words if the host's language has them,
/// which is asked for at construction and at each `Setup` of slots; else the description is plain
/// times, as in "08:00-14:00".
class QVDISCRIMINATOR_EXPORT QVDayCtrl : public QWidget {
  Q_OBJECT

 public:
  /// Without slots, in green discs.
  explicit QVDayCtrl(CWnd* parent = nullptr);
  ~QVDayCtrl() override;

  /// Discs show in this colour what of the day no slot covers.
  void SetBkColor(COLORREF color);
  /// Rings around the discs show this colour, white at first, while bit 0 of the options is set.
  void SetColor(COLORREF color);
  /// Sets the options. Bit 0: the rings have their colour; else, as at first, that of the ground.
  void Setup(BYTE options);

  /// Takes the slots from `count` bytes, one for each minute from 00:00: 0 is part of a slot, 1
  /// ends it, any other byte is passed over. All slots are red. A slot that no byte 1 ends is one
  /// minute shorter than its bytes. No slots if `map` is null or `count` below 1.
  void Setup(const BYTE* map, int count);

  /// Takes the slots of a `day`, each in the colour of its hour type among the children of
  /// `hourTypes`, or red if that isn't found or `hourTypes` is null. No slots if `day` is null.
  /// Neither node is kept. Slots are drawn in the document's order, later ones over earlier ones;
  /// one that ends before it starts is not drawn.
  void Setup(const XmlDocument::XmlNode* day, const XmlDocument::XmlNode* hourTypes);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void DescribeSlots();
  QString SlotAt(const QPoint& place) const;

  std::unique_ptr<qv::DayDial> m_dial;
  std::vector<QVWideString> m_hourTypes;  ///< names of those of the slots, as far as known
};
