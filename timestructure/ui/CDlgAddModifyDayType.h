#pragma once

#include <memory>
#include <optional>

#include "timestructure/DayTypeForm.h"
#include "timestructure/ui/ListDialog.h"
#include "toolkit/MessageBoxes.h"

class QVDayCtrl;

/// The editor of one day type: name, colour, and its slots, which a dial shows.
class CDlgAddModifyDayType : public qv::ListDialog {
  Q_OBJECT

 public:
  /// `day` is edited: its slots at once, name and colour after `IDOK`; so the caller hands over a
  /// new node or a copy. Others of the same name or colour are looked for in `dayTypes`.
  /// `hourTypes` gains at once what the user adds in the editor of a slot.
  CDlgAddModifyDayType(CWnd* parent, qv::XmlNode* day, qv::XmlNode* dayTypes,
                       qv::XmlNode* hourTypes);
  ~CDlgAddModifyDayType() override;

  /// Whether the user changed anything. To be read after `DoModal`.
  bool m_modified = false;

 protected:
  std::optional<int> OnCreate() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;
  void OnDestroy() override;
  void OnAdd() override;
  void OnModify() override;
  void OnRemove() override;
  void ResizeColumns() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void InitializeTexts();
  void FillList(std::optional<int> select);
  void UpdateDial();
  void ShowColour();
  void OnColor();
  void Follow(const qv::ListEnd& end);
  qv::DayTypeForm::RunSlotEditor Editor();

  qv::XmlNode* m_day;
  qv::XmlNode* m_dayTypes;
  qv::XmlNode* m_hourTypes;
  QVDayCtrl* m_dial;
  std::unique_ptr<qv::MessageBoxes> m_boxes;
  std::unique_ptr<qv::DayTypeForm> m_form;
};
