// A host that knows nothing of hostkit: it gives the numbered texts, loads the library by way of a
// module of its own, runs every exported class and unloads both again.
#include <dlfcn.h>

#include <QAccessible>
#include <QApplication>
#include <QLibrary>
#include <QWidget>
#include <cstdio>

#include "tests/foreignhost/Services.h"

namespace {

int Fail(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  return 1;
}

int Call(QLibrary& module, const char* function) {
  auto* run = reinterpret_cast<int (*)()>(module.resolve(function));
  return run ? run() : -100;
}

bool IsLoaded(const char* library) {
  void* handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
  return handle && dlclose(handle) == 0;
}

int RunModule(QLibrary& module) {
  if (!module.load()) {
    return Fail(qPrintable(module.errorString()));
  }
  if (Call(module, "RunWithoutServices") != -1) {
    return Fail("without services the dial should paint and the manager's result be -1");
  }
  Setup setup;
  QVMainCfg mainCfg;
  Guids guids;
  Texts texts;
  Index index;
  NoClipboard clipboard;
  Drivers drivers;
  Informes informes;
  QVVornelSetup::Install(&setup);
  QVMainCfg::Install(&mainCfg);
  QVVornelGuids::Install(&guids);
  QVLoadString::Install(&texts);
  CreateDiscriminatorIndex::Install(&index);
  QVClipboard::Install(&clipboard);
  QVDriverSupport::Install(&drivers);
  QVInformes::Install(&informes);
  return Call(module, "RunExportedClasses") == 0 ? 0 : Fail("an exported class ended wrongly");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) {
    return Fail("usage: foreignhost MODULE LIBRARY");
  }
  QLibrary module(QString::fromLocal8Bit(argv[1]));
  if (const int failed = RunModule(module)) {
    return failed;
  }
  if (!IsLoaded(argv[2])) {
    return Fail("the library was expected to be loaded");
  }
  if (!module.unload() || IsLoaded(argv[2])) {
    return Fail("the library could not be unloaded");
  }
  // Nothing of it is asked any more.
  QWidget plain;
  if (!QAccessible::queryAccessibleInterface(&plain)) {
    return Fail("a widget should be accessible as before");
  }
  return 0;
}
