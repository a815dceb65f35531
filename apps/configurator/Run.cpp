#include "apps/configurator/Run.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <cstdio>

#include "apps/configurator/Boxes.h"
#include "apps/configurator/DiscriminatorManager.h"
#include "apps/configurator/MainWindow.h"
#include "apps/configurator/Presenter.h"
#include "apps/configurator/Theme.h"
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

Workspace::Problem Prepare(Workspace& workspace, const Arguments& arguments) {
  if (auto problem = workspace.SetLanguage(arguments.language.value_or(SystemLanguage()))) {
    return problem;
  }
  QApplication::setWindowIcon(QIcon(workspace.ImageFile("PROGRAM-1.png")));
  return workspace.Open(QString::fromStdString(arguments.installation));
}

Workspace::Problem ShowMain(Workspace& workspace, Presenter& presenter) {
  MainWindow window(workspace);
  presenter.Present(window);
  window.show();
  QApplication::exec();
  return std::nullopt;
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

Workspace::Problem ShowWindow(Workspace& workspace, Presenter& presenter,
                              const Arguments& arguments) {
  switch (arguments.show) {
    case ShownWindow::Main:
      return ShowMain(workspace, presenter);
    case ShownWindow::Discriminators:
      return ShowDiscriminators(workspace, presenter, arguments);
  }
  return std::nullopt;
}

}  // namespace

int Run(const Arguments& arguments) {
  if (arguments.theme) {
    UseTheme(*arguments.theme);
  }
  Workspace workspace(ProgramDirectories::OfThisProgram());
  if (const auto problem = Prepare(workspace, arguments)) {
    return FailToStart(*problem, workspace, arguments);
  }
  Presenter presenter(arguments);
  if (const auto problem = ShowWindow(workspace, presenter, arguments)) {
    return Fail(*problem);
  }
  if (const auto problem = presenter.Problem()) {
    return Fail(workspace.Words(*problem).replace(
        QStringLiteral("%1"), QString::fromStdString(arguments.picture.value_or(std::string()))));
  }
  return 0;
}

}  // namespace configurator
