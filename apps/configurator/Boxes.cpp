#include "apps/configurator/Boxes.h"

namespace configurator {
namespace {

/// A box whose text is shown as it stands: the names of files in it are no markup.
int RunBox(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons,
           const Workspace& workspace, QWidget* parent) {
  QMessageBox box(icon, workspace.Words(OwnText::ProgramName), text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  return box.exec();
}

}  // namespace

void ShowProblem(const QString& problem, const Workspace& workspace, QWidget* parent) {
  RunBox(QMessageBox::Critical, problem, QMessageBox::Ok, workspace, parent);
}

QMessageBox::StandardButton AskAboutChanges(const QString& question, const Workspace& workspace,
                                            QWidget* parent) {
  return static_cast<QMessageBox::StandardButton>(
      RunBox(QMessageBox::Warning, question,
             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, workspace, parent));
}

}  // namespace configurator
