#include "apps/configurator/Settings.h"

#include <QDir>
#include <QStandardPaths>

namespace configurator {
namespace {

constexpr const char* languageKey = "language";
constexpr const char* installationKey = "installation";
constexpr const char* windowKey = "window";

}  // namespace

Settings::Settings(const QString& file) : m_values(file, QSettings::IniFormat) {}

QString Settings::FileOfThisUser() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(QStringLiteral("QVDiscriminator/configurator.ini"));
}

std::optional<qv::Language> Settings::Language() const {
  return qv::LanguageOf(m_values.value(languageKey).toString().toStdString());
}

void Settings::SetLanguage(qv::Language language) {
  m_values.setValue(languageKey, QString::fromLatin1(qv::NameOf(language).code));
}

QString Settings::Installation() const { return m_values.value(installationKey).toString(); }

void Settings::SetInstallation(const QString& directory) {
  m_values.setValue(installationKey, directory);
}

QByteArray Settings::Window() const { return m_values.value(windowKey).toByteArray(); }

void Settings::SetWindow(const QByteArray& geometry) { m_values.setValue(windowKey, geometry); }

}  // namespace configurator
