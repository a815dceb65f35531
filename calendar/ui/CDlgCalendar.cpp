#include "calendar/ui/CDlgCalendar.h"

#include <QDate>

#include "calendar/ui/CDlgFastSelection.h"
#include "calendar/ui/CalendarNames.h"
#include "calendar/ui/QVCalendar.h"
#include "toolkit/Caption.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "tools/Format.h"

namespace {

constexpr QSize leastSize(400, 300);
constexpr int calendarNumber = 5004;
constexpr int borderMargin = 5;

QVDateTime Today() {
  const QDate today = QDate::currentDate();
  return {today.year(), today.month(), today.day(), 0, 0, 0, 0, 0};
}

}  // namespace

CDlgCalendar::CDlgCalendar(CWnd* parent, qv::XmlNode* calendar, qv::XmlNode* dayTypes,
                           qv::XmlNode* /*hourTypes*/)
    : EditingDialog(parent), m_calendarNode(*calendar), m_dayTypes(*dayTypes) {
  Build(m_ui);
  m_list.emplace(qv::ListPart::Controls{m_ui.listDayTypes, m_ui.buttonNew, m_ui.buttonModify,
                                        m_ui.buttonRemove},
                 qv::ListPart::Verbs{});
  connect(m_ui.listDayTypes, &QTreeWidget::itemSelectionChanged, this,
          &CDlgCalendar::UpdateSelectedAction);
  connect(m_ui.buttonFastSelection, &QPushButton::clicked, this, &CDlgCalendar::OnFastSelection);
}

CDlgCalendar::~CDlgCalendar() {
  // A parent that is destroyed takes a running dialog along, whose form goes before its controls.
  delete m_calendar;
}

std::unique_ptr<qv::CalendarForm> CDlgCalendar::MakeForm() {
  return std::make_unique<qv::CalendarForm>(m_calendarNode, m_dayTypes);
}

void CDlgCalendar::OnInitDialog() {
  CreateCalendar();
  m_list->CreateColumns(Services().loadString, {Text::Name});
  m_ui.boxDayTypes->SetMargin(borderMargin);
  m_ui.boxDayTypes->SetButtonsColumns(1);
  m_ui.boxDayTypes->LinkControl(m_ui.listDayTypes, false);
  InitializeTexts();
  InitializeDayTypesList();
  setMinimumSize(leastSize);
  PositioningControls();
}

void CDlgCalendar::CreateCalendar() {
  m_calendar = new QVCalendar(this, m_form->Marks(), Today());
  m_calendar->setProperty("controlId", calendarNumber);
  for (std::size_t i = 0; i < qv::monthTexts.size(); ++i) {
    m_calendar->SetMonthName(static_cast<int>(i), qv::ToWide(Worded(qv::monthTexts[i])));
  }
  for (std::size_t i = 0; i < qv::weekdayHeadTexts.size(); ++i) {
    m_calendar->SetWeekdayName(static_cast<int>(i), qv::ToWide(Worded(qv::weekdayHeadTexts[i])));
  }
  m_calendar->SetDayTypes(m_form->Rows());
  connect(m_calendar, &QVCalendar::BrushWanted, this, &CDlgCalendar::SelectBrush);
  m_calendar->show();
  setTabOrder(m_calendar, m_ui.listDayTypes);
  m_ui.listDayTypes->setFocus();
}

void CDlgCalendar::InitializeTexts() {
  SetTitle(Text::CalendarTitle);
  SetButton(m_ui.buttonNew, Text::Add, L"NEW-16.png");
  SetButton(m_ui.buttonModify, Text::Modify, L"MODIFY-16.png");
  SetButton(m_ui.buttonRemove, Text::Remove, L"REMOVE-16.png");
  // Day types are made elsewhere.
  for (QWidget* button : {m_ui.buttonNew, m_ui.buttonModify, m_ui.buttonRemove}) {
    button->hide();
  }
  m_list->SetEmptyHint(WhereDayTypesAreMade());
  SetButton(m_ui.buttonFastSelection, Text::FastSelectionButton, L"OPTIONS-16.png");
  SetLabel(m_ui.boxDayTypes, m_ui.listDayTypes, Text::DayTypes);
  SetOkCancel();
}

QString CDlgCalendar::WhereDayTypesAreMade() const {
  const std::wstring hint = qv::OwnText(Services().loadString, Text::NoDayTypesYet).toStdWString();
  const std::wstring button = Worded(Text::DayTypesLink).toStdWString();
  return qv::ToQString(qv::Format(hint, {button.c_str()}));
}

void CDlgCalendar::InitializeDayTypesList() {
  std::vector<qv::ListRow> rows;
  for (const qv::ColouredType& type : m_form->Rows()) {
    rows.push_back(m_list->ColouredRow({qv::ToQString(type.name)}, type.colour));
  }
  m_list->Show(rows, std::nullopt);
  UpdateSelectedAction();
  // Nothing has been chosen yet, not even to erase.
  m_action.clear();
}

void CDlgCalendar::SelectBrush(int row) {
  if (row < 0) {
    m_ui.listDayTypes->clearSelection();
  } else if (row < m_ui.listDayTypes->topLevelItemCount()) {
    m_list->Select(row);
  }
}

void CDlgCalendar::UpdateSelectedAction() {
  const auto row = m_list->SelectedRow();
  m_form->SelectRow(row);
  if (m_calendar) {
    m_calendar->ShowBrush();
  }
  m_ui.swatchAction->setVisible(row.has_value());
  m_ui.swatchAction->SetColour(m_form->Marks().CurrentBrush().colour);
  m_action = row ? qv::ToQString(m_form->Marks().CurrentBrush().text) : Worded(Text::UnmarkDates);
  PositioningControls();
}

void CDlgCalendar::OnFastSelection() {
  m_form->OnFastSelection(m_calendar->GetYear(), [this] { return AskForRule(); });
  m_calendar->ShowMarks();
}

std::optional<qv::FastSelectionChoice> CDlgCalendar::AskForRule() {
  std::vector<DWORD> colours;
  std::vector<QVWideString> names;
  for (const qv::ColouredType& type : m_form->Rows()) {
    colours.push_back(type.colour);
    names.push_back(type.name);
  }
  CDlgFastSelection dialog(this, &colours, &names, m_calendar->GetYear());
  if (dialog.DoModal() != IDOK) {
    return std::nullopt;
  }
  return qv::FastSelectionChoice{dialog.m_nDayType, {dialog.m_dwWeekDays, dialog.m_dwMonths}};
}

void CDlgCalendar::PositioningControls() {
  QVHoritzontalLayout action(this);
  if (!m_ui.swatchAction->isHidden()) {
    action.AddControl(m_ui.swatchAction, 10);
    action.AddGap(LayoutSizeStandard);
  }
  action.AddControl(m_ui.labelAction, m_ui.swatchAction->isHidden() ? 100 : 90);
  QVVerticalLayout left(this);
  left.AddControl(m_calendar, 100);
  QVVerticalLayout right(this);
  right.AddLayout(&action, LayoutSizeLabel);
  right.AddGap(LayoutSizeStandard);
  right.AddControlWithBox(m_ui.listDayTypes, m_ui.boxDayTypes, 100, LayoutSizeStandard, true);
  right.AddGap(LayoutSizeStandard);
  right.AddControl(m_ui.buttonFastSelection, LayoutSizeStandard);
  QVHoritzontalLayout main(this);
  main.AddLayout(&left, 80);
  main.AddGap(LayoutSizeStandard);
  main.AddLayout(&right, 20);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(&main, 100);
  column.Add(&buttons, LayoutSizeStandard);
  setUpdatesEnabled(false);
  column.Layout(rect());
  ShowAction();
  setUpdatesEnabled(true);
  m_list->ResizeColumns();
  update();
}

void CDlgCalendar::ShowAction() {
  QLabel& label = *m_ui.labelAction;
  const QString shown = label.fontMetrics().elidedText(m_action, Qt::ElideRight, label.width());
  label.setText(shown);
  qv::SetPlainToolTip(&label, shown == m_action ? QString() : m_action);
}

void CDlgCalendar::OnDestroy() {
  // The list's selection, which goes with its rows, is nobody's brush any more.
  const QSignalBlocker silent(m_ui.listDayTypes);
  // It shows the marks of the form, which goes now.
  delete m_calendar;
  m_calendar = nullptr;
  m_list->Clear();
  EditingDialog::OnDestroy();
}
