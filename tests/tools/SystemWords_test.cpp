#include "tools/SystemWords.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <string>

namespace qv {
namespace {

TEST(SystemWords, AreThoseOfTheSystem) {
  const std::error_code full(ENOSPC, std::generic_category());
  const std::string words = full.message();
  EXPECT_EQ(SystemWords(full), std::wstring(words.begin(), words.end()));
  EXPECT_NE(SystemWords(full), SystemWords({EACCES, std::generic_category()}));
}

/// Words with letters beyond ASCII, in UTF-8.
class Accented : public std::error_category {
 public:
  const char* name() const noexcept override { return "accented"; }
  std::string message(int /*error*/) const override { return "disco lleno: \xC3\xB1 \xE2\x82\xAC"; }
};

TEST(SystemWords, KeepTheirLettersInALocaleOfUtf8AndWithoutOne) {
  const Accented category;
  const std::string before = std::setlocale(LC_CTYPE, nullptr);
  for (const char* locale : {"C", "C.UTF-8"}) {
    ASSERT_TRUE(std::setlocale(LC_CTYPE, locale)) << locale;
    EXPECT_EQ(SystemWords({1, category}), L"disco lleno: \u00F1 \u20AC") << locale;
  }
  std::setlocale(LC_CTYPE, before.c_str());
}

}  // namespace
}  // namespace qv
