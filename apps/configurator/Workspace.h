#pragma once

#include <QString>
#include <QTranslator>
#include <optional>

#include "apps/configurator/HostServices.h"
#include "apps/configurator/OwnTexts.h"
#include "hostkit/Configuration.h"

namespace configurator {

/// Where the program finds what belongs to it.
struct ProgramDirectories {
  QString images;
  QString languages;
  QString example;  ///< an installation to copy, never to be changed

  /// Those that stand beside the directory of the program's file.
  static ProgramDirectories OfThisProgram();
};

/// What the windows work on: the open installation and the language of all texts.
///
/// Functions that can fail return the reason in words, or nothing if all went well.
class Workspace {
 public:
  using Problem = std::optional<QString>;

  explicit Workspace(ProgramDirectories directories);
  ~Workspace();

  /// Switches the language of this program's texts, of the library's and of Qt's own. If the
  /// library's can't be read, all stays as it was.
  Problem SetLanguage(qv::Language language);
  qv::Language CurrentLanguage() const { return m_language; }
  QString Words(OwnText text) const { return configurator::Words(text, m_language); }

  /// Opens the installation in `directory`. If it has to be refused, the one that was open stays.
  Problem Open(const QString& directory);
  /// Saves the configuration of the open installation.
  Problem Save();

  /// The open installation's directory: absolute, without separator at its end.
  const QString& Directory() const { return m_directory; }
  /// Whether the open installation's configuration had no file when it was opened.
  bool IsNew() const { return m_isNew; }

  qv::Configuration& Config() { return m_configuration; }
  const qv::Configuration& Config() const { return m_configuration; }
  HostServices& Services() { return m_services; }
  /// The directory of the example installation, which is to be copied and never changed.
  const QString& ExampleDirectory() const { return m_directories.example; }
  /// The path of an image of the host's.
  QString ImageFile(const char* name) const;

 private:
  QString LanguageFile(qv::Language language) const;
  void TranslateQt(qv::Language language);

  ProgramDirectories m_directories;
  HostServices m_services;
  qv::Configuration m_configuration;
  QTranslator m_translator;
  qv::Language m_language = qv::Language::English;
  QString m_directory;
  bool m_isNew = true;
};

}  // namespace configurator
