// The smallest host: it installs its services, runs the manager, and saves when told to.
#include <QApplication>

#include "hostkit/DirectorySetup.h"
#include "hostkit/GuidNotices.h"
#include "hostkit/IndexFiles.h"
#include "hostkit/InstalledServices.h"
#include "hostkit/LanguageFile.h"
#include "hostkit/ui/QtClipboard.h"
#include "library/QVDiscriminator.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4) {
    return 2;  // usage: managersample CONFIGURATION-DIRECTORY IMAGE-DIRECTORY LANGUAGE-FILE
  }
  const auto argument = [argv](int i) { return QString::fromLocal8Bit(argv[i]).toStdWString(); };

  // The services. They have to live as long as a dialog of the library does.
  qv::DirectorySetup setup(argument(1), argument(2), 1);
  qv::LanguageFile texts;
  if (!texts.Load(argument(3))) {
    return 1;
  }
  qv::GuidNotices notices([](int part) { qInfo("part %d has changed", part); });
  qv::IndexFiles index;
  qv::QtClipboard clipboard;
  QVMainCfg configuration;
  const QVWideString file = setup.CfgPath() + L"configuration.xml";
  if (!configuration.Load(file)) {
    return 1;  // a program would tell why, and offer to start a new one
  }

  const qv::InstalledServices installed(setup, configuration, notices, texts, index, clipboard);

  // The dialog keeps this node in step with the files; it may be null.
  CDlgSetupDiscriminators manager(configuration.Root()->Node(L"deviceGroups"), nullptr);
  if (manager.DoModal() == IDOK && !configuration.SaveAs(file)) {
    return 1;
  }
  return 0;
}
