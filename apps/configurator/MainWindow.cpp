#include "apps/configurator/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "apps/configurator/Boxes.h"
#include "apps/configurator/DeviceTree.h"
#include "apps/configurator/DeviceTreeEditor.h"
#include "apps/configurator/DeviceTreeView.h"
#include "apps/configurator/DiscriminatorEntries.h"
#include "apps/configurator/DiscriminatorManager.h"
#include "apps/configurator/LanguageMenu.h"
#include "apps/configurator/StatusLine.h"

namespace configurator {
namespace {

constexpr QSize firstSize(760, 520);

/// `text` where "[*]" means the mark of unsaved changes, as it stands.
QString WithoutMark(QString text) {
  return text.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace

MainWindow::MainWindow(Workspace& workspace)
    : m_workspace(workspace), m_statusLine(new StatusLine(this)) {
  MakeCentre();
  MakeFileMenu();
  MakeEditMenu();
  MakeSettingsMenu();
  MakeHelpMenu();
  MakeToolbar();
  setStatusBar(m_statusLine);
  resize(firstSize);
  m_workspace.Services().SetListener([this](int id) { m_statusLine->AddNotice(id); });
  ShowInstallation();
  ShowTexts();
}

MainWindow::~MainWindow() { m_workspace.Services().SetListener({}); }

void MainWindow::Open(const QString& directory) {
  if (!MayLeaveInstallation()) {
    return;
  }
  if (const auto problem = m_workspace.Open(directory)) {
    ShowProblem(*problem, m_workspace, this);
  } else {
    m_editor->Forget();
    ShowInstallation();
    ShowDocument();
    emit Opened(m_workspace.Directory());
  }
}

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayLeaveInstallation()); }

bool MainWindow::MayLeaveInstallation() {
  m_tree->CommitName();
  if (!m_workspace.Config().IsChanged()) {
    return true;
  }
  const QString question =
      m_workspace.Words(OwnText::SaveChangesQuestion).arg(m_workspace.Directory());
  switch (AskAboutChanges(question, m_workspace, this)) {
    case QMessageBox::Save:
      return OnSave();
    case QMessageBox::Discard:
      return true;
    default:
      return false;
  }
}

QAction* MainWindow::Captioned(QAction* action, OwnText text) {
  m_captions.emplace_back(action, text);
  return action;
}

QMenu* MainWindow::NewMenu(OwnText text) {
  QMenu* menu = menuBar()->addMenu(QString());
  Captioned(menu->menuAction(), text);
  return menu;
}

void MainWindow::MakeFileMenu() {
  const auto icon = [this](const char* name, QStyle::StandardPixmap otherwise) {
    return QIcon::fromTheme(QString::fromLatin1(name), style()->standardIcon(otherwise));
  };
  QMenu* menu = NewMenu(OwnText::FileMenu);
  m_open = Captioned(menu->addAction(icon("document-open", QStyle::SP_DialogOpenButton), QString(),
                                     this, &MainWindow::OnOpen),
                     OwnText::OpenInstallation);
  m_open->setShortcut(Qt::CTRL | Qt::Key_O);
  m_save = Captioned(menu->addAction(icon("document-save", QStyle::SP_DialogSaveButton), QString(),
                                     this, &MainWindow::OnSave),
                     OwnText::Save);
  m_save->setShortcut(Qt::CTRL | Qt::Key_S);
  m_save->setObjectName(QStringLiteral("save"));
  menu->addSeparator();
  QAction* quit =
      Captioned(menu->addAction(icon("application-exit", QStyle::SP_DialogCloseButton), QString()),
                OwnText::Quit);
  quit->setShortcut(Qt::CTRL | Qt::Key_Q);
  connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::MakeEditMenu() {
  m_editor = new DeviceTreeEditor(m_workspace, *m_tree, this);
  QMenu* menu = NewMenu(OwnText::EditMenu);
  m_editor->AddTo(*menu);
  menu->addSeparator();
  QAction* manage = Captioned(
      menu->addAction(m_discriminators->icon(), QString(), this, &MainWindow::OnDiscriminators),
      OwnText::ManageDiscriminators);
  manage->setShortcut(Qt::CTRL | Qt::Key_D);
  m_tree->addAction(manage);
  // The event that asks for it is over by then: the manager changes the lines.
  connect(m_tree, &DeviceTreeView::DiscriminatorActivated, this, &MainWindow::OnDiscriminators,
          Qt::QueuedConnection);
  connect(m_editor, &DeviceTreeEditor::Changed, this, &MainWindow::ShowDocument);
}

void MainWindow::MakeSettingsMenu() {
  QMenu* menu = NewMenu(OwnText::SettingsMenu);
  m_languages = new LanguageMenu(menu);
  Captioned(menu->addMenu(m_languages), OwnText::LanguageMenu);
  connect(m_languages, &LanguageMenu::Chosen, this, &MainWindow::OnLanguage);
  m_embedded = Captioned(menu->addAction(QString()), OwnText::EmbeddedInstallation);
  m_embedded->setObjectName(QStringLiteral("embedded"));
  m_embedded->setCheckable(true);
  connect(m_embedded, &QAction::triggered, this, &MainWindow::OnEmbedded);
}

void MainWindow::MakeHelpMenu() {
  QMenu* menu = NewMenu(OwnText::HelpMenu);
  Captioned(menu->addAction(QString(), this, &MainWindow::OnAbout), OwnText::About)
      ->setObjectName(QStringLiteral("about"));
}

void MainWindow::MakeToolbar() {
  m_toolbar = addToolBar(QString());
  m_toolbar->setMovable(false);
  m_toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
  m_toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_toolbar->addAction(m_open);
  m_toolbar->addAction(m_save);
}

void MainWindow::MakeCentre() {
  const QIcon icon(m_workspace.ImageFile("DISCRIMINATORVARIABLES-16.png"));
  m_tree = new DeviceTreeView(icon);
  m_discriminators = new QPushButton(icon, QString());
  m_discriminators->setObjectName(QStringLiteral("discriminators"));
  connect(m_discriminators, &QPushButton::clicked, this, &MainWindow::OnDiscriminators);
  setCentralWidget(new QWidget);
  auto* column = new QVBoxLayout(centralWidget());
  column->addWidget(m_tree, 1);
  column->addWidget(m_discriminators, 0, Qt::AlignLeft);
}

void MainWindow::OnOpen() {
  const QString directory = QFileDialog::getExistingDirectory(
      this, TitleOf(m_workspace.Words(OwnText::OpenInstallation)), m_workspace.Directory());
  if (!directory.isEmpty()) {
    Open(directory);
  }
}

bool MainWindow::OnSave() {
  m_tree->CommitName();
  const auto problem = m_workspace.Save();
  if (problem) {
    ShowProblem(*problem, m_workspace, this);
  } else {
    m_statusLine->Tell(OwnText::ConfigurationSaved);
  }
  ShowState();
  return !problem;
}

void MainWindow::OnLanguage(qv::Language language) {
  if (const auto problem = m_workspace.SetLanguage(language)) {
    ShowProblem(*problem, m_workspace, this);
  } else {
    emit LanguageChosen(language);
  }
  ShowTexts();
}

void MainWindow::OnEmbedded(bool embedded) {
  m_workspace.Config().SetEmbedded(embedded);
  ShowState();
}

void MainWindow::OnDiscriminators() {
  m_tree->CommitName();
  m_statusLine->Tell(OwnText::Ready);
  const auto before = DiscriminatorEntriesOf(m_workspace.Config().DeviceGroups());
  const ManagerEnd end = RunDiscriminatorManager(m_workspace, this);
  // What was undone before could not be redone on the tree that the manager leaves.
  m_editor->Forget();
  // Files and tree may have changed in every case: the result speaks of the configuration alone.
  ShowDocument();
  m_tree->Select(EntriesSince(before, DiscriminatorEntriesOf(m_workspace.Config().DeviceGroups())));
  if (end.problem) {
    ShowProblem(*end.problem, m_workspace, this);
  }
}

void MainWindow::OnAbout() {
  QMessageBox::about(
      this, m_workspace.Words(OwnText::ProgramName),
      m_workspace.Words(OwnText::AboutProgram).arg(QStringLiteral(CONFIGURATOR_VERSION)));
}

void MainWindow::ShowTexts() {
  for (const auto& [action, text] : m_captions) {
    action->setText(m_workspace.Words(text));
  }
  m_toolbar->setWindowTitle(m_workspace.Words(OwnText::Toolbar));
  m_discriminators->setText(m_workspace.Words(OwnText::Discriminators));
  m_languages->Mark(m_workspace.CurrentLanguage());
  m_statusLine->SetLanguage(m_workspace.CurrentLanguage());
  m_editor->ShowTexts();
  ShowDocument();
}

void MainWindow::ShowInstallation() {
  m_statusLine->SetPath(QDir::toNativeSeparators(m_workspace.Directory()));
  m_statusLine->Tell(m_workspace.IsNew() ? OwnText::ConfigurationIsNew : OwnText::Ready);
}

void MainWindow::ShowDocument() {
  const qv::Configuration& configuration = m_workspace.Config();
  m_tree->Show(ReadDeviceTree(configuration.DeviceGroups(), configuration.CommSystem(),
                              m_workspace.Services().Setup().CfgPath().ToView()),
               m_workspace.CurrentLanguage());
  ShowState();
}

void MainWindow::ShowState() {
  const QString directory = m_workspace.Directory();
  const QString name = QDir(directory).dirName();
  setWindowTitle(QStringLiteral("%1[*] – %2")
                     .arg(WithoutMark(name.isEmpty() ? directory : name),
                          m_workspace.Words(OwnText::ProgramName)));
  setWindowModified(m_workspace.Config().IsChanged());
  m_embedded->setChecked(m_workspace.Config().IsEmbedded());
}

}  // namespace configurator
