#include "apps/configurator/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

#include "apps/commandline/CommandLine.h"

namespace configurator {
namespace {

using commandline::AddText;
using commandline::Check;
using commandline::Restrict;

constexpr const char* program = "configurator";
constexpr const char* description =
    "Shows the device groups of an installation and manages its discriminators.";
constexpr const char* examples = R"(Examples:
  configurator --installation examples/installation
      opens the installation in the main window
  configurator --installation examples/installation --show discriminators --list
      prints the discriminators that the manager lists, and ends
  configurator --installation examples/installation --language es --theme dark
               --size 900x600 --picture main.png
      saves a picture of the main window, and ends

Without --installation DIR the environment variable QVDISC_INSTALLATION names the directory;
without that it is the working directory, if configuration.xml is there, and else the one that
was open last. If there is none, a window offers to open one, make one, or take an example.

Of an option that is given more than once, the last one counts.

Exit status: 0 if all went well, 1 if something could not be done, 2 if the call is wrong.)";

/// The environment variable that stands in for --installation.
constexpr const char* installationVariable = "QVDISC_INSTALLATION";

/// The options as their texts, to be turned into values once all of them are known to be good.
struct Texts {
  std::string installation;
  std::string settings;
  std::string language;
  std::string show = windowNames.front().name;
  std::string discriminator;
  std::string picture;
  std::string theme;
  std::string size;
  bool list = false;
};

std::string NoName(const std::string& text) {
  return text.empty() ? "The name of the file is empty" : std::string();
}

std::optional<WindowSize> ReadSize(const std::string& text) {
  constexpr int most = 16384;
  const char* const end = text.data() + text.size();
  WindowSize size;
  const auto width = std::from_chars(text.data(), end, size.width);
  if (width.ptr == end || *width.ptr != 'x') {
    return std::nullopt;
  }
  const auto height = std::from_chars(width.ptr + 1, end, size.height);
  const bool read = width.ec == std::errc() && height.ec == std::errc() && height.ptr == end;
  const bool inRange = std::min(size.width, size.height) > 0 &&  //
                       std::max(size.width, size.height) <= most;
  return read && inRange ? std::optional(size) : std::nullopt;
}

std::string NoSize(const std::string& text) {
  return ReadSize(text) ? std::string()
                        : "Write width x height in pixels, as in 900x600, not " + text;
}

const WindowName& NamedWindow(const std::string& name) {
  return *std::find_if(windowNames.begin(), windowNames.end(),
                       [&](const WindowName& known) { return known.name == name; });
}

std::string NoneOf(const std::string& value, const std::vector<std::string>& choices) {
  return value + " is none of: " + commandline::Joined(choices, ", ");
}

std::string ShowHelp() {
  std::string help = "Show this window alone and print a dialog's result:";
  for (const WindowName& known : windowNames) {
    help += std::string("\n  ") + known.name + ": " + known.meaning;
  }
  return help;
}

void AddInstallationOptions(CLI::App& app, Texts& texts) {
  auto* installation =
      AddText(app, "--installation", texts.installation,
              "Directory of the installation: its configuration.xml, which is made\n"
              "at the first saving if there is none, and its discriminators")
          ->type_name("DIR")
          ->check(CLI::Validator(CLI::ExistingDirectory).description(""));
  Check(installation, [](const std::string& text) { return commandline::NotUtf8("name", text); });
  Restrict(AddText(app, "--language", texts.language,
                   "Language of all texts: otherwise the one chosen last, then that\n"
                   "of the system, or English if the system's is neither"),
           commandline::LanguageCodes(), NoneOf);
  Check(AddText(app, "--settings", texts.settings,
                "Remember language, window and last installation in this file, in place\n"
                "of the user's own")
            ->type_name("FILE"),
        NoName);
}

void AddWindowOptions(CLI::App& app, Texts& texts) {
  auto* show = AddText(app, "--show", texts.show, ShowHelp());
  Restrict(show, commandline::Column(windowNames, &WindowName::name), NoneOf);
  Check(AddText(app, "--discriminator", texts.discriminator,
                "With --show fast-selection: the stem <id>.<name> of the discriminator\n"
                "whose day types are offered, otherwise the first of time slots")
            ->type_name("STEM")
            ->needs(show),
        [](const std::string& text) { return commandline::NotUtf8("stem", text); });
  app.add_flag("--list", texts.list,
               "With --show discriminators: print the rows that the dialog lists,\n"
               "in aligned columns, and end")
      ->needs(show);
  Check(AddText(app, "--picture", texts.picture,
                "Save a picture of the window as this PNG file, and end. Neither this\n"
                "nor --list needs a display")
            ->type_name("FILE"),
        NoName);
  Check(AddText(app, "--size", texts.size,
                "Give the window this size first, as far as it can have it")
            ->type_name("WxH"),
        NoSize);
  Restrict(AddText(app, "--theme", texts.theme, "Draw in these colours instead of the system's"),
           {"light", "dark"}, NoneOf);
}

void AddOptions(CLI::App& app, Texts& texts) {
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  commandline::AddHelp(app);
  commandline::AddVersion(app, CONFIGURATOR_VERSION);
  app.footer(examples);
  AddInstallationOptions(app, texts);
  AddWindowOptions(app, texts);
}

std::string NoDirectory(const std::string& text) {
  std::error_code error;
  return std::filesystem::is_directory(text, error) ? commandline::NotUtf8("name", text)
                                                    : "Directory does not exist: " + text;
}

/// The installation that the call names, else the environment, else the one whose directory this
/// is.
std::string Installation(std::string named) {
  const char* set = std::getenv(installationVariable);
  if (named.empty() && set && *set) {
    if (const std::string fault = NoDirectory(set); !fault.empty()) {
      commandline::Refuse(std::string(installationVariable) + ": " + fault);
    }
    return set;
  }
  std::error_code error;
  const bool isHere = std::filesystem::exists("configuration.xml", error);
  return named.empty() && isHere ? "." : std::move(named);
}

std::optional<std::string> Given(std::string text) {
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::optional<Theme> ReadTheme(const std::string& text) {
  if (text.empty()) {
    return std::nullopt;
  }
  return text == "dark" ? Theme::Dark : Theme::Light;
}

Arguments ReadTexts(Texts texts) {
  const WindowName& window = NamedWindow(texts.show);
  if (texts.list && !window.listsRows) {
    throw CLI::ValidationError("--list", "The window " + texts.show + " lists no rows");
  }
  return {.installation = Installation(std::move(texts.installation)),
          .language = qv::LanguageOf(texts.language),
          .show = window.window,
          .discriminator = std::move(texts.discriminator),
          .picture = Given(std::move(texts.picture)),
          .size = ReadSize(texts.size),
          .theme = ReadTheme(texts.theme),
          .list = texts.list,
          .settings = Given(std::move(texts.settings))};
}

}  // namespace

std::variant<Arguments, commandline::EarlyEnd> ReadArguments(int count,
                                                             const char* const* arguments) {
  CLI::App app(description, program);
  Texts texts;
  AddOptions(app, texts);
  Arguments read;
  app.callback([&] { read = ReadTexts(std::move(texts)); });
  if (auto end = commandline::Read(app, count, arguments, ErrorLine)) {
    return *std::move(end);
  }
  return read;
}

std::string ErrorLine(std::string_view reason) { return commandline::ErrorLine(program, reason); }

}  // namespace configurator
