#include "timestructure/ui/CDlgAddModifyHourType.h"

#include <QLineEdit>

#include "host/Installation.h"
#include "toolkit/AskColour.h"
#include "toolkit/ColourSwatch.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/OkCancel.h"
#include "toolkit/QVLayout.h"
#include "toolkit/Strings.h"
#include "toolkit/SwatchRow.h"
#include "toolkit/Texts.h"
#include "ui_1305.h"

namespace {

constexpr int groupBox = -1;
constexpr int valueEdit = 5010;
constexpr int swatch = 5261;
constexpr int nameLabel = 5268;
constexpr int valueLabel = 5269;
constexpr int colourLabel = 5302;
constexpr int nameEdit = 5350;

void BuildTemplate(QDialog* dialog) { Ui::Template1305().setupUi(dialog); }

}  // namespace

CDlgAddModifyHourType::CDlgAddModifyHourType(CWnd* parent, qv::XmlNode* hourTypes,
                                             qv::XmlNode* hour)
    : CDialog(BuildTemplate, parent), m_hourTypes(hourTypes), m_hour(hour) {
  connect(Find<qv::ColourSwatch>(swatch), &qv::ColourSwatch::clicked, this,
          &CDlgAddModifyHourType::OnColor);
}

CDlgAddModifyHourType::~CDlgAddModifyHourType() = default;

std::optional<int> CDlgAddModifyHourType::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_form = std::make_unique<qv::HourTypeForm>(*m_hour, qv::HourTypes(*m_hourTypes), *m_boxes);
  return std::nullopt;
}

void CDlgAddModifyHourType::OnInitDialog() {
  qv::LimitTyping(Find<QLineEdit>(nameEdit), qv::TypeIdentity::longestTypedName);
  qv::LimitTyping(Find<QLineEdit>(valueEdit), 0);
  ShowValueField();
  PositioningControls();
  InitializeTexts();
  InitializeData();
}

void CDlgAddModifyHourType::InitializeTexts() {
  SetLabel(nameLabel, nameEdit, Text::Name);
  SetLabel(valueLabel, valueEdit, Text::HourTypeValue);
  SetLabel(colourLabel, swatch, Text::Colour);
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
  SetText(0, m_form->Identity().OpenedName().Empty() ? Text::AddHourTypeTitle
                                                     : Text::ModifyHourTypeTitle);
}

void CDlgAddModifyHourType::InitializeData() {
  Find<qv::ColourSwatch>(swatch)->SetColour(m_form->Identity().CurrentColour());
  qv::SetLoadedText(Find<QLineEdit>(nameEdit), qv::ToQString(m_form->Identity().OpenedName()));
  // Also into a hidden field, so that the value of another installation comes out as it went in.
  qv::SetLoadedText(Find<QLineEdit>(valueEdit), qv::ToQString(m_form->Value()));
}

void CDlgAddModifyHourType::ShowValueField() {
  const bool isShown = qv::IsEmbedded(Services().mainCfg);
  Control(valueEdit)->setVisible(isShown);
  Control(valueLabel)->setVisible(isShown);
}

void CDlgAddModifyHourType::AddFields(QVVerticalLayout& column) const {
  column.SetBoxControl(groupBox, LayoutSizeStandard, false);
  column.AddControlAndLabel(nameEdit, nameLabel, LayoutSizeEdit, 2, LayoutSizeLabel);
  column.AddGap(LayoutSizeStandard);
  if (!Control(valueEdit)->isHidden()) {
    column.AddControlAndLabel(valueEdit, valueLabel, LayoutSizeEdit, 2, LayoutSizeLabel);
    column.AddGap(LayoutSizeStandard);
  }
}

void CDlgAddModifyHourType::PositioningControls() {
  qv::SwatchRow colour(this, Control(swatch), colourLabel, LayoutSizeLabel);
  QVVerticalLayout fields(this);
  AddFields(fields);
  colour.AddTo(fields);
  QVHoritzontalLayout buttons(this);
  qv::AddNarrowOkCancel(buttons);
  QVVerticalLayout column(this);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&fields, 0);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&buttons, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  setFixedHeight(column.FixedSize().height());
  column.Layout(rect());
}

void CDlgAddModifyHourType::OnColor() {
  const auto chosen = qv::AskColour(this, m_form->Identity().CurrentColour(),
                                    qv::HostText(Services().loadString, Text::Colour));
  if (chosen && m_form->Identity().ChooseColour(*chosen)) {
    Find<qv::ColourSwatch>(swatch)->SetColour(*chosen);
  }
}

void CDlgAddModifyHourType::OnOK() {
  const qv::SaveEnd end = m_form->Save(qv::ToWide(Find<QLineEdit>(nameEdit)->text()),
                                       qv::ToWide(Find<QLineEdit>(valueEdit)->text()));
  if (end.refusal) {
    Tell(*m_boxes, *end.refusal);
  }
  if (end.IsDone()) {
    CDialog::OnOK();
  }
}

void CDlgAddModifyHourType::OnDestroy() {
  m_modified = m_form->IsModified();
  m_form.reset();
  m_boxes.reset();
}
