#include "editor/ui/CDlgAddModifyDiscriminator.h"

#include <QCheckBox>
#include <QLineEdit>

#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"
#include "toolkit/ChoiceBox.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/OkCancel.h"
#include "toolkit/QVHyperlink.h"
#include "toolkit/QVLayout.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "ui_1301.h"

namespace {

constexpr int calendarLink = 5004;
constexpr int dayTypesLink = 5005;
constexpr int hourTypesLink = 5006;
constexpr int conditionsLink = 5008;
constexpr int descriptionLabel = 5266;
constexpr int descriptionEdit = 5267;
constexpr int nameLabel = 5268;
constexpr int typeLabel = 5269;
constexpr int nameEdit = 5270;
constexpr int setZeroCheck = 5346;
constexpr int typeCombo = 5351;

void BuildTemplate(QDialog* dialog) { Ui::Template1301().setupUi(dialog); }

}  // namespace

CDlgAddModifyDiscriminator::CDlgAddModifyDiscriminator(qv::XmlNode* deviceGroups, CWnd* parent,
                                                       const QVWideString* filePath)
    : CDialog(BuildTemplate, parent), m_deviceGroups(deviceGroups) {
  if (filePath) {
    m_filePath = *filePath;
  }
  connect(Find<qv::ChoiceBox>(typeCombo), &QComboBox::activated, this,
          &CDlgAddModifyDiscriminator::OnSelchangeType);
  connect(Find<QVHyperlink>(hourTypesLink), &QVHyperlink::clicked, this,
          &CDlgAddModifyDiscriminator::OnHourTypes);
  connect(Find<QVHyperlink>(dayTypesLink), &QVHyperlink::clicked, this,
          &CDlgAddModifyDiscriminator::OnDayTypes);
}

CDlgAddModifyDiscriminator::~CDlgAddModifyDiscriminator() = default;

std::optional<int> CDlgAddModifyDiscriminator::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_form = qv::DiscriminatorForm::Open({Services(), qv::Files::Disk(), m_deviceGroups},
                                       m_filePath ? &*m_filePath : nullptr);
  if (!m_form) {
    m_boxes.reset();
    return IDCANCEL;
  }
  return std::nullopt;
}

void CDlgAddModifyDiscriminator::OnInitDialog() {
  qv::LimitTyping(Find<QLineEdit>(nameEdit), qv::DiscriminatorForm::longestTypedName);
  qv::LimitTyping(Find<QLineEdit>(descriptionEdit), 0);
  InitializeTexts();
  InitializeFields();
  InitializeType();
  PositioningControls();
}

void CDlgAddModifyDiscriminator::InitializeTexts() {
  SetLabel(nameLabel, nameEdit, Text::Name);
  SetLabel(descriptionLabel, descriptionEdit, Text::Description);
  SetLabel(typeLabel, typeCombo, Text::DiscriminatorType);
  SetButton(calendarLink, Text::CalendarLink, L"CALENDAR-32.png");
  SetButton(dayTypesLink, Text::DayTypesLink, L"DAYTYPES-32.png");
  SetButton(hourTypesLink, Text::HourTypesLink, L"CLOCK-32.png");
  SetButton(conditionsLink, Text::Conditions, L"CONDITIONS-32.png");
  SetText(setZeroCheck, Text::SetZeroOutsideSlot);
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
  SetText(0, m_form->IsNew() ? Text::AddDiscriminatorTitle : Text::ModifyDiscriminatorTitle);
  for (const int link : {calendarLink, conditionsLink}) {
    Control(link)->setEnabled(false);
    Find<QVHyperlink>(link)->SetHint(qv::OwnText(Services().loadString, Text::LinkNotReady));
  }
}

void CDlgAddModifyDiscriminator::InitializeFields() {
  const qv::DiscriminatorFields fields = m_form->InitialFields();
  qv::SetLoadedText(Find<QLineEdit>(nameEdit), qv::ToQString(fields.name));
  qv::SetLoadedText(Find<QLineEdit>(descriptionEdit), qv::ToQString(fields.description));
  Find<QCheckBox>(setZeroCheck)->setChecked(fields.setZeroOutsideSlot);
}

void CDlgAddModifyDiscriminator::InitializeType() {
  const auto& loadString = Services().loadString;
  auto* combo = Find<qv::ChoiceBox>(typeCombo);
  combo->addItems(
      {qv::HostText(loadString, Text::TimeSlots), qv::HostText(loadString, Text::Conditions)});
  combo->setCurrentIndex(HasSlots() ? 0 : 1);
  combo->setVisible(m_form->IsTypeSelectable());
  Control(typeLabel)->setVisible(m_form->IsTypeSelectable());
  ShowLinksOfType();
}

bool CDlgAddModifyDiscriminator::HasSlots() const {
  return m_form->Type() == qv::DiscriminatorType::Slots;
}

void CDlgAddModifyDiscriminator::ShowLinksOfType() {
  for (const int link : {calendarLink, hourTypesLink, dayTypesLink}) {
    Control(link)->setVisible(HasSlots());
  }
  Control(conditionsLink)->setVisible(!HasSlots());
}

void CDlgAddModifyDiscriminator::OnSelchangeType(int index) {
  m_form->SelectType(index == 0 ? qv::DiscriminatorType::Slots : qv::DiscriminatorType::Conditions);
  ShowLinksOfType();
  PositioningControls();
}

void CDlgAddModifyDiscriminator::OnHourTypes() {
  m_form->OnHourTypes([this](qv::HourTypes hourTypes, qv::DayTypes dayTypes) {
    CDlgHourTypes dialog(this, &hourTypes.Node(), &dayTypes.Node());
    return qv::RunDialog<qv::EditorEnd>(dialog);
  });
}

void CDlgAddModifyDiscriminator::OnDayTypes() {
  m_form->OnDayTypes([this](qv::DayTypes dayTypes, qv::Calendar calendar, qv::HourTypes hourTypes) {
    CDlgDayTypes dialog(this, &dayTypes.Node(), &calendar.Node(), &hourTypes.Node());
    return qv::RunDialog<qv::EditorEnd>(dialog);
  });
}

void CDlgAddModifyDiscriminator::AddLinks(QVHoritzontalLayout& row) const {
  if (HasSlots()) {
    row.AddControl(hourTypesLink, 33);
    row.AddControl(dayTypesLink, 34);
    row.AddControl(calendarLink, 33);
  } else {
    row.AddGap(33);
    row.AddControl(conditionsLink, 34);
    row.AddGap(33);
  }
}

void CDlgAddModifyDiscriminator::AddDetails(QVHoritzontalLayout& row) const {
  const bool withType = m_form->IsTypeSelectable();
  row.AddControlAndLabel(descriptionEdit, descriptionLabel, withType ? 50 : 100, 2,
                         LayoutSizeLabel);
  if (withType) {
    row.AddGap(LayoutSizeStandard);
    row.AddControlAndLabel(typeCombo, typeLabel, 50, 2, LayoutSizeLabel);
  }
}

void CDlgAddModifyDiscriminator::PositioningControls() {
  QVHoritzontalLayout links(this);
  AddLinks(links);
  QVHoritzontalLayout buttons(this);
  qv::AddOkCancel(buttons);
  QVHoritzontalLayout details(this);
  AddDetails(details);
  QVVerticalLayout column(this);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddControlAndLabel(nameEdit, nameLabel, LayoutSizeEdit, 2, LayoutSizeLabel);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&details, LayoutSizeEdit);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&links, 100);
  column.AddGap(LayoutSizeStandard);
  column.AddControl(setZeroCheck, LayoutSizeLabel);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&buttons, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.Layout(rect());
}

qv::DiscriminatorFields CDlgAddModifyDiscriminator::Typed() const {
  return {qv::ToWide(Find<QLineEdit>(nameEdit)->text()),
          qv::ToWide(Find<QLineEdit>(descriptionEdit)->text()),
          Find<QCheckBox>(setZeroCheck)->isChecked()};
}

void CDlgAddModifyDiscriminator::OnOK() {
  const qv::SaveEnd end = m_form->Save(Typed());
  if (end.refusal) {
    Tell(*m_boxes, *end.refusal);
  }
  if (end.IsDone()) {
    CDialog::OnOK();
  }
}

void CDlgAddModifyDiscriminator::OnDestroy() {
  m_modified = m_form->IsModified();
  m_form.reset();
  m_boxes.reset();
}
