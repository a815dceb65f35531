#include "apps/configurator/ProblemBox.h"

#include <QMessageBox>

namespace configurator {

void ShowProblem(const QString& problem, const Workspace& workspace, QWidget* parent) {
  QMessageBox box(QMessageBox::Critical, workspace.Words(OwnText::ProgramName), problem,
                  QMessageBox::Ok, parent);
  // The names of files in it are no markup.
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace configurator
