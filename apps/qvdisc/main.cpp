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
#include "tools/Utf8.h"

namespace {

/// The exit status if help or a page can't be written.
constexpr int notWritten = 1;

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
  const auto directory = file.parent_path().parent_path() / "languages" / "";
#ifdef _WIN32
  return directory.wstring();
#else
  return qv::FromUtf8(directory.native());
#endif
}

}  // namespace

int main(int count, char** arguments) {
#ifndef _WIN32
  // A reader that has gone, or a limit on files, must not end the program in the middle of its
  // work: both show where something is written.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  const auto call = qvdisc::ReadArguments(count, arguments, SystemLanguage());
  if (const auto* end = std::get_if<commandline::EarlyEnd>(&call)) {
    std::cout << end->output << std::flush;
    std::cerr << end->error;
    return std::cout ? end->status : notWritten;
  }
  constexpr int input = 0;
  constexpr int output = 1;
  constexpr int errors = 2;
  const bool colours = WantsColours();
  const qvdisc::Terminal terminal{
      .in = std::cin,
      .out = std::cout,
      .err = std::cerr,
      .canAsk = IsTerminal(input) && IsTerminal(errors),
      .showsProgress = IsTerminal(errors),
      .coloursOutput = IsTerminal(output) && colours,
      .coloursErrors = IsTerminal(errors) && colours,
  };
  const qvdisc::System system{.language = SystemLanguage(),
                              .languageDirectory = LanguageDirectory(arguments[0])};
  return qvdisc::Run(std::get<qvdisc::Arguments>(call), terminal, system);
}
