#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QRegularExpressionValidator>
#include <QToolTip>

#include "discriminator/ValueForms.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/TimeGridView.h"
#include "toolkit/Caption.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace {

/// A label above a row of controls.
void AddLabelled(QVVerticalLayout& column, QWidget* label, QVHoritzontalLayout& row,
                 LayoutSize height) {
  column.AddControl(label, LayoutSizeLabel);
  column.AddGap(LayoutSizeLabelGap);
  column.AddLayout(&row, height);
}

}  // namespace

CDlgAddModifyTimeSlot::CDlgAddModifyTimeSlot(CWnd* parent, qv::XmlNode* hourTypes,
                                             qv::XmlNode* slot, COLORREF dayColor)
    : EditingDialog(parent), m_hourTypes(*hourTypes), m_slot(*slot), m_dayColour(dayColor) {
  Build(m_ui);
  m_fields = {{
      {{qv::SlotEdge::From, true}, m_ui.editFromHours, m_ui.spinFromHours},
      {{qv::SlotEdge::From, false}, m_ui.editFromMinutes, m_ui.spinFromMinutes},
      {{qv::SlotEdge::To, true}, m_ui.editToHours, m_ui.spinToHours},
      {{qv::SlotEdge::To, false}, m_ui.editToMinutes, m_ui.spinToMinutes},
  }};
  for (const FieldControls& controls : m_fields) {
    Connect(controls);
  }
  connect(m_ui.comboType, &QComboBox::activated, this, &CDlgAddModifyTimeSlot::OnSelchangeType);
  connect(m_ui.buttonAdd, &QPushButton::clicked, this, &CDlgAddModifyTimeSlot::OnAddHourType);
  // The dialog follows the pointer over the grid, also without a button.
  m_grid = new qv::TimeGridView(m_ui.boxGrid, [this] { return GridPicture(); });
  m_ui.boxGrid->setAttribute(Qt::WA_TransparentForMouseEvents);
  setMouseTracking(true);
  // The cross is that of the grid alone: what the pointer may jump to from there has its arrow.
  for (QWidget* child : findChildren<QWidget*>()) {
    if (!child->testAttribute(Qt::WA_SetCursor)) {
      child->setCursor(Qt::ArrowCursor);
    }
  }
}

CDlgAddModifyTimeSlot::~CDlgAddModifyTimeSlot() {
  // A field that has the focus loses it when the window goes, which is after the form has gone.
  for (const FieldControls& controls : m_fields) {
    controls.spin->disconnect(this);
  }
}

void CDlgAddModifyTimeSlot::Connect(const FieldControls& controls) {
  const qv::TimeField field = controls.field;
  QLineEdit* edit = controls.edit;
  edit->setMaxLength(2);
  edit->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
  controls.spin->SetBuddy(edit);
  connect(edit, &QLineEdit::textEdited, this, [this, field](const QString& text) {
    m_form->Times().Type(field, text.toStdWString());
    ShowTimes();
  });
  connect(controls.spin, &qv::SpinButtons::Stepped, this, [this, field](int delta) {
    m_form->Times().Step(field, delta);
    ShowTimes();
  });
  connect(controls.spin, &qv::SpinButtons::Left, this, [this, field] {
    if (m_form) {
      m_form->Times().LeaveField(field);
      ShowTimes();
    }
  });
}

std::unique_ptr<qv::TimeSlotForm> CDlgAddModifyTimeSlot::MakeForm() {
  return std::make_unique<qv::TimeSlotForm>(m_slot, m_hourTypes);
}

void CDlgAddModifyTimeSlot::OnInitDialog() {
  PositioningControls();
  InitializeTexts();
  ShowHourTypes();
  ShowTimes();
}

void CDlgAddModifyTimeSlot::InitializeTexts() {
  SetTitle(m_form->IsNew() ? Text::AddSlotTitle : Text::ModifySlotTitle);
  SetLabel(m_ui.labelType, m_ui.comboType, Text::HourTypes);
  SetLabel(m_ui.labelFrom, m_ui.editFromHours, Text::From);
  SetLabel(m_ui.labelTo, m_ui.editToHours, Text::To);
  for (const FieldControls& controls : m_fields) {
    const QString name = NameOf(controls.field);
    const QString unit = UnitOf(controls.field);
    for (QWidget* control :
         {static_cast<QWidget*>(controls.edit), static_cast<QWidget*>(controls.spin)}) {
      control->setAccessibleName(name);
      qv::SetPlainToolTip(control, unit);
    }
  }
  SetText(m_ui.boxGrid, Text::Diagram);
  m_grid->setAccessibleName(Worded(Text::Diagram));
  SetButton(m_ui.buttonAdd, Text::Add, L"NEW-16.png");
  SetOkCancel();
}

QString CDlgAddModifyTimeSlot::UnitOf(qv::TimeField field) const {
  return qv::OwnText(Services().loadString, field.isHours ? Text::SlotHours : Text::SlotMinutes);
}

QString CDlgAddModifyTimeSlot::NameOf(qv::TimeField field) const {
  const QString edge = Worded(field.edge == qv::SlotEdge::From ? Text::From : Text::To);
  const QString unit = UnitOf(field);
  return unit.isEmpty() ? edge : QStringLiteral("%1, %2").arg(edge, unit);
}

void CDlgAddModifyTimeSlot::ShowHourTypes() {
  std::vector<qv::ColourChoice::Entry> entries;
  for (const qv::ColouredType& type : m_form->Choices()) {
    entries.push_back({qv::ToQString(type.name), type.colour});
  }
  m_ui.comboType->ShowEntries(entries, m_form->Selected());
}

void CDlgAddModifyTimeSlot::ShowTimes() {
  m_ui.comboType->setEnabled(m_form->HasInputs());
  for (const FieldControls& controls : m_fields) {
    ShowTime(controls);
  }
  // At once: what a selection by mouse shows has to stand when the button is released, and stays
  // until the next change or damage, which show the fields.
  m_grid->repaint();
}

void CDlgAddModifyTimeSlot::ShowTime(const FieldControls& controls) {
  const QString text = QString::fromStdWString(m_form->Times().Spin(controls.field).Text());
  if (controls.edit->text() != text) {
    controls.edit->setText(text);
  }
  controls.edit->setEnabled(m_form->HasInputs());
  controls.spin->setEnabled(m_form->IsSpinEnabled(controls.field));
}

qv::TimeGrid::Picture CDlgAddModifyTimeSlot::GridPicture() const {
  if (!m_form) {
    return {.dayColour = m_dayColour};
  }
  return {.dayColour = m_dayColour,
          .selection = m_form->Times().Selection(),
          .selectionColour = m_form->SelectedColour().value_or(m_dayColour)};
}

void CDlgAddModifyTimeSlot::OnSelchangeType(int index) {
  m_form->SelectHourType(index);
  ShowTimes();
}

void CDlgAddModifyTimeSlot::OnAddHourType() {
  m_form->OnAddHourType([this](qv::XmlNode& hour) {
    CDlgAddModifyHourType editor(this, &m_hourTypes.Node(), &hour);
    return qv::RunDialog(editor);
  });
  ShowHourTypes();
  ShowTimes();
}

std::optional<int> CDlgAddModifyTimeSlot::MinuteAt(const QMouseEvent& event) const {
  return m_grid->MinuteAt(m_ui.boxGrid->mapFrom(this, event.position().toPoint()));
}

void CDlgAddModifyTimeSlot::paintEvent(QPaintEvent* event) {
  EditingDialog::paintEvent(event);
  // The grid is opaque: damage to what lies behind it would not reach it by itself.
  if (event->region().intersects(m_ui.boxGrid->geometry().adjusted(-1, -1, 1, 1))) {
    m_grid->update();
  }
}

void CDlgAddModifyTimeSlot::mousePressEvent(QMouseEvent* event) {
  const bool isLeft = m_form && event->button() == Qt::LeftButton;
  if (isLeft && m_form->Times().Press(MinuteAt(*event))) {
    ShowTimes();
  }
}

void CDlgAddModifyTimeSlot::ShowTimeUnder(const QMouseEvent& event) {
  const auto minute = MinuteAt(event);
  setCursor(minute ? Qt::CrossCursor : Qt::ArrowCursor);
  // While a selection is on, the fields show its times.
  const bool isTold = minute && event.buttons() == Qt::NoButton;
  QToolTip::showText(event.globalPosition().toPoint(),
                     isTold ? qv::ToQString(qv::TimeText(*minute)) : QString(), this);
}

void CDlgAddModifyTimeSlot::mouseMoveEvent(QMouseEvent* event) {
  ShowTimeUnder(*event);
  if (m_form && m_form->Times().Move(MinuteAt(*event))) {
    ShowTimes();
  }
}

void CDlgAddModifyTimeSlot::mouseReleaseEvent(QMouseEvent* event) {
  // A release outside isn't this dialog's: the selection goes on.
  const bool isInside = rect().contains(event->position().toPoint());
  if (m_form && event->button() == Qt::LeftButton && isInside) {
    m_form->Times().Release();
  }
}

void CDlgAddModifyTimeSlot::AddTimes(QVHoritzontalLayout& row, qv::SlotEdge edge) const {
  for (const FieldControls& controls : m_fields) {
    if (controls.field.edge == edge) {
      if (!controls.field.isHours) {
        row.AddGap(LayoutSizeStandard);
      }
      row.AddControl(controls.edit, 50);
      row.AddControl(controls.spin, QVLayout::Pixels2Size(controls.spin->width()).width);
    }
  }
}

void CDlgAddModifyTimeSlot::PositioningControls() {
  QVVerticalLayout add(this);
  add.AddGap(100);
  add.AddControl(m_ui.buttonAdd, LayoutSizeStandard);
  QVHoritzontalLayout type(this);
  qv::AddLabelled(type, m_ui.comboType, m_ui.labelType, 60);
  type.AddGap(LayoutSizeStandard);
  type.AddLayout(&add, 40);
  const auto spinHeight = QVLayout::Pixels2Size(m_ui.spinFromHours->height()).height;
  QVHoritzontalLayout fromTimes(this);
  QVHoritzontalLayout toTimes(this);
  AddTimes(fromTimes, qv::SlotEdge::From);
  AddTimes(toTimes, qv::SlotEdge::To);
  QVVerticalLayout from(this);
  QVVerticalLayout to(this);
  AddLabelled(from, m_ui.labelFrom, fromTimes, spinHeight);
  AddLabelled(to, m_ui.labelTo, toTimes, spinHeight);
  QVHoritzontalLayout times(this);
  times.AddLayout(&from, 50);
  times.AddGap(LayoutSizeStandard);
  times.AddLayout(&to, 50);
  qv::OkCancelRow buttons(this, qv::OkCancelWidth::Narrow);
  qv::DialogColumn column(this);
  column.Add(&type, LayoutSizeEdit);
  column.Add(&times, 0);
  column.Add(m_ui.boxGrid, 100);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
  m_grid->FitIntoBox();
}
