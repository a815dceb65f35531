#pragma once

#include <QMainWindow>
#include <utility>
#include <vector>

#include "apps/configurator/Workspace.h"

class QAction;
class QMenu;
class QPushButton;
class QToolBar;

namespace configurator {

class DeviceTreeEditor;
class DeviceTreeView;
class LanguageMenu;
class StatusLine;

/// Shows the device groups of the open installation, and from it the user opens and saves
/// installations, switches the language and runs the manager of the discriminators.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `workspace` has an installation open, and outlives the window.
  explicit MainWindow(Workspace& workspace);
  ~MainWindow() override;

  /// Opens the installation in `directory`; if it is refused, tells why and stays with the present
  /// one. Asks first what is to become of unsaved changes.
  void Open(const QString& directory);

 signals:
  /// The user chose this language.
  void LanguageChosen(qv::Language language);
  /// The installation in this directory is open now.
  void Opened(const QString& directory);

 protected:
  /// Asks first what is to become of unsaved changes.
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeFileMenu();
  void MakeEditMenu();
  void MakeSettingsMenu();
  void MakeHelpMenu();
  void MakeToolbar();
  void MakeCentre();
  QAction* Captioned(QAction* action, OwnText text);
  QMenu* NewMenu(OwnText text);

  void OnOpen();
  bool OnSave();
  void OnLanguage(qv::Language language);
  void OnEmbedded(bool embedded);
  void OnDiscriminators();
  void OnAbout();

  bool MayLeaveInstallation();
  void ShowTexts();
  void ShowInstallation();
  void ShowDocument();
  void ShowState();

  Workspace& m_workspace;
  std::vector<std::pair<QAction*, OwnText>> m_captions;
  QAction* m_open = nullptr;
  QAction* m_save = nullptr;
  QAction* m_embedded = nullptr;
  LanguageMenu* m_languages = nullptr;
  QToolBar* m_toolbar = nullptr;
  DeviceTreeView* m_tree = nullptr;
  DeviceTreeEditor* m_editor = nullptr;
  QPushButton* m_discriminators = nullptr;
  StatusLine* m_statusLine = nullptr;
};

}  // namespace configurator
