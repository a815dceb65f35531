#include "apps/configurator/Run.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <cstdio>
#include <functional>

#include "apps/configurator/Boxes.h"
#include "apps/configurator/DiscriminatorManager.h"
#include "apps/configurator/FastSelectionWindow.h"
#include "apps/configurator/MainWindow.h"
#include "apps/configurator/Presenter.h"
#include "apps/configurator/Settings.h"
#include "apps/configurator/StartWindow.h"
#include "apps/configurator/Theme.h"
#include "apps/configurator/WizardWindow.h"
#include "apps/configurator/Workspace.h"

namespace configurator {
namespace {

constexpr int failed = 1;

qv::Language SystemLanguage() {
  const auto locales = QLocale::system().uiLanguages();
  for (const QString& locale : locales) {
    if (const auto language = qv::LanguageOf(locale.toStdString())) {
      return *language;
    }
  }
  return qv::Language::English;
}

int Fail(const QString& problem) {
  std::fputs(ErrorLine(problem.toStdString()).c_str(), stderr);
  return failed;
}

/// Also tells the user who sits at the screen, if there is one.
int FailToStart(const QString& problem, const Workspace& workspace, const Arguments& arguments) {
  if (!arguments.EndsByItself()) {
    ShowProblem(problem, workspace, nullptr);
  }
  return Fail(problem);
}

Workspace::Problem Prepare(Workspace& workspace, const Settings& settings,
                           const Arguments& arguments) {
  const auto remembered = settings.Language();
  const auto language = arguments.language ? arguments.language : remembered;
  if (auto problem = workspace.SetLanguage(language.value_or(SystemLanguage()))) {
    return problem;
  }
  QApplication::setWindowIcon(QIcon(workspace.ImageFile("PROGRAM-1.png")));
  return std::nullopt;
}

/// Nothing if an installation is open then; otherwise the user has left, and this is the status.
std::optional<int> ShowStart(Workspace& workspace, const QString& note,
                             const std::function<void(QWidget&)>& whenMade = {}) {
  StartWindow window(workspace, note);
  if (whenMade) {
    whenMade(window);
  }
  return window.exec() == QDialog::Accepted ? std::nullopt : std::optional(0);
}

/// Likewise for the installation that was open last, or the one that the user chooses in its place.
std::optional<int> OpenLast(Workspace& workspace, const Settings& settings,
                            const Arguments& arguments) {
  const QString last = settings.Installation();
  const auto problem = last.isEmpty() ? std::nullopt : workspace.Open(last);
  if (!last.isEmpty() && !problem) {
    return std::nullopt;
  }
  if (!arguments.EndsByItself()) {
    return ShowStart(workspace, problem.value_or(QString()));
  }
  if (problem) {
    return Fail(*problem);
  }
  std::fputs(ErrorLine(noInstallation).c_str(), stderr);
  return commandline::badCall;
}

std::optional<int> OpenInstallation(Workspace& workspace, const Settings& settings,
                                    Presenter& presenter, const Arguments& arguments) {
  if (arguments.show == ShownWindow::Start) {
    return ShowStart(workspace, {}, [&](QWidget& window) { presenter.Present(window); });
  }
  if (arguments.installation.empty()) {
    return OpenLast(workspace, settings, arguments);
  }
  const auto problem = workspace.Open(QString::fromStdString(arguments.installation));
  return problem ? std::optional(FailToStart(*problem, workspace, arguments)) : std::nullopt;
}

void Remember(Settings& settings, MainWindow& window) {
  window.restoreGeometry(settings.Window());
  QObject::connect(&window, &MainWindow::LanguageChosen, &window,
                   [&settings](qv::Language language) { settings.SetLanguage(language); });
  QObject::connect(&window, &MainWindow::Opened, &window,
                   [&settings](const QString& directory) { settings.SetInstallation(directory); });
}

void ShowMain(Workspace& workspace, Settings& settings, Presenter& presenter,
              const Arguments& arguments) {
  MainWindow window(workspace);
  if (!arguments.EndsByItself()) {
    Remember(settings, window);
  }
  if (arguments.show == ShownWindow::Main) {
    presenter.Present(window);
  }
  window.show();
  QApplication::exec();
  if (!arguments.EndsByItself()) {
    settings.SetWindow(window.saveGeometry());
  }
}

Workspace::Problem ShowDiscriminators(Workspace& workspace, Presenter& presenter,
                                      const Arguments& arguments) {
  const ManagerEnd end = RunDiscriminatorManager(
      workspace, nullptr, [&](QWidget& dialog) { presenter.Present(dialog); });
  if (!arguments.EndsByItself()) {
    std::puts(ResultName(end.result).toUtf8().constData());
  }
  return end.problem;
}

Workspace::Problem ShowFastSelection(Workspace& workspace, Presenter& presenter,
                                     const Arguments& arguments) {
  const FastSelectionEnd end =
      RunFastSelection(workspace, QString::fromStdString(arguments.discriminator),
                       [&](QWidget& dialog) { presenter.Present(dialog); });
  if (!arguments.EndsByItself() && !end.problem) {
    std::puts(end.result.toUtf8().constData());
  }
  return end.problem;
}

void ShowWizard(Workspace& workspace, Presenter& presenter, const Arguments& arguments) {
  const QString result = RunWizard(workspace, [&](QWidget& window) { presenter.Present(window); });
  if (!arguments.EndsByItself()) {
    std::puts(result.toUtf8().constData());
  }
}

/// Shows the window on the open installation.
Workspace::Problem ShowWindow(Workspace& workspace, Settings& settings, Presenter& presenter,
                              const Arguments& arguments) {
  if (!arguments.EndsByItself()) {
    settings.SetInstallation(workspace.Directory());
  }
  if (arguments.show == ShownWindow::Discriminators) {
    return ShowDiscriminators(workspace, presenter, arguments);
  }
  if (arguments.show == ShownWindow::FastSelection) {
    return ShowFastSelection(workspace, presenter, arguments);
  }
  if (arguments.show == ShownWindow::Wizard) {
    ShowWizard(workspace, presenter, arguments);
    return std::nullopt;
  }
  ShowMain(workspace, settings, presenter, arguments);
  return std::nullopt;
}

int StatusOf(const Presenter& presenter, const Workspace& workspace, const Arguments& arguments) {
  const auto problem = presenter.Problem();
  return !problem ? 0
                  : Fail(workspace.Words(*problem).replace(
                        QStringLiteral("%1"),
                        QString::fromStdString(arguments.picture.value_or(std::string()))));
}

}  // namespace

int Run(const Arguments& arguments) {
  if (arguments.theme) {
    UseTheme(*arguments.theme);
  }
  Settings settings(arguments.settings ? QString::fromStdString(*arguments.settings)
                                       : Settings::FileOfThisUser());
  Workspace workspace(ProgramDirectories::OfThisProgram());
  if (const auto problem = Prepare(workspace, settings, arguments)) {
    return FailToStart(*problem, workspace, arguments);
  }
  Presenter presenter(arguments);
  if (const auto status = OpenInstallation(workspace, settings, presenter, arguments)) {
    return *status == 0 ? StatusOf(presenter, workspace, arguments) : *status;
  }
  if (const auto problem = ShowWindow(workspace, settings, presenter, arguments)) {
    return Fail(*problem);
  }
  return StatusOf(presenter, workspace, arguments);
}

}  // namespace configurator
