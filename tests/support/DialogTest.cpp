#include "tests/support/DialogTest.h"

#include <QDir>
#include <QFile>

#include "toolkit/Strings.h"

namespace qv {

DirectoryDialogTest::DirectoryDialogTest() {
  host->setup.cfgPath = ToWide(directory.path() + QLatin1Char('/'));
}

QString DirectoryDialogTest::PutFile(const QString& name, const QByteArray& content) const {
  const QString path = directory.filePath(name);
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
  file.write(content);
  return path;
}

QStringList DirectoryDialogTest::Files() const {
  return QDir(directory.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray DirectoryDialogTest::Content(const QString& name) const {
  QFile file(directory.filePath(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
  return file.readAll();
}

}  // namespace qv
