#include "apps/configurator/InstallationCopy.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace configurator {
namespace {

bool IsWithin(const QDir& directory, const QDir& around) {
  const QString end = QStringLiteral("/");
  return (directory.canonicalPath() + end).startsWith(around.canonicalPath() + end);
}

QString FreeName(const QDir& into, const QString& name) {
  QString free = name;
  for (int number = 2; into.exists(free); ++number) {
    free = QStringLiteral("%1 %2").arg(name).arg(number);
  }
  return free;
}

bool CopyFile(const QString& from, const QString& to) {
  return QFile::copy(from, to) &&
         QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner | QFile::WriteUser);
}

bool CopyFiles(const QDir& from, const QDir& to) {
  const QStringList names = from.entryList(QDir::Files);
  return !names.isEmpty() && std::all_of(names.begin(), names.end(), [&](const QString& name) {
    return CopyFile(from.filePath(name), to.filePath(name));
  });
}

}  // namespace

std::optional<QString> CopyInstallation(const QString& from, const QString& into,
                                        const QString& name) {
  const QDir around(into);
  const QString free = FreeName(around, name);
  if (!around.exists() || IsWithin(around, QDir(from)) || !around.mkdir(free)) {
    return std::nullopt;
  }
  QDir made(around.filePath(free));
  if (!CopyFiles(QDir(from), made)) {
    made.removeRecursively();
    return std::nullopt;
  }
  return made.absolutePath();
}

}  // namespace configurator
