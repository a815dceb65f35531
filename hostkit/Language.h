#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace qv {

/// A language that the program speaks.
enum class Language { Spanish, English };

/// What there is to know of a language before any of its texts is read.
struct LanguageName {
  Language language;
  const char* code;  ///< as in `--language es`, the file es.txt and the locale "es_ES"
  const char* name;  ///< in the language itself, in UTF-8
};

inline constexpr std::array languageNames = {
    LanguageName{Language::Spanish, "es", "Español"},
    LanguageName{Language::English, "en", "English"},
};

constexpr const LanguageName& NameOf(Language language) {
  return languageNames[static_cast<std::size_t>(language)];
}

/// The language whose code opens `locale`, as in "es", "es-ES" or "es_ES.UTF-8"; nothing if the
/// program doesn't speak it.
constexpr std::optional<Language> LanguageOf(std::string_view locale) {
  for (const LanguageName& known : languageNames) {
    if (locale.substr(0, locale.find_first_of("-_.@")) == known.code) {
      return known.language;
    }
  }
  return std::nullopt;
}

}  // namespace qv
