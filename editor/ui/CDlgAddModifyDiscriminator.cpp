#include "editor/ui/CDlgAddModifyDiscriminator.h"

#include "calendar/ui/CDlgCalendar.h"
#include "conditions/ui/CDlgConditions.h"
#include "conditions/ui/ExpressionServices.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

CDlgAddModifyDiscriminator::CDlgAddModifyDiscriminator(qv::XmlNode* deviceGroups, CWnd* parent,
                                                       const QVWideString* filePath)
    : EditingDialog(parent), m_deviceGroups(deviceGroups) {
  if (filePath) {
    m_filePath = *filePath;
  }
  using This = CDlgAddModifyDiscriminator;
  Build(m_ui);
  m_links = {{
      {m_ui.linkHourTypes, Text::HourTypesLink, L"CLOCK-32.png", &This::OnHourTypes},
      {m_ui.linkDayTypes, Text::DayTypesLink, L"DAYTYPES-32.png", &This::OnDayTypes},
      {m_ui.linkCalendar, Text::CalendarLink, L"CALENDAR-32.png", &This::OnCalendar},
      {m_ui.linkConditions, Text::Conditions, L"CONDITIONS-32.png", &This::OnConditions},
  }};
  for (const Link& link : m_links) {
    connect(link.control, &QVHyperlink::clicked, this, link.open);
  }
  connect(m_ui.comboType, &QComboBox::activated, this, &This::OnSelchangeType);
}

std::unique_ptr<qv::DiscriminatorForm> CDlgAddModifyDiscriminator::MakeForm() {
  std::optional<qv::Refusal> refusal;
  auto form = qv::DiscriminatorForm::Open({Services(), qv::Files::Disk(), m_deviceGroups},
                                          m_filePath ? &*m_filePath : nullptr, &refusal);
  if (refusal) {
    SetTitle(Text::ModifyDiscriminatorTitle);
    ShowRefusal(*refusal);
  }
  return form;
}

void CDlgAddModifyDiscriminator::OnInitDialog() {
  qv::LimitTyping(m_ui.editName, qv::DiscriminatorForm::longestTypedName);
  qv::LimitTyping(m_ui.editDescription, 0);
  InitializeTexts();
  for (const Link& link : m_links) {
    SetButton(link.control, link.text, link.picture);
  }
  InitializeConditionsLink();
  InitializeFields();
  InitializeType();
  PositioningControls();
}

void CDlgAddModifyDiscriminator::InitializeTexts() {
  SetLabel(m_ui.labelName, m_ui.editName, Text::Name);
  SetLabel(m_ui.labelDescription, m_ui.editDescription, Text::Description);
  SetLabel(m_ui.labelType, m_ui.comboType, Text::DiscriminatorType);
  SetText(m_ui.checkSetZeroOutsideSlot, Text::SetZeroOutsideSlot);
  SetOkCancel();
  SetTitle(m_form->IsNew() ? Text::AddDiscriminatorTitle : Text::ModifyDiscriminatorTitle);
}

void CDlgAddModifyDiscriminator::InitializeConditionsLink() {
  const bool canEdit = qv::HasExpressionServices();
  m_ui.linkConditions->setEnabled(canEdit);
  m_ui.linkConditions->SetHint(canEdit ? QString()
                                       : qv::OwnText(Services().loadString, Text::LinkNotReady));
}

void CDlgAddModifyDiscriminator::InitializeFields() {
  const qv::DiscriminatorFields fields = m_form->InitialFields();
  qv::SetLoadedName(m_ui.editName, qv::ToQString(fields.name));
  qv::SetLoadedText(m_ui.editDescription, qv::ToQString(fields.description));
  m_ui.checkSetZeroOutsideSlot->setChecked(fields.setZeroOutsideSlot);
}

void CDlgAddModifyDiscriminator::InitializeType() {
  m_ui.comboType->addItems({Worded(Text::TimeSlots), Worded(Text::Conditions)});
  m_ui.comboType->setCurrentIndex(HasSlots() ? 0 : 1);
  m_ui.comboType->setVisible(m_form->IsTypeSelectable());
  m_ui.labelType->setVisible(m_form->IsTypeSelectable());
  ShowLinksOfType();
}

bool CDlgAddModifyDiscriminator::HasSlots() const {
  return m_form->Type() == qv::DiscriminatorType::Slots;
}

void CDlgAddModifyDiscriminator::ShowLinksOfType() {
  for (const Link& link : m_links) {
    link.control->setVisible(HasSlots() == (link.control != m_ui.linkConditions));
  }
}

void CDlgAddModifyDiscriminator::OnSelchangeType(int index) {
  m_form->SelectType(index == 0 ? qv::DiscriminatorType::Slots : qv::DiscriminatorType::Conditions);
  ShowLinksOfType();
  PositioningControls();
}

void CDlgAddModifyDiscriminator::OnHourTypes() {
  m_form->OnHourTypes([this](qv::HourTypes hourTypes, qv::DayTypes dayTypes) {
    CDlgHourTypes dialog(this, &hourTypes.Node(), &dayTypes.Node());
    return qv::RunDialog(dialog);
  });
}

void CDlgAddModifyDiscriminator::OnDayTypes() {
  m_form->OnDayTypes([this](qv::DayTypes dayTypes, qv::Calendar calendar, qv::HourTypes hourTypes) {
    CDlgDayTypes dialog(this, &dayTypes.Node(), &calendar.Node(), &hourTypes.Node());
    return qv::RunDialog(dialog);
  });
}

void CDlgAddModifyDiscriminator::OnCalendar() {
  m_form->OnCalendar([this](qv::Calendar calendar, qv::DayTypes dayTypes, qv::HourTypes hourTypes) {
    CDlgCalendar dialog(this, &calendar.Node(), &dayTypes.Node(), &hourTypes.Node());
    return qv::RunDialog(dialog);
  });
}

void CDlgAddModifyDiscriminator::OnConditions() {
  m_form->OnConditions([this](qv::OrderedConditions conditions) {
    CDlgConditions dialog(this, &conditions.Node());
    return qv::RunDialog(dialog);
  });
}

void CDlgAddModifyDiscriminator::AddLinks(QVHoritzontalLayout& row) const {
  if (HasSlots()) {
    row.AddControl(m_ui.linkHourTypes, 33);
    row.AddControl(m_ui.linkDayTypes, 34);
    row.AddControl(m_ui.linkCalendar, 33);
  } else {
    row.AddGap(33);
    row.AddControl(m_ui.linkConditions, 34);
    row.AddGap(33);
  }
}

void CDlgAddModifyDiscriminator::AddDetails(QVHoritzontalLayout& row) const {
  const bool withType = m_form->IsTypeSelectable();
  qv::AddLabelled(row, m_ui.editDescription, m_ui.labelDescription, withType ? 50 : 100);
  if (withType) {
    row.AddGap(LayoutSizeStandard);
    qv::AddLabelled(row, m_ui.comboType, m_ui.labelType, 50);
  }
}

void CDlgAddModifyDiscriminator::PositioningControls() {
  QVHoritzontalLayout details(this);
  AddDetails(details);
  QVHoritzontalLayout links(this);
  AddLinks(links);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Whole);
  qv::DialogColumn column(this);
  column.AddLabelled(m_ui.editName, m_ui.labelName);
  column.Add(&details, LayoutSizeEdit);
  column.Add(&links, 100);
  column.Add(m_ui.checkSetZeroOutsideSlot, LayoutSizeLabel);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
}

qv::SaveEnd CDlgAddModifyDiscriminator::Save() {
  return m_form->Save({qv::ToWide(m_ui.editName->text()), qv::ToWide(m_ui.editDescription->text()),
                       m_ui.checkSetZeroOutsideSlot->isChecked()});
}
