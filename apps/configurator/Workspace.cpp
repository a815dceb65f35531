#include "apps/configurator/Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <utility>

#include "hostkit/DirectorySetup.h"
#include "toolkit/Strings.h"

namespace configurator {
namespace {

QString InWords(const qv::Addition& addition) {
  return qv::ToQString(qv::InWords(addition, *QVLoadString::Get()));
}

}  // namespace

ProgramDirectories ProgramDirectories::OfThisProgram() {
  const QDir program(QCoreApplication::applicationDirPath());
  return {QDir::cleanPath(program.filePath(QStringLiteral("../images"))),
          QDir::cleanPath(program.filePath(QStringLiteral("../languages"))),
          QDir::cleanPath(program.filePath(QStringLiteral("../examples/installation")))};
}

Workspace::Workspace(ProgramDirectories directories)
    : m_directories(std::move(directories)),
      m_services(m_directories.images.toStdWString()),
      m_configuration(m_services.MainCfg()) {}

Workspace::~Workspace() { QCoreApplication::removeTranslator(&m_translator); }

Workspace::Problem Workspace::SetLanguage(qv::Language language) {
  const QString file = LanguageFile(language);
  if (!m_services.SetLanguageFile(file.toStdWString())) {
    return Words(OwnText::LanguageFileMissing).arg(file);
  }
  m_language = language;
  TranslateQt(language);
  return std::nullopt;
}

Workspace::Problem Workspace::Open(const QString& directory) {
  const QDir found(directory);
  if (directory.isEmpty() || !found.exists()) {
    return Words(OwnText::DirectoryMissing).arg(directory);
  }
  const QString path = QDir::cleanPath(found.absolutePath());
  const qv::DirectorySetup setup(path.toStdWString(), L"", 0);
  const QString file = QDir(path).filePath(QStringLiteral("configuration.xml"));
  qv::Addition why;
  const auto loaded = m_configuration.Load(setup.CfgPath().ToView(), &why);
  if (loaded == qv::Configuration::Loaded::Unreadable) {
    return Words(OwnText::ConfigurationUnreadable).arg(file, InWords(why));
  }
  if (loaded == qv::Configuration::Loaded::Foreign) {
    return Words(OwnText::ConfigurationForeign).arg(file);
  }
  m_directory = path;
  m_isNew = loaded == qv::Configuration::Loaded::New;
  m_services.SetDirectory(path.toStdWString());
  return std::nullopt;
}

Workspace::Problem Workspace::Save() {
  if (!m_configuration.Save()) {
    return Words(OwnText::ConfigurationNotSaved).arg(qv::ToQString(m_configuration.Path()));
  }
  m_isNew = false;
  return std::nullopt;
}

QString Workspace::ImageFile(const char* name) const {
  return QDir(m_directories.images).filePath(QString::fromLatin1(name));
}

QString Workspace::LanguageFile(qv::Language language) const {
  return QDir(m_directories.languages)
      .filePath(QString::fromLatin1(qv::NameOf(language).code) + QStringLiteral(".txt"));
}

void Workspace::TranslateQt(qv::Language language) {
  // Qt's own buttons are English without a translation.
  QCoreApplication::removeTranslator(&m_translator);
  const QString code = QString::fromLatin1(qv::NameOf(language).code);
  if (m_translator.load(QStringLiteral("qtbase_") + code,
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&m_translator);
  }
}

}  // namespace configurator
