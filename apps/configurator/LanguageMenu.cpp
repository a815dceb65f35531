#include "apps/configurator/LanguageMenu.h"

#include <QActionGroup>

namespace configurator {

LanguageMenu::LanguageMenu(QWidget* parent) : QMenu(parent) {
  auto* choice = new QActionGroup(this);
  for (const qv::LanguageName& known : qv::languageNames) {
    // A language is called by its own name in every language.
    QAction* action = choice->addAction(addAction(QString::fromUtf8(known.name)));
    action->setObjectName(QStringLiteral("language-") + QString::fromLatin1(known.code));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this,
            [this, language = known.language] { emit Chosen(language); });
    m_languages[known.language] = action;
  }
}

}  // namespace configurator
