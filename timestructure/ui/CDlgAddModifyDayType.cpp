#include "timestructure/ui/CDlgAddModifyDayType.h"

#include <QPaintEvent>

#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/ChooseColour.h"
#include "timestructure/ui/QVDayCtrl.h"
#include "toolkit/Controls.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/SwatchRow.h"

namespace {

/// The dial isn't in the template.
constexpr int dialNumber = 5000;

}  // namespace

CDlgAddModifyDayType::CDlgAddModifyDayType(CWnd* parent, qv::XmlNode* day, qv::XmlNode* dayTypes,
                                           qv::XmlNode* hourTypes)
    : EditingDialog(parent), m_day(*day), m_dayTypes(*dayTypes), m_hourTypes(*hourTypes) {
  Build(m_ui);
  m_dial = new QVDayCtrl(this);
  m_dial->setProperty(qv::controlIdProperty, dialNumber);
  m_list.emplace(
      qv::ListPart::Controls{m_ui.listSlots, m_ui.buttonAdd, m_ui.buttonModify, m_ui.buttonRemove},
      qv::ListPart::Verbs{[this] { OnAdd(); }, [this] { OnModify(); }, [this] { OnRemove(); }});
  connect(m_ui.swatchColour, &qv::ColourSwatch::clicked, this, &CDlgAddModifyDayType::OnColor);
}

CDlgAddModifyDayType::~CDlgAddModifyDayType() = default;

std::unique_ptr<qv::DayTypeForm> CDlgAddModifyDayType::MakeForm() {
  return std::make_unique<qv::DayTypeForm>(m_day, m_dayTypes, m_hourTypes, Boxes());
}

void CDlgAddModifyDayType::OnInitDialog() {
  qv::LimitTyping(m_ui.editName, qv::TypeIdentity::longestTypedName);
  InitializeTexts();
  InitializeList();
  PositioningControls();
  ShowColour();
  m_list->EnableDisableButtons();
  if (const auto fault = m_form->FaultOfSlots()) {
    ShowRefusal(*fault);
  }
  KeepAsLeastSize();
}

void CDlgAddModifyDayType::InitializeTexts() {
  const bool isNew = m_form->Identity().OpenedName().Empty();
  SetTitle(isNew ? Text::AddDayTypeTitle : Text::ModifyDayTypeTitle);
  SetLabel(m_ui.labelName, m_ui.editName, Text::Name);
  SetLabel(m_ui.labelColour, m_ui.swatchColour, Text::Colour);
  m_ui.swatchColour->TakeLabel(m_ui.labelColour);
  SetLabel(m_ui.boxSlots, m_ui.listSlots, Text::TimeSlots);
  SetText(m_ui.boxDial, Text::Diagram);
  m_list->InitializeButtons(Services());
  SetOkCancel();
}

void CDlgAddModifyDayType::InitializeList() {
  m_list->CreateColumns(Services().loadString, {Text::Name, Text::From, Text::To});
  qv::SetLoadedName(m_ui.editName, qv::ToQString(m_form->Identity().OpenedName()));
  m_form->Fill();
  FillList();
}

void CDlgAddModifyDayType::FillList(const qv::ListEnd& end) {
  std::vector<qv::ListRow> rows;
  for (const qv::SlotRow& slot : m_form->Rows()) {
    rows.push_back(m_list->ColouredRow(
        {qv::ToQString(slot.hourType), qv::ToQString(slot.from), qv::ToQString(slot.to)},
        slot.colour));
  }
  m_list->Show(rows, end.rowToSelect, end.currentRow);
}

void CDlgAddModifyDayType::ShowSlotsInDial() { m_dial->Setup(&m_day, &m_hourTypes.Node()); }

void CDlgAddModifyDayType::UpdateDial() {
  ShowSlotsInDial();
  m_dial->update();
}

void CDlgAddModifyDayType::ShowColour() {
  const qv::Colour colour = m_form->Identity().CurrentColour();
  m_ui.swatchColour->SetColour(colour);
  m_dial->SetBkColor(colour);
  m_dial->SetColor(colour);
  UpdateDial();
}

void CDlgAddModifyDayType::OnColor() {
  if (qv::ChooseColour(m_form->Identity(), *m_ui.swatchColour, Worded(Text::Colour))) {
    ShowColour();
  }
}

qv::DayTypeForm::RunSlotEditor CDlgAddModifyDayType::Editor() {
  return [this](qv::XmlNode& slot, qv::HourTypes hourTypes) {
    CDlgAddModifyTimeSlot editor(this, &hourTypes.Node(), &slot,
                                 m_form->Identity().CurrentColour());
    return qv::RunDialog(editor);
  };
}

void CDlgAddModifyDayType::OnAdd() { Follow(m_form->OnAdd(Editor())); }

void CDlgAddModifyDayType::OnModify() { Follow(m_form->OnModify(m_list->SelectedRow(), Editor())); }

void CDlgAddModifyDayType::OnRemove() { Follow(m_form->OnRemove(m_list->SelectedRow())); }

void CDlgAddModifyDayType::Follow(const qv::ListEnd& end) {
  if (end.refilled) {
    FillList(end);
    UpdateDial();
    m_list->ResizeColumns();
  }
}

void CDlgAddModifyDayType::paintEvent(QPaintEvent* event) {
  EditingDialog::paintEvent(event);
  // What is damaged is painted from the document as it stands now. The dial is painted after this,
  // so nothing has to be asked for.
  if (event->rect().adjusted(-1, -1, 1, 1).intersects(m_ui.boxDial->geometry())) {
    ShowSlotsInDial();
  }
}

void CDlgAddModifyDayType::PositioningControls() {
  qv::SwatchRow colour(this, m_ui.swatchColour, m_ui.labelColour, LayoutSizeStandard);
  QVVerticalLayout lowered(this);
  lowered.AddGap(100);
  colour.AddTo(lowered);
  QVControlBoxButtonsLayout list(this, m_ui.listSlots, m_ui.boxSlots);
  list.AddButtons21(m_ui.buttonAdd, m_ui.buttonModify, m_ui.buttonRemove);
  QVVerticalLayout left(this);
  qv::AddLabelled(left, m_ui.editName, m_ui.labelName);
  left.AddGap(LayoutSizeStandard);
  left.AddLayout(&list, 100);
  QVVerticalLayout right(this);
  right.AddLayout(&lowered, LayoutSizeEdit);
  right.AddGap(LayoutSizeStandard);
  right.AddControlWithBox(m_dial, m_ui.boxDial, 100, LayoutSizeStandard, true);
  QVHoritzontalLayout sides(this);
  sides.AddLayout(&left, 50);
  sides.AddGap(LayoutSizeStandard);
  sides.AddLayout(&right, 50);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(&sides, 100);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
  m_list->ResizeColumns();
}

qv::SaveEnd CDlgAddModifyDayType::Save() { return m_form->Save(qv::ToWide(m_ui.editName->text())); }

void CDlgAddModifyDayType::OnDestroy() {
  m_list->Clear();
  EditingDialog::OnDestroy();
}
