#pragma once

#include <memory>
#include <optional>

#include "timestructure/HourTypeForm.h"
#include "toolkit/CDialog.h"
#include "toolkit/MessageBoxes.h"

class QVVerticalLayout;

/// The editor of one hour type: name, colour, and on embedded installations the value.
class CDlgAddModifyHourType : public CDialog {
  Q_OBJECT

 public:
  /// `hour` is edited after `IDOK`, and may lie outside `hourTypes`, in which other hour types of
  /// the same name or colour are looked for. Both outlive the dialog.
  CDlgAddModifyHourType(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* hour);
  ~CDlgAddModifyHourType() override;

  /// Whether a colour was chosen, or the saved hour type differs from what was opened. To be read
  /// after `DoModal`.
  bool m_modified = false;

 protected:
  std::optional<int> OnCreate() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;
  void OnDestroy() override;

 private:
  void InitializeTexts();
  void InitializeData();
  void ShowValueField();
  void AddFields(QVVerticalLayout& column) const;
  void OnColor();

  qv::XmlNode* m_hourTypes;
  qv::XmlNode* m_hour;
  std::unique_ptr<qv::MessageBoxes> m_boxes;
  std::unique_ptr<qv::HourTypeForm> m_form;
};
