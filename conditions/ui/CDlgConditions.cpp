#include "conditions/ui/CDlgConditions.h"

#include <QMenu>
#include <QShortcut>
#include <algorithm>

#include "conditions/ConditionTrial.h"
#include "conditions/ConditionWords.h"
#include "conditions/ui/CDlgConditionsNewModify.h"
#include "conditions/ui/ExpressionServices.h"
#include "conditions/ui/TrialReport.h"
#include "toolkit/ControlCaption.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace {

constexpr QSize leastSize(150, 200);

qv::ListRow Shown(const qv::ConditionRow& row) {
  return {{qv::ToQString(row.name), qv::ToQString(row.expression)}};
}

}  // namespace

CDlgConditions::CDlgConditions(CWnd* parent, qv::XmlNode* conditions)
    : EditingDialog(parent), m_conditions(conditions) {
  Build(m_ui);
  m_list.emplace(
      qv::ListPart::Controls{m_ui.listConditions, m_ui.buttonAdd, m_ui.buttonModify,
                             m_ui.buttonRemove},
      qv::ListPart::Verbs{[this] { OnAdd(); }, [this] { OnModify(); }, [this] { OnRemove(); }});
  m_ui.listConditions->SetRowHint([this](int row) { return RowHint(row); });
  connect(m_ui.listConditions, &qv::ReportList::itemSelectionChanged, this,
          &CDlgConditions::EnableDisableButtons);
  connect(m_ui.listConditions, &qv::ReportList::MenuWanted, this, &CDlgConditions::OnMenu);
  ConnectArrow(m_ui.buttonUp, Qt::Key_Up, &CDlgConditions::OnUp);
  ConnectArrow(m_ui.buttonDown, Qt::Key_Down, &CDlgConditions::OnDown);
}

CDlgConditions::~CDlgConditions() = default;

void CDlgConditions::ConnectArrow(QAbstractButton* arrow, Qt::Key key,
                                  void (CDlgConditions::*run)()) {
  connect(arrow, &QAbstractButton::clicked, this, run);
  // A shortcut of the button itself would swallow keys that repeat faster than its animation.
  const auto* keys = new QShortcut(QKeyCombination(Qt::AltModifier, key), this);
  connect(keys, &QShortcut::activated, arrow, &QAbstractButton::click);
}

bool CDlgConditions::OnSizing(unsigned side, RECT* rect) {
  return CheckDialogSize(side, rect, leastSize.width(), leastSize.height());
}

std::optional<int> CDlgConditions::OnCreate() {
  m_drivers = QVDriverSupport::Get();
  return qv::HasExpressionServices() ? EditingDialog::OnCreate() : std::optional(-1);
}

std::unique_ptr<qv::ConditionList> CDlgConditions::MakeForm() {
  return std::make_unique<qv::ConditionList>(qv::OrderedConditions(*m_conditions), Boxes());
}

void CDlgConditions::OnInitDialog() {
  InitializeTexts();
  m_list->CreateColumns(Services().loadString, {Text::Name, Text::Condition});
  FillList(m_form->RowToSelect(L""));
  PositioningControls();
}

void CDlgConditions::InitializeTexts() {
  SetLabel(m_ui.boxConditions, m_ui.listConditions, Text::ConditionBox);
  m_list->InitializeButtons(Services());
  InitializeArrow(m_ui.buttonUp, Text::AltUpKey, L"NAVIGATEUP-16.png");
  InitializeArrow(m_ui.buttonDown, Text::AltDownKey, L"NAVIGATEDOWN-16.png");
  SetOkCancel(Text::ConfirmOk, Text::ConfirmCancel);
  SetTitle(Text::ConditionListTitle);
}

void CDlgConditions::InitializeArrow(QWidget* arrow, Text hint, const wchar_t* picture) {
  qv::ShowCaption(arrow, {});
  qv::ShowPicture(arrow, Services().setup.getImageFilePath() + picture);
  qv::ShowHint(arrow, qv::OwnText(Services().loadString, hint));
}

void CDlgConditions::FillList(std::optional<int> rowToSelect) {
  std::vector<qv::ListRow> rows;
  for (const qv::ConditionRow& row : m_form->Rows()) {
    rows.push_back(Shown(row));
  }
  m_list->Show(rows, rowToSelect);
  EnableDisableButtons();
}

void CDlgConditions::EnableDisableButtons() {
  const auto selected = m_list->SelectedRows();
  const bool isOne = selected.size() == 1;
  const int last = static_cast<int>(m_form->Rows().size()) - 1;
  m_list->EnableDisableButtons();
  m_list->Enable(m_ui.buttonUp, isOne && selected.front() != 0);
  m_list->Enable(m_ui.buttonDown, isOne && selected.front() != last);
}

void CDlgConditions::PositioningControls() {
  QVVerticalLayout arrows(this);
  arrows.AddGap(50);
  arrows.AddControl(m_ui.buttonUp, LayoutSizeStandard);
  arrows.AddGap(LayoutSizeStandard);
  arrows.AddControl(m_ui.buttonDown, LayoutSizeStandard);
  arrows.AddGap(50);
  QVHoritzontalLayout verbs(this);
  verbs.AddControl(m_ui.buttonAdd, 33);
  verbs.AddGap(LayoutSizeStandard);
  verbs.AddControl(m_ui.buttonModify, 34);
  verbs.AddGap(LayoutSizeStandard);
  verbs.AddControl(m_ui.buttonRemove, 33);
  QVVerticalLayout list(this);
  list.AddControl(m_ui.listConditions, 100);
  list.AddGap(LayoutSizeStandard);
  list.AddLayout(&verbs, LayoutSizeStandard);
  QVHoritzontalLayout box(this);
  box.SetBoxControl(m_ui.boxConditions, LayoutSizeStandard, true);
  box.AddLayout(&list, 90);
  box.AddGap(LayoutSizeStandard);
  box.AddLayout(&arrows, 10);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(&box, 100);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
  m_list->ResizeColumns();
  EnableDisableButtons();
}

qv::RunEditor CDlgConditions::Editor() {
  return [this](qv::XmlNode& condition) {
    CDlgConditionsNewModify editor(this, &condition, m_conditions);
    return qv::RunDialog(editor);
  };
}

void CDlgConditions::OnAdd() {
  if (!m_form->OnAdd(Editor())) {
    return;
  }
  m_list->AppendRow(Shown(m_form->Rows().back()));
  EnableDisableButtons();
  m_ui.listConditions->setFocus();
}

void CDlgConditions::OnModify() {
  const auto row = m_list->SelectedRow();
  if (!m_form->OnModify(row, Editor())) {
    return;
  }
  m_list->SetTexts(*row, Shown(m_form->Rows()[static_cast<std::size_t>(*row)]).texts);
  m_ui.listConditions->setFocus();
}

void CDlgConditions::OnRemove() {
  const auto rows = m_list->SelectedRows();
  const qv::ListEnd end = m_form->OnRemove(rows);
  if (!end.refilled) {
    return;
  }
  std::for_each(rows.rbegin(), rows.rend(), [this](int row) { m_list->RemoveRow(row); });
  if (end.rowToSelect) {
    m_list->Select(*end.rowToSelect);
  }
  m_list->ResizeColumns();
  EnableDisableButtons();
}

void CDlgConditions::OnUp() { Follow(m_form->OnUp(m_list->SelectedRow())); }

void CDlgConditions::OnDown() { Follow(m_form->OnDown(m_list->SelectedRow())); }

void CDlgConditions::Follow(const qv::ListEnd& end) {
  if (end.refilled) {
    FillList(end.rowToSelect);
  }
}

QString CDlgConditions::RowHint(int row) const {
  const qv::ConditionRow& shown = m_form->Rows()[static_cast<std::size_t>(row)];
  return qv::ToQString(
      PresentResultTold(qv::TryCondition(*shown.node, *m_drivers), Services().loadString));
}

void CDlgConditions::AddCommand(QMenu& menu, Text text, const QKeySequence& key,
                                QAbstractButton* button) {
  if (Services().loadString.IsMute(text)) {
    return;
  }
  const QString keys = key.isEmpty() ? QString() : '\t' + key.toString(QKeySequence::NativeText);
  QAction* action = menu.addAction(qv::HostCaption(Services().loadString, text) + keys);
  action->setEnabled(button->isEnabled());
  connect(action, &QAction::triggered, button, &QAbstractButton::click);
}

void CDlgConditions::OnMenu(const QPoint& globalPosition) {
  QMenu menu(this);
  AddCommand(menu, Text::Add, Qt::Key_Insert, m_ui.buttonAdd);
  AddCommand(menu, Text::Modify, {}, m_ui.buttonModify);
  AddCommand(menu, Text::Remove, Qt::Key_Delete, m_ui.buttonRemove);
  AddCommand(menu, Text::ConditionUp, Qt::ALT | Qt::Key_Up, m_ui.buttonUp);
  AddCommand(menu, Text::ConditionDown, Qt::ALT | Qt::Key_Down, m_ui.buttonDown);
  if (!Services().loadString.IsMute(Text::TryConditions)) {
    menu.addSeparator();
    QAction* attempt = menu.addAction(qv::HostCaption(Services().loadString, Text::TryConditions));
    attempt->setEnabled(!m_form->Rows().empty());
    connect(attempt, &QAction::triggered, this, &CDlgConditions::OnTry);
  }
  menu.exec(globalPosition);
}

void CDlgConditions::OnTry() {
  qv::TrialReport report(this, Services().loadString,
                         qv::TryConditions(qv::OrderedConditions(*m_conditions), *m_drivers));
  report.exec();
}

void CDlgConditions::OnDestroy() {
  m_list->Clear();
  EditingDialog::OnDestroy();
}
