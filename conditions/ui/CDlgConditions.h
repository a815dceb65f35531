#pragma once

#include <QKeySequence>
#include <optional>

#include "conditions/ConditionList.h"
#include "host/QVDriverSupport.h"
#include "toolkit/CheckDialogSize.h"
#include "toolkit/EditingDialog.h"
#include "toolkit/ListPart.h"
#include "ui_1310.h"

class QMenu;

/// The conditions of a discriminator, in the order in which they are tried. Works on the node that
/// it is given: the caller hands over a copy, and takes it back after `IDOK`. `DoModal` gives -1
/// also if the host has no evaluators, or no wizard.
class CDlgConditions : public qv::EditingDialog<qv::ConditionList> {
  Q_OBJECT

 public:
  /// `conditions` outlives the dialog.
  CDlgConditions(CWnd* parent, qv::XmlNode* conditions);
  ~CDlgConditions() override;

  /// For hosts that are asked while the window is sized: keeps the proposed `rect` at no less than
  /// 150 by 200 pixels, as `CheckDialogSize` does. True if it was changed.
  static bool OnSizing(unsigned side, RECT* rect);

 protected:
  std::optional<int> OnCreate() override;
  std::unique_ptr<qv::ConditionList> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnDestroy() override;

 private:
  void ConnectArrow(QAbstractButton* arrow, Qt::Key key, void (CDlgConditions::*run)());
  void InitializeTexts();
  void InitializeArrow(QWidget* arrow, Text hint, const wchar_t* picture);
  void FillList(std::optional<int> rowToSelect);
  void EnableDisableButtons();
  qv::RunEditor Editor();
  void OnAdd();
  void OnModify();
  void OnRemove();
  void OnUp();
  void OnDown();
  void Follow(const qv::ListEnd& end);
  QString RowHint(int row) const;
  void OnMenu(const QPoint& globalPosition);
  void AddCommand(QMenu& menu, Text text, const QKeySequence& key, QAbstractButton* button);
  void OnTry();

  Ui::Template1310 m_ui;
  std::optional<qv::ListPart> m_list;
  qv::XmlNode* m_conditions;
  const QVDriverSupport* m_drivers = nullptr;
};
