#include "toolkit/MessageBoxes.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>

#include "host/Mnemonic.h"
#include "toolkit/Caption.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

constexpr char textNumberProperty[] = "textNumber";
constexpr wchar_t warningPicture[] = L"WARNING-32.png";
constexpr wchar_t questionPicture[] = L"QUESTION-32.png";

}  // namespace

MessageBoxes::MessageBoxes(QWidget* window, const Host& host) : m_window(window), m_host(host) {}

void MessageBoxes::Show(Text text, const Arguments& arguments, const Addition& addition) {
  if (m_host.loadString.IsMute(text)) {
    return;
  }
  QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, VisibleWindow());
  box.setProperty(textNumberProperty, Number(text));
  Prepare(box, Worded(text, arguments), warningPicture);
  Add(box, addition);
  box.exec();
}

bool MessageBoxes::Ask(Text text, const Arguments& arguments, const Addition& addition) {
  QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No,
                  VisibleWindow());
  box.setProperty(textNumberProperty, Number(text));
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  Prepare(box, Worded(text, arguments), questionPicture);
  Add(box, addition);
  return box.exec() == QMessageBox::Yes;
}

void MessageBoxes::ShowText(std::wstring_view text, const Addition& addition) {
  QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, VisibleWindow());
  Prepare(box, ToQString(text), warningPicture);
  Add(box, addition);
  box.exec();
}

QWidget* MessageBoxes::VisibleWindow() const {
  QWidget* window = m_window;
  while (window && !window->isVisible()) {
    window = window->parentWidget();
  }
  return window;
}

QString MessageBoxes::Worded(Text text, const Arguments& arguments) const {
  const std::wstring wording = WithoutMnemonic(m_host.loadString.Load(text).ToView());
  // A text without arguments is no format: its per cent signs stand for themselves.
  return ToQString(arguments.empty() ? wording : Format(wording, arguments));
}

void MessageBoxes::Prepare(QMessageBox& box, const QString& text, const wchar_t* picture) const {
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setWindowTitle(m_window ? m_window->window()->windowTitle() : QString());
  if (const QIcon icon = Picture(picture); !icon.isNull()) {
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    box.setIconPixmap(icon.pixmap(QSize(size, size), box.devicePixelRatioF()));
  }
  Dress(box, QMessageBox::Ok, Text::MessageOk, L"OK-16.png");
  Dress(box, QMessageBox::Yes, Text::MessageYes, L"OK-16.png");
  Dress(box, QMessageBox::No, Text::MessageNo, L"CANCEL-16.png");
}

void MessageBoxes::Add(QMessageBox& box, const Addition& addition) const {
  box.setInformativeText(ToQString(InWords(addition, m_host.loadString)));
  // The box gives its own format to the text alone, and would take names with tags for rich text.
  const auto labels = box.findChildren<QLabel*>();
  for (QLabel* label : labels) {
    label->setTextFormat(Qt::PlainText);
  }
}

void MessageBoxes::Dress(QMessageBox& box, int button, Text caption, const wchar_t* picture) const {
  QAbstractButton* found = box.button(static_cast<QMessageBox::StandardButton>(button));
  if (!found) {
    return;
  }
  if (m_host.loadString.Has(Number(caption))) {
    found->setText(HostCaption(m_host.loadString, caption));
  }
  if (const QIcon icon = Picture(picture); !icon.isNull()) {
    found->setIcon(icon);
  }
}

QIcon MessageBoxes::Picture(const wchar_t* fileName) const {
  return PictureIcon(m_host.setup.getImageFilePath() + fileName);
}

}  // namespace qv
