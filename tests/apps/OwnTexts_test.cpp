#include "apps/configurator/OwnTexts.h"

#include <gtest/gtest.h>

#include <QSet>

namespace configurator {
namespace {

constexpr int count = static_cast<int>(OwnText::Count);

/// Texts beside each other are selected by one key each.
void ExpectOwnKeys(std::initializer_list<OwnText> texts, qv::Language language) {
  QSet<QChar> keys;
  for (const OwnText text : texts) {
    const QString words = Words(text, language);
    const qsizetype mark = words.indexOf(QLatin1Char('&'));
    EXPECT_GE(mark, 0) << words.toStdString();
    keys.insert(words.at(mark + 1).toLower());
  }
  EXPECT_EQ(keys.size(), static_cast<qsizetype>(texts.size())) << qv::NameOf(language).code;
}

TEST(OwnTexts, EachTextExistsInEachLanguageWithTheSamePlaceholders) {
  ASSERT_GT(count, 20);
  for (int i = 0; i < count; ++i) {
    const auto text = static_cast<OwnText>(i);
    const QString spanish = Words(text, qv::Language::Spanish);
    const QString english = Words(text, qv::Language::English);
    EXPECT_FALSE(spanish.isEmpty()) << i;
    EXPECT_NE(spanish, english) << i;
    EXPECT_EQ(spanish.count(QStringLiteral("%1")), english.count(QStringLiteral("%1"))) << i;
    EXPECT_EQ(spanish.contains(QLatin1Char('&')), english.contains(QLatin1Char('&'))) << i;
  }
}

TEST(OwnTexts, NoTwoCaptionsBesideEachOtherShareTheirKey) {
  for (const qv::LanguageName& known : qv::languageNames) {
    ExpectOwnKeys({OwnText::FileMenu, OwnText::EditMenu, OwnText::SettingsMenu, OwnText::HelpMenu,
                   OwnText::Discriminators},
                  known.language);
    ExpectOwnKeys({OwnText::OpenInstallation, OwnText::Save, OwnText::Quit}, known.language);
    ExpectOwnKeys({OwnText::Undo, OwnText::Redo, OwnText::NewGroup, OwnText::RenameGroup,
                   OwnText::RemoveGroup, OwnText::MoveUp, OwnText::MoveDown, OwnText::MoveToMenu,
                   OwnText::TakeOutEntry, OwnText::PutInMenu, OwnText::ManageDiscriminators},
                  known.language);
    ExpectOwnKeys(
        {OwnText::OpenInstallation, OwnText::MakeInstallation, OwnText::TakeExample, OwnText::Quit},
        known.language);
    ExpectOwnKeys({OwnText::LanguageMenu, OwnText::EmbeddedInstallation}, known.language);
  }
}

}  // namespace
}  // namespace configurator
