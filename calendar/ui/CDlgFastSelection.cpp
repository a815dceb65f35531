#include "calendar/ui/CDlgFastSelection.h"

#include <algorithm>

#include "calendar/FastSelection.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Fields.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/Strings.h"
#include "tools/Format.h"
#include "ui_1302.h"

namespace {

/// Shares of the free height that keep the check boxes apart.
constexpr LayoutSize aroundWeekDays = 2;
constexpr LayoutSize betweenWeekDays = 16;
constexpr LayoutSize betweenMonths = 20;

}  // namespace

CDlgFastSelection::CDlgFastSelection(CWnd* parent, int year)
    : CDialog(parent),
      m_ui(std::make_unique<Ui::Template1302>()),
      m_months(std::make_unique<qv::MonthRange>()),
      m_year(year) {
  Build(*m_ui);
  m_weekDayBoxes = {{m_ui->checkMonday, Text::Monday},       {m_ui->checkTuesday, Text::Tuesday},
                    {m_ui->checkWednesday, Text::Wednesday}, {m_ui->checkThursday, Text::Thursday},
                    {m_ui->checkFriday, Text::Friday},       {m_ui->checkSaturday, Text::Saturday},
                    {m_ui->checkSunday, Text::Sunday}};
  m_monthBoxes = {{m_ui->checkJanuary, Text::January},
                  {m_ui->checkFebruary, Text::February},
                  {m_ui->checkMarch, Text::March},
                  {m_ui->checkApril, Text::April},
                  {m_ui->checkMay, Text::May},
                  {m_ui->checkJune, Text::June},
                  {m_ui->checkJuly, Text::July},
                  {m_ui->checkAugust, Text::August},
                  {m_ui->checkSeptember, Text::September},
                  {m_ui->checkOctober, Text::October},
                  {m_ui->checkNovember, Text::November},
                  {m_ui->checkDecember, Text::December}};
}

CDlgFastSelection::CDlgFastSelection(CWnd* parent, std::vector<DWORD>* colours,
                                     std::vector<QVWideString>* names, int year)
    : CDlgFastSelection(parent, year) {
  m_isFromLists = true;
  if (colours && names) {
    m_colours = *colours;
    m_names = *names;
  }
}

CDlgFastSelection::CDlgFastSelection(CWnd* parent, XmlDocument::XmlNode* dayTypes, int year)
    : CDlgFastSelection(parent, year) {
  m_dayTypes = dayTypes;
}

CDlgFastSelection::~CDlgFastSelection() = default;

bool CDlgFastSelection::SetMaxMinMonth(int first, int last) { return m_months->Set(first, last); }

int CDlgFastSelection::DoModal() { return CDialog::DoModal(); }

void CDlgFastSelection::OnInitDialog() {
  InitializeTexts();
  InitializeDayTypes();
  InitializeBoxes();
  PositioningControls();
}

bool CDlgFastSelection::InitializeTexts() {
  SetTitle(Text::FastSelectionTitle);
  const std::wstring year = Worded(Text::Year).toStdWString();
  m_ui->labelYear->setText(qv::ToQString(qv::Format(L"%s : %d", {year.c_str(), m_year})));
  SetText(m_ui->boxWeekDays, Text::Weekdays);
  SetText(m_ui->boxMonths, Text::Months);
  for (const auto* boxes : {&m_weekDayBoxes, &m_monthBoxes}) {
    for (const Box& box : *boxes) {
      SetText(box.control, box.text);
    }
  }
  SetLabel(m_ui->labelDayType, m_ui->comboDayType, Text::DayType);
  SetOkCancel();
  return true;
}

bool CDlgFastSelection::InitializeDayTypes() {
  if (!m_isFromLists) {
    TakeDayTypesOfNode();
  }
  std::vector<qv::ColourChoice::Entry> entries;
  for (std::size_t i = 0; i < std::min(m_names.size(), m_colours.size()); ++i) {
    entries.push_back({qv::ToQString(m_names[i]), m_colours[i]});
  }
  m_ui->comboDayType->ShowEntries(entries, 0);
  return true;
}

void CDlgFastSelection::TakeDayTypesOfNode() {
  m_colours.clear();
  m_names.clear();
  for (const qv::ColouredType& day : qv::ReadColouredTypes(m_dayTypes, qv::tag::Day)) {
    m_colours.push_back(day.colour);
    m_names.push_back(day.name);
  }
}

void CDlgFastSelection::InitializeBoxes() {
  for (const Box& box : m_weekDayBoxes) {
    box.control->setChecked(false);
  }
  int month = 1;
  for (const Box& box : m_monthBoxes) {
    box.control->setChecked(false);
    box.control->setEnabled(m_months->Contains(month++));
  }
}

DWORD CDlgFastSelection::MaskOf(const std::vector<Box>& boxes) {
  DWORD mask = 0;
  DWORD bit = 1;
  for (const Box& box : boxes) {
    mask |= box.control->isChecked() ? bit : 0;
    bit <<= 1;
  }
  return mask;
}

void CDlgFastSelection::OnOK() {
  m_dwWeekDays |= MaskOf(m_weekDayBoxes);
  m_dwMonths |= MaskOf(m_monthBoxes);
  m_nDayType = m_ui->comboDayType->currentIndex();
  EndDialog(IDOK);
}

void CDlgFastSelection::PositioningControls() {
  QVVerticalLayout weekDays(this);
  weekDays.SetBoxControl(m_ui->boxWeekDays, LayoutSizeStandard, true);
  weekDays.AddGap(aroundWeekDays);
  for (const Box& box : m_weekDayBoxes) {
    weekDays.AddControl(box.control, LayoutSizeLabel);
    weekDays.AddGap(&box == &m_weekDayBoxes.back() ? aroundWeekDays : betweenWeekDays);
  }
  std::vector<std::unique_ptr<QVHoritzontalLayout>> rows;
  QVVerticalLayout months(this);
  months.SetBoxControl(m_ui->boxMonths, LayoutSizeStandard, true);
  const std::size_t half = m_monthBoxes.size() / 2;
  for (std::size_t i = 0; i < half; ++i) {
    if (i > 0) {
      months.AddGap(betweenMonths);
    }
    QVHoritzontalLayout& row = *rows.emplace_back(std::make_unique<QVHoritzontalLayout>(this));
    row.AddControl(m_monthBoxes[i].control, 50);
    row.AddGap(LayoutSizeStandard);
    row.AddControl(m_monthBoxes[i + half].control, 50);
    months.AddLayout(&row, LayoutSizeLabel);
  }
  QVHoritzontalLayout main(this);
  main.AddLayout(&weekDays, 35);
  main.AddGap(LayoutSizeStandard);
  main.AddLayout(&months, 65);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(m_ui->labelYear, LayoutSizeLabel);
  column.Add(&main, 100);
  column.AddLabelled(m_ui->comboDayType, m_ui->labelDayType);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
}
