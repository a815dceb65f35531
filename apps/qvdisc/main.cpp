#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "apps/qvdisc/Run.h"

namespace {

bool IsTerminal(int descriptor) {
#ifdef _WIN32
  return _isatty(descriptor) != 0;
#else
  return isatty(descriptor) != 0;
#endif
}

bool WantsColours() { return !std::getenv("NO_COLOR"); }

qv::Language SystemLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* locale = std::getenv(name);
    if (locale && *locale) {
      return qv::LanguageOf(locale).value_or(qv::Language::English);
    }
  }
  return qv::Language::English;
}

/// The language files lie beside the directory of the program's file.
std::wstring LanguageDirectory(const char* program) {
  std::error_code error;
  auto file = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) {
    file = std::filesystem::absolute(program, error);
  }
  return (file.parent_path().parent_path() / "languages" / "").wstring();
}

}  // namespace

int main(int count, char** arguments) {
#ifndef _WIN32
  // A reader that has gone must not end the program in the middle of its work.
  std::signal(SIGPIPE, SIG_IGN);
#endif
  const auto call = qvdisc::ReadArguments(count, arguments);
  if (const auto* end = std::get_if<qvdisc::EarlyEnd>(&call)) {
    std::cout << end->output << std::flush;
    std::cerr << end->error;
    return end->status;
  }
  constexpr int input = 0;
  constexpr int output = 1;
  constexpr int errors = 2;
  const qvdisc::Surroundings surroundings{std::cin,
                                          std::cout,
                                          std::cerr,
                                          IsTerminal(input),
                                          IsTerminal(output) && WantsColours(),
                                          IsTerminal(errors),
                                          SystemLanguage(),
                                          LanguageDirectory(arguments[0])};
  return qvdisc::Run(std::get<qvdisc::Arguments>(call), surroundings);
}
