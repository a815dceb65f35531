#include "toolkit/MessageBoxes.h"

#include <QAbstractButton>
#include <QMessageBox>

#include "host/Mnemonic.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

constexpr char textNumberProperty[] = "textNumber";

}  // namespace

MessageBoxes::MessageBoxes(QWidget* window, const QVLoadString& loadString)
    : m_window(window), m_loadString(loadString) {}

void MessageBoxes::Show(Text text, const Arguments& arguments) {
  QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, m_window);
  box.setProperty(textNumberProperty, Number(text));
  Prepare(box, Worded(text, arguments));
  box.exec();
}

bool MessageBoxes::Ask(Text text, const Arguments& arguments) {
  QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, m_window);
  box.setProperty(textNumberProperty, Number(text));
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  Prepare(box, Worded(text, arguments));
  return box.exec() == QMessageBox::Yes;
}

void MessageBoxes::ShowText(std::wstring_view text) {
  QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, m_window);
  Prepare(box, ToQString(text));
  box.exec();
}

QString MessageBoxes::Worded(Text text, const Arguments& arguments) const {
  const std::wstring wording = WithoutMnemonic(m_loadString.Load(text).ToView());
  // A text without arguments is no format: its per cent signs stand for themselves.
  return ToQString(arguments.empty() ? wording : Format(wording, arguments));
}

void MessageBoxes::Prepare(QMessageBox& box, const QString& text) const {
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setWindowTitle(m_window ? m_window->window()->windowTitle() : QString());
  Rename(box, QMessageBox::Ok, Text::MessageOk);
  Rename(box, QMessageBox::Yes, Text::MessageYes);
  Rename(box, QMessageBox::No, Text::MessageNo);
}

void MessageBoxes::Rename(QMessageBox& box, int button, Text caption) const {
  QAbstractButton* found = box.button(static_cast<QMessageBox::StandardButton>(button));
  if (found && m_loadString.Has(Number(caption))) {
    found->setText(HostCaption(m_loadString, caption));
  }
}

}  // namespace qv
