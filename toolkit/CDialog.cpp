#include "toolkit/CDialog.h"

#include <QApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "toolkit/ControlCaption.h"
#include "toolkit/Controls.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace {

/// Pixels of one dialog unit: a quarter of the average width of a letter, an eighth of a line's
/// height.
struct DialogUnit {
  double x;
  double y;

  explicit DialogUnit(const QFont& font) {
    static const auto letters =
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const QFontMetricsF metrics(font);
    x = metrics.horizontalAdvance(letters) / static_cast<double>(letters.size()) / 4;
    y = metrics.height() / 8;
  }

  QRect Pixels(const QRect& units) const {
    return QRectF(units.x() * x, units.y() * y, units.width() * x, units.height() * y).toRect();
  }
};

/// Turns the sizes of a template, in dialog units, into pixels.
void ScaleTemplate(QDialog& dialog) {
  const DialogUnit unit(dialog.font());
  const QSize client = unit.Pixels(dialog.rect()).size();
  const auto children = dialog.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (QWidget* child : children) {
    child->setGeometry(unit.Pixels(child->geometry()));
  }
  if (dialog.property("sizable").toBool()) {
    dialog.setWindowFlag(Qt::WindowMaximizeButtonHint);
    dialog.resize(client);
  } else {
    dialog.setFixedSize(client);
  }
}

/// Takes from the controls what Qt would do by itself.
void TameControls(const QDialog& dialog) {
  const auto labels = dialog.findChildren<QLabel*>();
  for (QLabel* label : labels) {
    label->setTextFormat(Qt::PlainText);
  }
}

}  // namespace

CDialog::CDialog(CWnd* parent) : QDialog(parent) {}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
  m_result.reset();
  if (const auto refused = OnCreate()) {
    return *refused;
  }
  // If the parent is destroyed while events come in, this dialog dies with it.
  const QPointer<CDialog> alive(this);
  SetProgramIcon();
  OnInitDialog();
  if (alive && !m_result) {
    m_initialized = true;
    exec();
  }
  if (!alive) {
    return IDCANCEL;
  }
  m_initialized = false;
  OnDestroy();
  return m_result.value_or(IDCANCEL);
}

QWidget* CDialog::Control(int id) const { return qv::FindControl(this, id); }

std::optional<int> CDialog::OnCreate() {
  m_host.reset();
  if (const auto installed = qv::InstalledHost()) {
    m_host.emplace(*installed);
  }
  return m_host ? std::nullopt : std::optional(-1);
}

void CDialog::EndDialog(int result) {
  m_result = result;
  done(result);
}

QString CDialog::Worded(Text text) const { return qv::HostText(Services().loadString, text); }

void CDialog::SetTitle(Text text) { setWindowTitle(Worded(text)); }

void CDialog::SetText(QWidget* control, Text text) {
  qv::ShowCaption(control, qv::HostCaption(Services().loadString, text));
}

void CDialog::SetLabel(QWidget* label, QWidget* control, Text text) {
  if (auto* caption = qobject_cast<QLabel*>(label)) {
    caption->setBuddy(control);
  }
  SetText(label, text);
  control->setAccessibleName(Worded(text));
}

void CDialog::SetButton(QWidget* button, Text text, const wchar_t* fileName) {
  SetText(button, text);
  qv::ShowPicture(button, Services().setup.getImageFilePath() + fileName);
}

void CDialog::SetOkCancel(Text ok, Text cancel) {
  SetButton(Control(IDOK), ok, L"OK-16.png");
  SetButton(Control(IDCANCEL), cancel, L"CANCEL-16.png");
}

void CDialog::KeepAsLeastSize() { setMinimumSize(size()); }

void CDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (m_initialized) {
    PositioningControls();
    update();
  }
}

void CDialog::AdoptTemplate() {
  ScaleTemplate(*this);
  TameControls(*this);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  if (auto* ok = qobject_cast<QPushButton*>(Control(IDOK))) {
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] { OnOK(); });
  }
  if (auto* cancel = qobject_cast<QPushButton*>(Control(IDCANCEL))) {
    connect(cancel, &QPushButton::clicked, this, [this] { OnCancel(); });
  }
}

void CDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // What was opened by keyboard goes on by keyboard, and its user has to see where.
  if (parentWidget() && parentWidget()->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
    setAttribute(Qt::WA_KeyboardFocusChange);
  }
}

void CDialog::SetProgramIcon() {
  const auto& setup = Services().setup;
  const QString path = QStringLiteral("%1PROGRAM-%2.png")
                           .arg(qv::ToQString(setup.getImageFilePath()))
                           .arg(setup.ProgramIDResource() & 0xFFFF);
  setWindowIcon(QFile::exists(path) ? QIcon(path) : QApplication::windowIcon());
}
