#pragma once

#include "timestructure/DayTypeForm.h"
#include "toolkit/EditingDialog.h"
#include "toolkit/ListPart.h"
#include "ui_1303.h"

class QVDayCtrl;

/// The editor of one day type: name, colour, and its slots, which a dial shows.
class CDlgAddModifyDayType : public qv::EditingDialog<qv::DayTypeForm> {
  Q_OBJECT

 public:
  /// `day` is edited: its slots at once, name and colour after `IDOK`; so the caller hands over a
  /// new node or a copy. Others of the same name or colour are looked for in `dayTypes`.
  /// `hourTypes` gains at once what the user adds in the editor of a slot.
  CDlgAddModifyDayType(CWnd* parent, qv::XmlNode* day, qv::XmlNode* dayTypes,
                       qv::XmlNode* hourTypes);
  ~CDlgAddModifyDayType() override;

 protected:
  std::unique_ptr<qv::DayTypeForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  qv::SaveEnd Save() override;
  void MakeRowCurrent(int row) override { m_list->MakeCurrent(row); }
  void OnDestroy() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void InitializeTexts();
  void InitializeList();
  void FillList(const qv::ListEnd& end = {});
  void ShowSlotsInDial();
  void UpdateDial();
  void ShowColour();
  void OnColor();
  void OnAdd();
  void OnModify();
  void OnRemove();
  void Follow(const qv::ListEnd& end);
  qv::DayTypeForm::RunSlotEditor Editor();

  Ui::Template1303 m_ui;
  qv::XmlNode& m_day;
  qv::DayTypes m_dayTypes;
  qv::HourTypes m_hourTypes;
  QVDayCtrl* m_dial;
  std::optional<qv::ListPart> m_list;
};
