#include "timestructure/ui/CDlgAddModifyHourType.h"

#include "host/Installation.h"
#include "timestructure/ui/ChooseColour.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/Strings.h"
#include "toolkit/SwatchRow.h"

CDlgAddModifyHourType::CDlgAddModifyHourType(CWnd* parent, qv::XmlNode* hourTypes,
                                             qv::XmlNode* hour)
    : EditingDialog(parent), m_hourTypes(*hourTypes), m_hour(*hour) {
  Build(m_ui);
  connect(m_ui.swatchColour, &qv::ColourSwatch::clicked, this, &CDlgAddModifyHourType::OnColor);
}

std::unique_ptr<qv::HourTypeForm> CDlgAddModifyHourType::MakeForm() {
  return std::make_unique<qv::HourTypeForm>(m_hour, m_hourTypes, Boxes());
}

void CDlgAddModifyHourType::OnInitDialog() {
  qv::LimitTyping(m_ui.editName, qv::TypeIdentity::longestTypedName);
  qv::LimitTyping(m_ui.editValue, 0);
  ShowValueField();
  PositioningControls();
  InitializeTexts();
  InitializeData();
}

void CDlgAddModifyHourType::InitializeTexts() {
  SetLabel(m_ui.labelName, m_ui.editName, Text::Name);
  SetLabel(m_ui.labelValue, m_ui.editValue, Text::HourTypeValue);
  SetLabel(m_ui.labelColour, m_ui.swatchColour, Text::Colour);
  m_ui.swatchColour->TakeLabel(m_ui.labelColour);
  SetOkCancel();
  const bool isNew = m_form->Identity().OpenedName().Empty();
  SetTitle(isNew ? Text::AddHourTypeTitle : Text::ModifyHourTypeTitle);
}

void CDlgAddModifyHourType::InitializeData() {
  m_ui.swatchColour->SetColour(m_form->Identity().CurrentColour());
  qv::SetLoadedName(m_ui.editName, qv::ToQString(m_form->Identity().OpenedName()));
  // Also into a hidden field, so that the value of another installation comes out as it went in.
  qv::SetLoadedText(m_ui.editValue, qv::ToQString(m_form->Value()));
}

void CDlgAddModifyHourType::ShowValueField() {
  const bool isShown = qv::IsEmbedded(Services().mainCfg);
  m_ui.editValue->setVisible(isShown);
  m_ui.labelValue->setVisible(isShown);
}

void CDlgAddModifyHourType::PositioningControls() {
  QVVerticalLayout fields(this);
  fields.SetBoxControl(m_ui.boxFields, LayoutSizeStandard, false);
  qv::AddLabelled(fields, m_ui.editName, m_ui.labelName);
  fields.AddGap(LayoutSizeStandard);
  if (!m_ui.editValue->isHidden()) {
    qv::AddLabelled(fields, m_ui.editValue, m_ui.labelValue);
    fields.AddGap(LayoutSizeStandard);
  }
  qv::SwatchRow colour(this, m_ui.swatchColour, m_ui.labelColour, LayoutSizeLabel);
  colour.AddTo(fields);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(&fields, 0);
  column.Add(&buttons, LayoutSizeStandard);
  setFixedHeight(column.FixedSize().height());
  column.Layout(rect());
}

void CDlgAddModifyHourType::OnColor() {
  qv::ChooseColour(m_form->Identity(), *m_ui.swatchColour, Worded(Text::Colour));
}

qv::SaveEnd CDlgAddModifyHourType::Save() {
  return m_form->Save(qv::ToWide(m_ui.editName->text()), qv::ToWide(m_ui.editValue->text()));
}
