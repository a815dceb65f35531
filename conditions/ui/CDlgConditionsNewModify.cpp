#include "conditions/ui/CDlgConditionsNewModify.h"

#include <algorithm>

#include "conditions/ConditionEvaluator.h"
#include "conditions/ConditionWords.h"
#include "conditions/ui/ExpressionServices.h"
#include "toolkit/Caption.h"
#include "toolkit/ControlCaption.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "toolkit/WidePlaces.h"
#include "tools/Format.h"

namespace {

constexpr int buttonShare = 10;
constexpr int readableInExpressions = 4;
constexpr int purposeCondition = 13;

}  // namespace

CDlgConditionsNewModify::CDlgConditionsNewModify(CWnd* parent, qv::XmlNode* condition,
                                                 qv::XmlNode* conditions)
    : EditingDialog(parent), m_condition(*condition), m_conditions(conditions) {
  Build(m_ui);
  connect(m_ui.editExpression, &QLineEdit::textChanged, this,
          &CDlgConditionsNewModify::OnChangeExpression);
  connect(m_ui.buttonWizzard, &QAbstractButton::clicked, this, &CDlgConditionsNewModify::OnWizzard);
}

std::optional<int> CDlgConditionsNewModify::OnCreate() {
  return qv::HasExpressionServices() ? EditingDialog::OnCreate() : std::optional(-1);
}

std::unique_ptr<qv::ConditionForm> CDlgConditionsNewModify::MakeForm() {
  return std::make_unique<qv::ConditionForm>(m_condition, m_conditions, *QVDriverSupport::Get());
}

void CDlgConditionsNewModify::OnInitDialog() {
  qv::LimitTyping(m_ui.editName, 0);
  qv::LimitTyping(m_ui.editExpression, qv::ConditionForm::longestTypedExpression);
  m_ui.editExpression->SetProposals(
      [this](const QString& text, int place) { return Proposals(text, place); },
      qv::OwnText(Services().loadString, Text::ExpressionProposals));
  InitializeTexts();
  InitializeData();
  OnChangeExpression();
  PositioningControls();
}

void CDlgConditionsNewModify::InitializeTexts() {
  SetTitle(m_form->Name().Empty() ? Text::AddConditionTitle : Text::ModifyConditionTitle);
  SetLabel(m_ui.labelExpression, m_ui.editExpression, Text::Condition);
  SetLabel(m_ui.labelName, m_ui.editName, Text::Name);
  qv::ShowCaption(m_ui.buttonWizzard, {});
  qv::ShowPicture(m_ui.buttonWizzard, Services().setup.getImageFilePath() + L"WIZZARD-16.png");
  qv::ShowHint(m_ui.buttonWizzard, qv::OwnText(Services().loadString, Text::ComposeExpression));
  SetOkCancel(Text::ConfirmOk, Text::ConfirmCancel);
}

void CDlgConditionsNewModify::InitializeData() {
  qv::SetLoadedText(m_ui.editExpression, qv::ToQString(m_form->Expression()));
  m_ui.editExpression->end(false);  // where the wizard goes on
  qv::SetLoadedName(m_ui.editName, qv::ToQString(m_form->Name()));
}

qv::ExpressionProposals CDlgConditionsNewModify::Proposals(const QString& text, int place) const {
  return qv::NewConditionEvaluator(*QVDriverSupport::Get(), qv::ToWide(text))->ProposalsAt(place);
}

void CDlgConditionsNewModify::PositioningControls() {
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::WideMargins);
  qv::DialogColumn column(this);
  column.AddLabelled(m_ui.editName, m_ui.labelName);
  column.AddControlAndLabelAndButton(m_ui.editExpression, m_ui.labelExpression, m_ui.buttonWizzard,
                                     LayoutSizeEdit, buttonShare, qv::labelDistance);
  column.AddGap(LayoutSizeStandard);
  column.Add(&buttons, LayoutSizeStandard);
  setFixedHeight(column.FixedSize().height());
  column.Layout(rect());
}

void CDlgConditionsNewModify::OnChangeExpression() {
  const auto evaluation = m_form->Status(qv::ToWide(m_ui.editExpression->text()));
  const QString addition = qv::ToQString(qv::CaptionAddition(evaluation, Services().loadString));
  qv::ShowCaption(m_ui.labelExpression, qv::HostCaption(Services().loadString, Text::Condition) +
                                            qv::LiteralText(addition));
  ShowMarks(evaluation);
  ShowHint(evaluation);
}

int CDlgConditionsNewModify::NotKept() const {
  const int length = qv::WideLength(m_ui.editExpression->text());
  return std::max(length - qv::ConditionForm::longestKept, 0);
}

void CDlgConditionsNewModify::ShowMarks(const qv::ConditionEvaluation& evaluation) {
  using Kind = qv::ExpressionMark::Kind;
  std::vector<qv::ExpressionMark> marks;
  if (evaluation.fault && !qv::IsCondition(evaluation.state)) {
    marks.push_back({evaluation.fault->place, Kind::Fault});
  }
  if (NotKept() > 0) {
    marks.push_back({{qv::ConditionForm::longestKept, NotKept()}, Kind::NotKept});
  }
  m_ui.editExpression->SetMarks(std::move(marks));
}

void CDlgConditionsNewModify::ShowHint(const qv::ConditionEvaluation& evaluation) {
  const auto& loadString = Services().loadString;
  QStringList lines(qv::ToQString(qv::PresentResultTold(evaluation, loadString)));
  if (NotKept() > 0) {
    const QVWideString wording = qv::ToWide(qv::OwnText(loadString, Text::ExpressionNotKept));
    lines << qv::ToQString(qv::Format(wording.ToView(), {qv::ConditionForm::longestKept}));
  }
  lines.removeAll(QString());
  qv::SetPlainToolTip(m_ui.editExpression, lines.join(QLatin1Char('\n')));
}

void CDlgConditionsNewModify::OnWizzard() {
  const qv::ExpressionPlace selection = m_ui.editExpression->Selection();
  const auto wizzard = QVInformes::Get()->NewWizzard(
      this, QVInformes::VariableClasses(1U << readableInExpressions), false, purposeCondition);
  wizzard->SetExpression(qv::ToWide(m_ui.editExpression->text()), selection.start,
                         selection.start + selection.length);
  if (wizzard->DoModal() == IDOK) {
    TakeComposed(qv::ToQString(wizzard->m_expression));
  }
}

/// Takes all of a text, as one step of undo, and lets the user go on in it.
void CDlgConditionsNewModify::TakeComposed(const QString& expression) {
  auto* edit = m_ui.editExpression;
  const QValidator* limit = edit->validator();
  edit->setValidator(nullptr);
  edit->Replace({0, qv::WideLength(edit->text())}, expression, qv::WideLength(expression));
  edit->setValidator(limit);
  edit->setFocus();
}

QWidget* CDlgConditionsNewModify::ControlOf(qv::Field field) const {
  return field == qv::Field::Name ? static_cast<QWidget*>(m_ui.editName) : m_ui.editExpression;
}

qv::SaveEnd CDlgConditionsNewModify::Save() {
  const QVWideString expression = qv::ToWide(m_ui.editExpression->text());
  return m_form->Save(qv::ToWide(m_ui.editName->text()), expression);
}

void CDlgConditionsNewModify::Leave(qv::SaveOutcome outcome) {
  if (outcome == qv::SaveOutcome::Saved) {
    EditingDialog::Leave(outcome);
  } else {
    OnCancel();
  }
}
