#pragma once

#include <memory>
#include <optional>

#include "timestructure/TimeSlotForm.h"
#include "toolkit/CDialog.h"
#include "toolkit/MessageBoxes.h"

class QVHoritzontalLayout;

namespace qv {
class TimeGridView;
}

/// The editor of one slot of a day type: its hour type, and its times by number or on a grid with
/// the mouse.
class CDlgAddModifyTimeSlot : public CDialog {
  Q_OBJECT

 public:
  /// `slot` is edited after `IDOK`; `hourTypes` gains what the user adds there at once, so the
  /// caller hands over a copy. `dayColor` is the ground of the grid.
  CDlgAddModifyTimeSlot(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* slot, COLORREF dayColor);
  ~CDlgAddModifyTimeSlot() override;

  /// Whether the user entered anything. To be read after `DoModal`.
  bool m_modified = false;

 protected:
  std::optional<int> OnCreate() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;
  void OnDestroy() override;

  bool eventFilter(QObject* edit, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  struct FieldControls {
    qv::TimeField field;
    int edit;
    int spin;
  };
  static const FieldControls fields[];

  void Connect();
  void InitializeTexts();
  QString NameOf(qv::TimeField field) const;
  void OnAddHourType();
  void ShowHourTypes();
  void ShowTimes();
  void ShowGrid();
  void AddTimes(QVHoritzontalLayout& row, qv::SlotEdge edge) const;
  std::optional<int> MinuteAt(const QMouseEvent& event) const;

  qv::XmlNode* m_hourTypes;
  qv::XmlNode* m_slot;
  COLORREF m_dayColor;
  qv::TimeGridView* m_grid;
  std::unique_ptr<qv::MessageBoxes> m_boxes;
  std::unique_ptr<qv::TimeSlotForm> m_form;
};
