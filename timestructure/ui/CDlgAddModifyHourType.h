#pragma once

#include "timestructure/HourTypeForm.h"
#include "toolkit/EditingDialog.h"
#include "ui_1305.h"

/// The editor of one hour type: name, colour, and on embedded installations the value.
class CDlgAddModifyHourType : public qv::EditingDialog<qv::HourTypeForm> {
  Q_OBJECT

 public:
  /// `hour` is edited after `IDOK`, and may lie outside `hourTypes`, in which other hour types of
  /// the same name or colour are looked for. Both outlive the dialog.
  CDlgAddModifyHourType(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* hour);

 protected:
  std::unique_ptr<qv::HourTypeForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  qv::SaveEnd Save() override;

 private:
  void InitializeTexts();
  void InitializeData();
  void ShowValueField();
  void OnColor();

  Ui::Template1305 m_ui;
  qv::HourTypes m_hourTypes;
  qv::XmlNode& m_hour;
};
