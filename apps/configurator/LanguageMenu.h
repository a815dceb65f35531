#pragma once

#include <QMenu>
#include <map>

#include "hostkit/Language.h"

namespace configurator {

/// The languages that the program speaks, of which one is chosen.
class LanguageMenu : public QMenu {
  Q_OBJECT

 public:
  explicit LanguageMenu(QWidget* parent);

  /// Marks the one that is spoken.
  void Mark(qv::Language language) { m_languages.at(language)->setChecked(true); }

 signals:
  /// The user chose this one.
  void Chosen(qv::Language language);

 private:
  std::map<qv::Language, QAction*> m_languages;
};

}  // namespace configurator
