// The smallest host: it installs its services, runs the manager, and saves when told to.
#include <QApplication>
#include <QFile>

#include "hostkit/DirectorySetup.h"
#include "hostkit/GuidNotices.h"
#include "hostkit/IndexFiles.h"
#include "hostkit/InstalledServices.h"
#include "hostkit/LanguageFile.h"
#include "hostkit/ui/QtClipboard.h"
#include "library/QVDiscriminator.h"

namespace {

/// Says in one line why the program can't go on.
int Fail(const QString& reason) {
  qCritical("managersample: %s", qPrintable(reason));
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    return Fail("usage: managersample CONFIGURATION-DIRECTORY IMAGE-DIRECTORY LANGUAGE-FILE");
  }

  // The services. They have to live as long as a dialog of the library does.
  qv::DirectorySetup setup(arguments[1].toStdWString(), arguments[2].toStdWString(), 1);
  if (!QFile::exists(arguments[2] + "/OK-16.png")) {
    return Fail("there are no pictures in " + arguments[2]);
  }
  qv::LanguageFile texts;
  if (!texts.Load(arguments[3].toStdWString())) {
    return Fail("the language file can't be read: " + arguments[3]);
  }
  qv::GuidNotices notices([](int part) { qInfo("part %d has changed", part); });
  qv::IndexFiles index;
  qv::QtClipboard clipboard;
  QVMainCfg configuration;
  const QVWideString file = setup.CfgPath() + L"configuration.xml";
  if (!configuration.Load(file)) {
    return Fail("there is no configuration.xml that can be read in " + arguments[1]);
  }

  const qv::InstalledServices installed(setup, configuration, notices, texts, index, clipboard);

  // The dialog keeps this node in step with the files; it may be null.
  CDlgSetupDiscriminators manager(configuration.Root()->Node(L"deviceGroups"), nullptr);
  if (manager.DoModal() == IDOK && !configuration.SaveAs(file)) {
    return Fail("configuration.xml can't be written in " + arguments[1]);
  }
  return 0;
}
