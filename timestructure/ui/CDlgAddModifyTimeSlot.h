#pragma once

#include <array>
#include <optional>

#include "timestructure/TimeGrid.h"
#include "timestructure/TimeSlotForm.h"
#include "toolkit/EditingDialog.h"
#include "tools/Colour.h"
#include "ui_1304.h"

class QVHoritzontalLayout;

namespace qv {
class TimeGridView;
}

/// The editor of one slot of a day type: its hour type, and its times by number or on a grid with
/// the mouse.
class CDlgAddModifyTimeSlot : public qv::EditingDialog<qv::TimeSlotForm> {
  Q_OBJECT

 public:
  /// `slot` is edited after `IDOK`; `hourTypes` gains what the user adds there at once, so the
  /// caller hands over a copy. `dayColor` is the ground of the grid.
  CDlgAddModifyTimeSlot(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* slot, COLORREF dayColor);
  ~CDlgAddModifyTimeSlot() override;

 protected:
  std::unique_ptr<qv::TimeSlotForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  qv::SaveEnd Save() override { return m_form->Save(); }

  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  /// A field of a time with its controls.
  struct FieldControls {
    qv::TimeField field;
    QLineEdit* edit;
    qv::SpinButtons* spin;
  };

  void Connect(const FieldControls& controls);
  void InitializeTexts();
  QString UnitOf(qv::TimeField field) const;
  QString NameOf(qv::TimeField field) const;
  void OnAddHourType();
  void OnSelchangeType(int index);
  void ShowHourTypes();
  void ShowTimes();
  void ShowTime(const FieldControls& controls);
  qv::TimeGrid::Picture GridPicture() const;
  void AddTimes(QVHoritzontalLayout& row, qv::SlotEdge edge) const;
  std::optional<int> MinuteAt(const QMouseEvent& event) const;
  void ShowTimeUnder(const QMouseEvent& event);

  Ui::Template1304 m_ui;
  std::array<FieldControls, 4> m_fields;
  qv::HourTypes m_hourTypes;
  qv::XmlNode& m_slot;
  qv::Colour m_dayColour;
  qv::TimeGridView* m_grid;
};
