#include "apps/configurator/StartWindow.h"

#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "apps/configurator/Boxes.h"
#include "apps/configurator/InstallationCopy.h"

namespace configurator {
namespace {

/// What fits the longest hint of both languages in one line.
constexpr int startWidth = 560;

QLabel* WrappedLabel(const QString& text) {
  auto* label = new QLabel(text);
  // The names of files in it are no markup.
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

StartWindow::StartWindow(Workspace& workspace, const QString& note) : m_workspace(workspace) {
  setWindowTitle(m_workspace.Words(OwnText::ProgramName));
  auto* column = new QVBoxLayout(this);
  AddHeading(*column, note);
  AddChoices(*column);
  AddQuit(*column);
  resize(startWidth, layout()->totalHeightForWidth(startWidth));
}

void StartWindow::AddHeading(QVBoxLayout& column, const QString& note) {
  if (!note.isEmpty()) {
    auto* told = WrappedLabel(note);
    told->setObjectName(QStringLiteral("note"));
    column.addWidget(told);
    column.addSpacing(column.spacing());
  }
  auto* question = WrappedLabel(m_workspace.Words(OwnText::StartQuestion));
  QFont font = question->font();
  font.setBold(true);
  question->setFont(font);
  column.addWidget(question);
}

void StartWindow::AddChoices(QVBoxLayout& column) {
  column.addWidget(NewChoice(OwnText::OpenInstallation, OwnText::OpenHint,
                             style()->standardIcon(QStyle::SP_DialogOpenButton),
                             &StartWindow::OnOpen));
  column.addWidget(NewChoice(OwnText::MakeInstallation, OwnText::MakeHint,
                             style()->standardIcon(QStyle::SP_FileDialogNewFolder),
                             &StartWindow::OnMake));
  column.addWidget(NewChoice(OwnText::TakeExample, OwnText::ExampleHint,
                             QIcon(m_workspace.ImageFile("PROGRAM-1.png")),
                             &StartWindow::OnExample));
}

void StartWindow::AddQuit(QVBoxLayout& column) {
  auto* buttons = new QDialogButtonBox;
  QPushButton* quit =
      buttons->addButton(m_workspace.Words(OwnText::Quit), QDialogButtonBox::RejectRole);
  connect(quit, &QPushButton::clicked, this, &QDialog::reject);
  column.addWidget(buttons);
}

QCommandLinkButton* StartWindow::NewChoice(OwnText text, OwnText hint, const QIcon& icon,
                                           void (StartWindow::*run)()) {
  auto* choice = new QCommandLinkButton(m_workspace.Words(text), m_workspace.Words(hint));
  choice->setIcon(icon);
  choice->setAutoDefault(true);
  connect(choice, &QPushButton::clicked, this, run);
  return choice;
}

void StartWindow::OnOpen() {
  const QString directory = AskForDirectory(OwnText::OpenInstallation);
  if (!directory.isEmpty()) {
    End(m_workspace.Open(directory));
  }
}

void StartWindow::OnMake() {
  const QString directory = AskForDirectory(OwnText::MakeWhere);
  if (directory.isEmpty()) {
    return;
  }
  if (QFile::exists(QDir(directory).filePath(QStringLiteral("configuration.xml")))) {
    End(m_workspace.Words(OwnText::InstallationThere).arg(directory));
    return;
  }
  const auto problem = m_workspace.Open(directory);
  End(problem ? problem : m_workspace.Save());
}

void StartWindow::OnExample() {
  const QString directory = AskForDirectory(OwnText::ExampleWhere);
  if (directory.isEmpty()) {
    return;
  }
  const auto copy = CopyInstallation(m_workspace.ExampleDirectory(), directory,
                                     m_workspace.Words(OwnText::ExampleName));
  End(copy ? m_workspace.Open(*copy) : m_workspace.Words(OwnText::ExampleNotCopied).arg(directory));
}

QString StartWindow::AskForDirectory(OwnText title) {
  return QFileDialog::getExistingDirectory(this, TitleOf(m_workspace.Words(title)),
                                           QDir::homePath());
}

void StartWindow::End(const Workspace::Problem& problem) {
  if (problem) {
    ShowProblem(*problem, m_workspace, this);
  } else {
    accept();
  }
}

}  // namespace configurator
