#include "timestructure/ui/CDlgAddModifyDayType.h"

#include <QLineEdit>
#include <QPaintEvent>

#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/QVDayCtrl.h"
#include "toolkit/AskColour.h"
#include "toolkit/ColourSwatch.h"
#include "toolkit/Controls.h"
#include "toolkit/LimitTyping.h"
#include "toolkit/OkCancel.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/QVLayout.h"
#include "toolkit/ReportList.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/SwatchRow.h"
#include "toolkit/Texts.h"
#include "ui_1303.h"

namespace {

constexpr int dial = 5000;
constexpr int swatch = 5262;
constexpr int nameLabel = 5298;
constexpr int nameEdit = 5299;
constexpr int slotsBox = 5300;
constexpr int dialBox = 5301;
constexpr int colourLabel = 5302;

void BuildTemplate(QDialog* dialog) { Ui::Template1303().setupUi(dialog); }

}  // namespace

CDlgAddModifyDayType::CDlgAddModifyDayType(CWnd* parent, qv::XmlNode* day, qv::XmlNode* dayTypes,
                                           qv::XmlNode* hourTypes)
    : ListDialog(BuildTemplate, parent),
      m_day(day),
      m_dayTypes(dayTypes),
      m_hourTypes(hourTypes),
      m_dial(new QVDayCtrl(this)) {
  m_dial->setProperty(qv::controlIdProperty, dial);
  connect(Find<qv::ColourSwatch>(swatch), &qv::ColourSwatch::clicked, this,
          &CDlgAddModifyDayType::OnColor);
}

CDlgAddModifyDayType::~CDlgAddModifyDayType() = default;

std::optional<int> CDlgAddModifyDayType::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_form = std::make_unique<qv::DayTypeForm>(*m_day, qv::DayTypes(*m_dayTypes),
                                             qv::HourTypes(*m_hourTypes), *m_boxes);
  return std::nullopt;
}

void CDlgAddModifyDayType::OnInitDialog() {
  qv::LimitTyping(Find<QLineEdit>(nameEdit), qv::TypeIdentity::longestTypedName);
  InitializeTexts();
  const auto& loadString = Services().loadString;
  InitializeList({qv::HostText(loadString, Text::Name), qv::HostText(loadString, Text::From),
                  qv::HostText(loadString, Text::To)});
  qv::SetLoadedText(Find<QLineEdit>(nameEdit), qv::ToQString(m_form->Identity().OpenedName()));
  m_form->Fill();
  FillList(std::nullopt);
  PositioningControls();
  ShowColour();
  EnableDisableButtons();
  if (const auto fault = m_form->FaultOfSlots()) {
    Tell(*m_boxes, *fault);
  }
  KeepAsLeastSize();
}

void CDlgAddModifyDayType::InitializeTexts() {
  SetText(0, m_form->Identity().OpenedName().Empty() ? Text::AddDayTypeTitle
                                                     : Text::ModifyDayTypeTitle);
  SetLabel(nameLabel, nameEdit, Text::Name);
  SetLabel(colourLabel, swatch, Text::Colour);
  SetLabel(slotsBox, listView, Text::TimeSlots);
  SetText(dialBox, Text::Diagram);
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
}

void CDlgAddModifyDayType::ResizeColumns() {
  const int room = View().viewport()->width();
  View().setColumnWidth(0, room / 3);
  View().setColumnWidth(1, room / 3);
  View().setColumnWidth(2, room - 2 * (room / 3));
}

void CDlgAddModifyDayType::FillList(std::optional<int> select) {
  std::vector<Row> rows;
  for (const qv::SlotRow& slot : m_form->Rows()) {
    rows.push_back(
        {{qv::ToQString(slot.hourType), qv::ToQString(slot.from), qv::ToQString(slot.to)},
         slot.colour});
  }
  ShowRows(rows, select);
}

void CDlgAddModifyDayType::UpdateDial() {
  m_dial->Setup(m_day, m_hourTypes);
  m_dial->update();
}

void CDlgAddModifyDayType::ShowColour() {
  Find<qv::ColourSwatch>(swatch)->SetColour(m_form->Identity().CurrentColour());
  m_dial->SetBkColor(m_form->Identity().CurrentColour());
  m_dial->SetColor(m_form->Identity().CurrentColour());
  UpdateDial();
}

void CDlgAddModifyDayType::OnColor() {
  const auto chosen = qv::AskColour(this, m_form->Identity().CurrentColour(),
                                    qv::HostText(Services().loadString, Text::Colour));
  if (chosen && m_form->Identity().ChooseColour(*chosen)) {
    ShowColour();
  }
}

qv::DayTypeForm::RunSlotEditor CDlgAddModifyDayType::Editor() {
  return [this](qv::XmlNode& slot, qv::HourTypes hourTypes) {
    CDlgAddModifyTimeSlot editor(this, &hourTypes.Node(), &slot,
                                 m_form->Identity().CurrentColour());
    return qv::RunDialog<qv::EditorEnd>(editor);
  };
}

void CDlgAddModifyDayType::OnAdd() { Follow(m_form->OnAdd(Editor())); }

void CDlgAddModifyDayType::OnModify() { Follow(m_form->OnModify(SelectedRow(), Editor())); }

void CDlgAddModifyDayType::OnRemove() { Follow(m_form->OnRemove(SelectedRow())); }

void CDlgAddModifyDayType::Follow(const qv::ListEnd& end) {
  if (end.refilled) {
    FillList(end.rowToSelect);
    UpdateDial();
    ResizeColumns();
  }
}

void CDlgAddModifyDayType::paintEvent(QPaintEvent* event) {
  CDialog::paintEvent(event);
  // What is damaged is painted from the document as it stands now. The dial is painted after this,
  // so nothing has to be asked for.
  const QRect box = Control(dialBox)->geometry();
  if (event->rect().adjusted(-1, -1, 1, 1).intersects(box)) {
    m_dial->Setup(m_day, m_hourTypes);
  }
}

void CDlgAddModifyDayType::PositioningControls() {
  qv::SwatchRow colour(this, Control(swatch), colourLabel, LayoutSizeStandard);
  QVVerticalLayout lowered(this);
  lowered.AddGap(100);
  colour.AddTo(lowered);
  QVControlBoxButtonsLayout list(this, listView, slotsBox);
  list.AddButtons21(addButton, modifyButton, removeButton);
  QVVerticalLayout left(this);
  left.AddControlAndLabel(nameEdit, nameLabel, LayoutSizeEdit, 2, LayoutSizeLabel);
  left.AddGap(LayoutSizeStandard);
  left.AddLayout(&list, 100);
  QVVerticalLayout right(this);
  right.AddLayout(&lowered, LayoutSizeEdit);
  right.AddGap(LayoutSizeStandard);
  right.AddControlWithBox(dial, dialBox, 100, LayoutSizeStandard, true);
  QVHoritzontalLayout sides(this);
  sides.AddLayout(&left, 50);
  sides.AddGap(LayoutSizeStandard);
  sides.AddLayout(&right, 50);
  QVHoritzontalLayout buttons(this);
  qv::AddNarrowOkCancel(buttons);
  QVVerticalLayout column(this);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&sides, 100);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&buttons, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.Layout(rect());
  ResizeColumns();
}

void CDlgAddModifyDayType::OnOK() {
  const qv::SaveEnd end = m_form->Save(qv::ToWide(Find<QLineEdit>(nameEdit)->text()));
  if (end.refusal) {
    Tell(*m_boxes, *end.refusal);
  }
  if (end.IsDone()) {
    CDialog::OnOK();
  }
}

void CDlgAddModifyDayType::OnDestroy() {
  m_modified = m_form->IsModified();
  View().clear();
  m_form.reset();
  m_boxes.reset();
}
