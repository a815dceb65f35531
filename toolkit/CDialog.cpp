#include "toolkit/CDialog.h"

#include <QApplication>
#include <QFile>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "toolkit/CImageButton.h"
#include "toolkit/Caption.h"
#include "toolkit/Controls.h"
#include "toolkit/QVHyperlink.h"
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

/// Gives `widget` a caption as it stands, without mnemonics or rich text.
void SetCaption(QWidget* widget, const QString& caption) {
  if (auto* imageButton = qobject_cast<CImageButton*>(widget)) {
    imageButton->SetCaption(caption);
  } else if (auto* link = qobject_cast<QVHyperlink*>(widget)) {
    link->SetCaption(caption);
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(qv::LiteralText(caption));
  } else if (auto* box = qobject_cast<QGroupBox*>(widget)) {
    box->setTitle(qv::LiteralText(caption));
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    label->setText(caption);
  }
}

}  // namespace

CDialog::CDialog(Template build, CWnd* parent) : QDialog(parent) {
  build(this);
  ScaleTemplate();
  PrepareControls();
}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
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

void CDialog::SetText(int id, Text text) {
  const QString caption = qv::HostText(Services().loadString, text);
  if (id == 0) {
    setWindowTitle(caption);
  } else {
    SetCaption(Control(id), caption);
  }
}

void CDialog::SetLabel(int labelId, int controlId, Text text) {
  SetText(labelId, text);
  Control(controlId)->setAccessibleName(qv::HostText(Services().loadString, text));
}

void CDialog::SetButton(int id, Text text, const wchar_t* fileName) {
  SetText(id, text);
  const QVWideString path = Services().setup.getImageFilePath() + fileName;
  if (auto* button = qobject_cast<CImageButton*>(Control(id))) {
    button->SetImage(path, static_cast<unsigned long>(-1), false);
  } else if (auto* link = qobject_cast<QVHyperlink*>(Control(id))) {
    link->SetImage(path);
  }
}

void CDialog::KeepAsLeastSize() { setMinimumSize(size()); }

void CDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (m_initialized) {
    PositioningControls();
    update();
  }
}

void CDialog::ScaleTemplate() {
  const DialogUnit unit(font());
  const QSize client = unit.Pixels(rect()).size();
  const auto children = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (QWidget* child : children) {
    child->setGeometry(unit.Pixels(child->geometry()));
  }
  if (property("sizable").toBool()) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(client);
  } else {
    setFixedSize(client);
  }
}

void CDialog::PrepareControls() {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  const auto labels = findChildren<QLabel*>();
  for (QLabel* label : labels) {
    label->setTextFormat(Qt::PlainText);
  }
  const auto buttons = findChildren<QPushButton*>();
  for (QPushButton* button : buttons) {
    button->setAutoDefault(false);
  }
  if (auto* ok = qobject_cast<QPushButton*>(Control(IDOK))) {
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] { OnOK(); });
  }
  if (auto* cancel = qobject_cast<QPushButton*>(Control(IDCANCEL))) {
    connect(cancel, &QPushButton::clicked, this, [this] { OnCancel(); });
  }
}

void CDialog::SetProgramIcon() {
  const auto& setup = Services().setup;
  const QString path = QStringLiteral("%1PROGRAM-%2.png")
                           .arg(qv::ToQString(setup.getImageFilePath()))
                           .arg(setup.ProgramIDResource() & 0xFFFF);
  setWindowIcon(QFile::exists(path) ? QIcon(path) : QApplication::windowIcon());
}
