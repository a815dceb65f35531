#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpressionValidator>
#include <algorithm>
#include <iterator>

#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/TimeGridView.h"
#include "toolkit/ChoiceBox.h"
#include "toolkit/ColourIcons.h"
#include "toolkit/OkCancel.h"
#include "toolkit/QVLayout.h"
#include "toolkit/RunDialog.h"
#include "toolkit/SpinButtons.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "ui_1304.h"

namespace {

constexpr int gridBox = 5301;
constexpr int typeLabel = 5304;
constexpr int typeCombo = 5305;
constexpr int fromLabel = 5306;
constexpr int toLabel = 5308;
constexpr int fromHoursSpin = 5311;
constexpr int fromHoursEdit = 5313;
constexpr int fromMinutesSpin = 5315;
constexpr int fromMinutesEdit = 5316;
constexpr int toHoursSpin = 5318;
constexpr int toHoursEdit = 5320;
constexpr int toMinutesSpin = 5322;
constexpr int toMinutesEdit = 5324;
constexpr int addButton = 5348;

void BuildTemplate(QDialog* dialog) { Ui::Template1304().setupUi(dialog); }

/// A label above a row of controls.
void AddLabelled(QVVerticalLayout& column, int label, QVHoritzontalLayout& row, LayoutSize height) {
  column.AddControl(label, LayoutSizeLabel);
  column.AddGap(LayoutSizeLabelGap);
  column.AddLayout(&row, height);
}

}  // namespace

const CDlgAddModifyTimeSlot::FieldControls CDlgAddModifyTimeSlot::fields[] = {
    {{qv::SlotEdge::From, true}, fromHoursEdit, fromHoursSpin},
    {{qv::SlotEdge::From, false}, fromMinutesEdit, fromMinutesSpin},
    {{qv::SlotEdge::To, true}, toHoursEdit, toHoursSpin},
    {{qv::SlotEdge::To, false}, toMinutesEdit, toMinutesSpin},
};

CDlgAddModifyTimeSlot::CDlgAddModifyTimeSlot(CWnd* parent, qv::XmlNode* hourTypes,
                                             qv::XmlNode* slot, COLORREF dayColor)
    : CDialog(BuildTemplate, parent),
      m_hourTypes(hourTypes),
      m_slot(slot),
      m_dayColor(dayColor),
      m_grid(new qv::TimeGridView(Control(gridBox))) {
  // The dialog follows the pointer over the grid, also without a button.
  Control(gridBox)->setAttribute(Qt::WA_TransparentForMouseEvents);
  setMouseTracking(true);
  Connect();
}

CDlgAddModifyTimeSlot::~CDlgAddModifyTimeSlot() = default;

void CDlgAddModifyTimeSlot::Connect() {
  for (const FieldControls& controls : fields) {
    auto* edit = Find<QLineEdit>(controls.edit);
    edit->setMaxLength(2);
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textEdited, this, [this, controls](const QString& text) {
      m_form->Times().Type(controls.field, text.toStdWString());
      ShowTimes();
    });
    auto* spin = Find<qv::SpinButtons>(controls.spin);
    spin->SetBuddy(edit);
    connect(spin, &qv::SpinButtons::Stepped, this, [this, controls](int delta) {
      m_form->Times().Step(controls.field, delta);
      ShowTimes();
    });
  }
  connect(Find<qv::ChoiceBox>(typeCombo), &QComboBox::activated, this, [this](int index) {
    m_form->SelectHourType(index);
    ShowTimes();
  });
  connect(Find<QPushButton>(addButton), &QPushButton::clicked, this,
          &CDlgAddModifyTimeSlot::OnAddHourType);
}

std::optional<int> CDlgAddModifyTimeSlot::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_form = std::make_unique<qv::TimeSlotForm>(*m_slot, qv::HourTypes(*m_hourTypes));
  return std::nullopt;
}

void CDlgAddModifyTimeSlot::OnInitDialog() {
  PositioningControls();
  InitializeTexts();
  ShowHourTypes();
  ShowTimes();
}

void CDlgAddModifyTimeSlot::InitializeTexts() {
  SetText(0, m_form->IsNew() ? Text::AddSlotTitle : Text::ModifySlotTitle);
  SetLabel(typeLabel, typeCombo, Text::HourTypes);
  SetText(fromLabel, Text::From);
  SetText(toLabel, Text::To);
  for (const FieldControls& controls : fields) {
    const QString name = NameOf(controls.field);
    Control(controls.edit)->setAccessibleName(name);
    Control(controls.spin)->setAccessibleName(name);
  }
  SetText(gridBox, Text::Diagram);
  m_grid->setAccessibleName(qv::HostText(Services().loadString, Text::Diagram));
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
}

QString CDlgAddModifyTimeSlot::NameOf(qv::TimeField field) const {
  const auto& loadString = Services().loadString;
  const QString edge =
      qv::HostText(loadString, field.edge == qv::SlotEdge::From ? Text::From : Text::To);
  const QString unit = qv::OwnText(loadString, field.isHours ? Text::SlotHours : Text::SlotMinutes);
  return unit.isEmpty() ? edge : QStringLiteral("%1, %2").arg(edge, unit);
}

void CDlgAddModifyTimeSlot::ShowHourTypes() {
  auto* combo = Find<qv::ChoiceBox>(typeCombo);
  const QSize small = qv::SmallIconSize(combo);
  const QSize boxSize(small.width(), small.height() - 2);
  combo->clear();
  combo->setIconSize(boxSize);
  for (const qv::ColouredType& type : m_form->Choices()) {
    combo->addItem(qv::ColourIcon(type.colour, boxSize), qv::ToQString(type.name));
  }
  combo->setCurrentIndex(m_form->Selected().value_or(-1));
}

void CDlgAddModifyTimeSlot::ShowTimes() {
  Control(typeCombo)->setEnabled(m_form->HasInputs());
  for (const FieldControls& controls : fields) {
    auto* edit = Find<QLineEdit>(controls.edit);
    const QString text = QString::fromStdWString(m_form->Times().Spin(controls.field).Text());
    if (edit->text() != text) {
      edit->setText(text);
    }
    edit->setEnabled(m_form->HasInputs());
    Control(controls.spin)->setEnabled(m_form->IsSpinEnabled(controls.field));
  }
  ShowGrid();
}

void CDlgAddModifyTimeSlot::ShowGrid() {
  m_grid->SetPicture({.dayColour = m_dayColor,
                      .selection = m_form->Times().Selection(),
                      .selectionColour = m_form->SelectedColour().value_or(m_dayColor)});
}

void CDlgAddModifyTimeSlot::OnAddHourType() {
  m_form->OnAddHourType([this](qv::XmlNode& hour) {
    CDlgAddModifyHourType editor(this, m_hourTypes, &hour);
    return qv::RunDialog<qv::EditorEnd>(editor);
  });
  ShowHourTypes();
  ShowTimes();
}

bool CDlgAddModifyTimeSlot::eventFilter(QObject* edit, QEvent* event) {
  const auto* controls =
      std::find_if(std::begin(fields), std::end(fields),
                   [&](const FieldControls& known) { return Control(known.edit) == edit; });
  if (controls == std::end(fields) || !m_form) {
    return CDialog::eventFilter(edit, event);
  }
  if (event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
    m_form->Times().LeaveField(controls->field);
    ShowTimes();
  }
  return CDialog::eventFilter(edit, event);
}

std::optional<int> CDlgAddModifyTimeSlot::MinuteAt(const QMouseEvent& event) const {
  return m_grid->MinuteAt(Control(gridBox)->mapFrom(this, event.position().toPoint()));
}

void CDlgAddModifyTimeSlot::mousePressEvent(QMouseEvent* event) {
  if (m_form && event->button() == Qt::LeftButton && m_form->Times().Press(MinuteAt(*event))) {
    ShowTimes();
  }
}

void CDlgAddModifyTimeSlot::mouseMoveEvent(QMouseEvent* event) {
  if (m_form && m_form->Times().Move(MinuteAt(*event))) {
    ShowTimes();
  }
}

void CDlgAddModifyTimeSlot::mouseReleaseEvent(QMouseEvent* event) {
  // A release outside isn't this dialog's: the selection goes on.
  if (m_form && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    m_form->Times().Release();
  }
}

void CDlgAddModifyTimeSlot::AddTimes(QVHoritzontalLayout& row, qv::SlotEdge edge) const {
  for (const FieldControls& controls : fields) {
    if (controls.field.edge == edge) {
      if (!controls.field.isHours) {
        row.AddGap(LayoutSizeStandard);
      }
      row.AddControl(controls.edit, 50);
      row.AddControl(controls.spin, QVLayout::Pixels2Size(Control(controls.spin)->width()).width);
    }
  }
}

void CDlgAddModifyTimeSlot::PositioningControls() {
  QVVerticalLayout add(this);
  add.AddGap(100);
  add.AddControl(addButton, LayoutSizeStandard);
  QVHoritzontalLayout type(this);
  type.AddControlAndLabel(typeCombo, typeLabel, 60, 2, LayoutSizeLabel);
  type.AddGap(LayoutSizeStandard);
  type.AddLayout(&add, 40);
  const auto spinHeight = QVLayout::Pixels2Size(Control(fromHoursSpin)->height()).height;
  QVHoritzontalLayout fromTimes(this);
  QVHoritzontalLayout toTimes(this);
  AddTimes(fromTimes, qv::SlotEdge::From);
  AddTimes(toTimes, qv::SlotEdge::To);
  QVVerticalLayout from(this);
  QVVerticalLayout to(this);
  AddLabelled(from, fromLabel, fromTimes, spinHeight);
  AddLabelled(to, toLabel, toTimes, spinHeight);
  QVHoritzontalLayout times(this);
  times.AddLayout(&from, 50);
  times.AddGap(LayoutSizeStandard);
  times.AddLayout(&to, 50);
  QVHoritzontalLayout buttons(this);
  qv::AddNarrowOkCancel(buttons);
  QVVerticalLayout column(this);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&type, LayoutSizeEdit);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&times, 0);
  column.AddGap(LayoutSizeStandard);
  column.AddControl(gridBox, 100);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&buttons, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.Layout(rect());
  m_grid->FitIntoBox();
}

void CDlgAddModifyTimeSlot::OnOK() {
  const qv::SaveEnd end = m_form->Save();
  if (end.refusal) {
    Tell(*m_boxes, *end.refusal);
  }
  if (end.IsDone()) {
    CDialog::OnOK();
  }
}

void CDlgAddModifyTimeSlot::OnDestroy() {
  m_modified = m_form->IsModified();
  m_form.reset();
  m_boxes.reset();
}
