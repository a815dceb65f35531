#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <optional>

#include "hostkit/Language.h"

namespace configurator {

/// What the program remembers from one run to the next, in a file of its own.
class Settings {
 public:
  /// `file` is made with the first value. One that can't be read or written remembers nothing.
  explicit Settings(const QString& file);

  /// The file of the user who runs the program.
  static QString FileOfThisUser();

  /// The language that was chosen last; nothing if none was, or one that isn't spoken any more.
  std::optional<qv::Language> Language() const;
  void SetLanguage(qv::Language language);

  /// The directory of the installation that was open last; empty if none was.
  QString Installation() const;
  void SetInstallation(const QString& directory);

  /// Size and place of the main window, as `QWidget::saveGeometry` gives them; empty at first.
  QByteArray Window() const;
  void SetWindow(const QByteArray& geometry);

 private:
  QSettings m_values;
};

}  // namespace configurator
