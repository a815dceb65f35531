#include "hostkit/Language.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(Language, IsFoundByTheCodeThatOpensALocale) {
  EXPECT_EQ(LanguageOf("es"), Language::Spanish);
  EXPECT_EQ(LanguageOf("es_ES.UTF-8"), Language::Spanish);
  EXPECT_EQ(LanguageOf("es-419"), Language::Spanish);
  EXPECT_EQ(LanguageOf("en_GB@euro"), Language::English);
  EXPECT_EQ(LanguageOf("est"), std::nullopt);
  EXPECT_EQ(LanguageOf("C"), std::nullopt);
  EXPECT_EQ(LanguageOf(""), std::nullopt);
}

TEST(Language, StandsInTheTableAtItsOwnPlace) {
  for (const LanguageName& known : languageNames) {
    EXPECT_EQ(NameOf(known.language).language, known.language) << known.code;
  }
}

}  // namespace
}  // namespace qv
