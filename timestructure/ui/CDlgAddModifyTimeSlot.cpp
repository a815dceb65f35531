#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpressionValidator>
#include <QWheelEvent>
#include <algorithm>
#include <iterator>

#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/TimeGridView.h"
#include "toolkit/ChoiceBox.h"
#include "toolkit/ColorIcons.h"
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
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,2}")), edit));
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textEdited, this, [this, controls](const QString& text) {
      m_form->Type(controls.field, text.toStdWString());
      ShowGrid();
    });
    connect(Find<qv::SpinButtons>(controls.spin), &qv::SpinButtons::Stepped, this,
            [this, controls](int delta) { Step(controls.field, delta); });
  }
  connect(Find<qv::ChoiceBox>(typeCombo), &QComboBox::activated, this, [this](int index) {
    m_form->SelectHourType(index);
    ShowGrid();
  });
  connect(Find<QPushButton>(addButton), &QPushButton::clicked, this,
          &CDlgAddModifyTimeSlot::OnAddHourType);
}

std::optional<int> CDlgAddModifyTimeSlot::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_form = std::make_unique<qv::TimeSlotForm>(*m_hourTypes, *m_slot, *m_boxes);
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
    const bool isStart = controls.field.edge == qv::SlotEdge::From;
    Control(controls.edit)
        ->setAccessibleName(qv::HostText(Services().loadString, isStart ? Text::From : Text::To));
  }
  SetText(gridBox, Text::Diagram);
  m_grid->setAccessibleName(qv::HostText(Services().loadString, Text::Diagram));
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
}

void CDlgAddModifyTimeSlot::ShowHourTypes() {
  auto* combo = Find<qv::ChoiceBox>(typeCombo);
  const QSize small = qv::SmallIconSize(combo);
  const QSize boxSize(small.width(), small.height() - 2);
  combo->clear();
  combo->setIconSize(boxSize);
  for (const qv::TypeRow& type : m_form->HourTypes()) {
    combo->addItem(qv::ColorIcon(type.colour, boxSize), qv::ToQString(type.name));
  }
  combo->setCurrentIndex(m_form->Selected().value_or(-1));
}

void CDlgAddModifyTimeSlot::ShowTimes() {
  Control(typeCombo)->setEnabled(m_form->HasInputs());
  for (const FieldControls& controls : fields) {
    auto* edit = Find<QLineEdit>(controls.edit);
    const QString text = QString::fromStdWString(m_form->Spin(controls.field).Text());
    if (edit->text() != text) {
      edit->setText(text);
    }
    edit->setEnabled(m_form->HasInputs());
    Control(controls.spin)->setEnabled(m_form->IsSpinEnabled(controls.field));
  }
  ShowGrid();
}

void CDlgAddModifyTimeSlot::ShowGrid() {
  m_grid->Show(m_form->Selection(), m_form->SelectionColour().value_or(m_dayColor), m_dayColor);
}

void CDlgAddModifyTimeSlot::Step(qv::TimeField field, int delta) {
  if (m_form->IsSpinEnabled(field)) {
    m_form->Step(field, delta);
    ShowTimes();
  }
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
  if (IsStep(*controls, event)) {
    return true;
  }
  if (event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
    m_form->LeaveField(controls->field);
    ShowTimes();
  }
  return CDialog::eventFilter(edit, event);
}

bool CDlgAddModifyTimeSlot::IsStep(const FieldControls& controls, QEvent* event) {
  int delta = 0;
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    delta = key == Qt::Key_Up ? 1 : key == Qt::Key_Down ? -1 : 0;
  } else if (event->type() == QEvent::Wheel && Control(controls.edit)->hasFocus()) {
    const int turn = static_cast<QWheelEvent*>(event)->angleDelta().y();
    delta = (turn > 0) - (turn < 0);
  }
  if (delta != 0) {
    Step(controls.field, delta);
  }
  return delta != 0;
}

std::optional<int> CDlgAddModifyTimeSlot::MinuteAt(const QMouseEvent& event) const {
  return m_grid->MinuteAt(Control(gridBox)->mapFrom(this, event.position().toPoint()));
}

void CDlgAddModifyTimeSlot::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_form->Press(MinuteAt(*event));
    ShowTimes();
  }
}

void CDlgAddModifyTimeSlot::mouseMoveEvent(QMouseEvent* event) {
  m_form->Move(MinuteAt(*event));
  ShowTimes();
}

void CDlgAddModifyTimeSlot::mouseReleaseEvent(QMouseEvent* event) {
  // A release outside isn't this dialog's: the selection goes on.
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    m_form->Release();
  }
}

void CDlgAddModifyTimeSlot::PositioningControls() {
  const QSize spin = Control(fromHoursSpin)->size();
  const auto spinWidth = QVLayout::Pixels2Size(spin.width()).width;
  const auto spinHeight = QVLayout::Pixels2Size(spin.height()).height;
  QVVerticalLayout add(this);
  add.AddGap(100);
  add.AddControl(addButton, LayoutSizeStandard);
  QVHoritzontalLayout type(this);
  type.AddControlAndLabel(typeCombo, typeLabel, 60, 2, LayoutSizeLabel);
  type.AddGap(LayoutSizeStandard);
  type.AddLayout(&add, 40);
  QVHoritzontalLayout rows[] = {QVHoritzontalLayout(this), QVHoritzontalLayout(this)};
  QVVerticalLayout edges[] = {QVVerticalLayout(this), QVVerticalLayout(this)};
  QVHoritzontalLayout times(this);
  for (std::size_t edge = 0; edge < std::size(rows); ++edge) {
    const FieldControls& hours = fields[2 * edge];
    const FieldControls& minutes = fields[2 * edge + 1];
    rows[edge].AddControl(hours.edit, 50);
    rows[edge].AddControl(hours.spin, spinWidth);
    rows[edge].AddGap(LayoutSizeStandard);
    rows[edge].AddControl(minutes.edit, 50);
    rows[edge].AddControl(minutes.spin, spinWidth);
    edges[edge].AddControl(edge == 0 ? fromLabel : toLabel, LayoutSizeLabel);
    edges[edge].AddGap(LayoutSizeLabelGap);
    edges[edge].AddLayout(&rows[edge], spinHeight);
    if (edge > 0) {
      times.AddGap(LayoutSizeStandard);
    }
    times.AddLayout(&edges[edge], 50);
  }
  QVHoritzontalLayout buttons(this);
  buttons.AddGap(10);
  buttons.AddControl(IDOK, 40);
  buttons.AddGap(LayoutSizeStandard);
  buttons.AddControl(IDCANCEL, 40);
  buttons.AddGap(10);
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
  if (m_form->Save()) {
    CDialog::OnOK();
  }
}

void CDlgAddModifyTimeSlot::OnDestroy() {
  m_modified = m_form->IsModified();
  m_form.reset();
  m_boxes.reset();
}
