// The part of a foreign host that uses the library: it is loaded, run and unloaded again.
#include <QApplication>
#include <QTimer>

#include "library/QVDiscriminator.h"

namespace {

void CloseSoon() {
  QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
}

int RunManager() {
  CDlgSetupDiscriminators manager(nullptr, nullptr);
  CloseSoon();
  return manager.DoModal();
}

}  // namespace

/// Runs each exported class once; the number of those that didn't end as they should.
extern "C" Q_DECL_EXPORT int RunExportedClasses() { return RunManager() == IDCANCEL ? 0 : 1; }

/// Runs the manager while the host has nothing installed.
extern "C" Q_DECL_EXPORT int RunWithoutServices() {
  CDlgSetupDiscriminators manager(nullptr, nullptr);
  return manager.DoModal();
}
