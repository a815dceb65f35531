#pragma once

#include <QDialog>

#include "apps/configurator/Workspace.h"

class QCommandLinkButton;
class QIcon;
class QVBoxLayout;

namespace configurator {

/// What is shown if there is no installation to open: it offers to open one, to make one, or to
/// take a copy of the example. Accepted once the workspace has one open.
class StartWindow : public QDialog {
  Q_OBJECT

 public:
  /// `note`, if any, is told first: why the last installation isn't open. `workspace` outlives the
  /// window.
  StartWindow(Workspace& workspace, const QString& note);

 private:
  void AddHeading(QVBoxLayout& column, const QString& note);
  void AddChoices(QVBoxLayout& column);
  void AddQuit(QVBoxLayout& column);
  QCommandLinkButton* NewChoice(OwnText text, OwnText hint, const QIcon& icon,
                                void (StartWindow::*run)());

  void OnOpen();
  void OnMake();
  void OnExample();

  QString AskForDirectory(OwnText title);
  /// Tells the problem and stays, or goes on with the installation that is open.
  void End(const Workspace::Problem& problem);

  Workspace& m_workspace;
};

}  // namespace configurator
