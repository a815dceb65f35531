#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "host/Installation.h"
#include "tests/support/ControlDriver.h"
#include "tests/support/ControlNumbers.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/Types.h"

namespace qv {

/// Dialogs with a fake host that is installed.
class DialogTest : public testing::Test {
 protected:
  /// Runs a dialog while `script` plays its user, and gives its result.
  template <class Dialog>
  int Play(Dialog& dialog, const std::function<void()>& script) {
    const int result = Drive([&] { return dialog.DoModal(); }, script);
    if constexpr (requires { dialog.m_modified; }) {
      modified = dialog.m_modified;
    }
    return result;
  }

  InstalledFakeHost host;
  bool modified = false;  ///< whether the dialog that ran last has changed something
};

/// Dialogs over a configuration directory of their own.
class DirectoryDialogTest : public DialogTest {
 protected:
  DirectoryDialogTest();

  /// Puts a file into the directory and returns its path.
  QString PutFile(const QString& name, const QByteArray& content) const;

  /// The names of all files, sorted.
  QStringList Files() const;

  /// The bytes of a file.
  QByteArray Content(const QString& name) const;

  QTemporaryDir directory;
};

}  // namespace qv
