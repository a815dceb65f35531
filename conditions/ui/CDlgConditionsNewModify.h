#pragma once

#include "conditions/ConditionForm.h"
#include "toolkit/EditingDialog.h"
#include "ui_1311.h"

/// The editor of one condition: its name and its expression, whose state it tells while one types.
/// `IDOK` means that the node was changed, `IDCANCEL` also that there was nothing to change.
/// `DoModal` gives -1 also if the host has no evaluators, or no wizard.
class CDlgConditionsNewModify : public qv::EditingDialog<qv::ConditionForm> {
  Q_OBJECT

 public:
  /// `condition` is edited after `IDOK`, and may lie outside `conditions`, in which other
  /// conditions of the same name are looked for; that may be null. Both outlive the dialog.
  CDlgConditionsNewModify(CWnd* parent, qv::XmlNode* condition, qv::XmlNode* conditions);

 protected:
  std::optional<int> OnCreate() override;
  std::unique_ptr<qv::ConditionForm> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  qv::SaveEnd Save() override;
  void Leave(qv::SaveOutcome outcome) override;
  QWidget* ControlOf(qv::Field field) const override;

 private:
  void InitializeTexts();
  void InitializeData();
  qv::ExpressionProposals Proposals(const QString& text, int place) const;
  void OnChangeExpression();
  void ShowMarks(const qv::ConditionEvaluation& evaluation);
  void ShowHint(const qv::ConditionEvaluation& evaluation);
  int NotKept() const;
  void OnWizzard();
  void TakeComposed(const QString& expression);

  Ui::Template1311 m_ui;
  qv::XmlNode& m_condition;
  const qv::XmlNode* m_conditions;
};
