#include "apps/configurator/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <functional>
#include <iterator>
#include <utility>
#include <vector>

#include "tools/Utf8.h"

namespace configurator {
namespace {

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

Of an option that is given more than once, the last one counts.

Exit status: 0 if all went well, 1 if something could not be done, 2 if the call is wrong.)";

constexpr int badCall = 2;

/// The options as their texts, to be turned into values once all of them are known to be good.
struct Texts {
  std::string installation;
  std::string language;
  std::string show = windowNames.front().name;
  std::string picture;
  std::string theme;
  std::string size;
  bool list = false;
};

std::string NotUtf8(std::string& text) {
  const bool isUtf8 = qv::ToUtf8(qv::FromUtf8(text)) == text;
  return isUtf8 ? std::string() : "This name is not UTF-8: " + text;
}

std::string NoName(std::string& text) {
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

std::string NoSize(std::string& text) {
  return ReadSize(text) ? std::string()
                        : "Write width x height in pixels, as in 900x600, not " + text;
}

const WindowName& NamedWindow(const std::string& name) {
  return *std::find_if(windowNames.begin(), windowNames.end(),
                       [&](const WindowName& known) { return known.name == name; });
}

std::string Joined(const std::vector<std::string>& texts, const std::string& separator) {
  std::string joined;
  for (const std::string& text : texts) {
    joined += (joined.empty() ? std::string() : separator) + text;
  }
  return joined;
}

/// One field of each line of a table.
template <class Table, class Field>
std::vector<std::string> Column(const Table& table, Field field) {
  std::vector<std::string> texts;
  std::transform(table.begin(), table.end(), std::back_inserter(texts), std::mem_fn(field));
  return texts;
}

/// Lets `option` be one of `choices` and nothing else.
void Restrict(CLI::Option* option, const std::vector<std::string>& choices) {
  const auto check = [choices](std::string& text) {
    const bool known = std::find(choices.begin(), choices.end(), text) != choices.end();
    return known ? std::string() : text + " is none of: " + Joined(choices, ", ");
  };
  option->type_name(Joined(choices, "|"))->check(CLI::Validator(check, ""));
}

std::string ShowHelp() {
  std::string help = "Show this window alone and print a dialog's result:";
  for (const WindowName& known : windowNames) {
    help += std::string("\n  ") + known.name + ": " + known.meaning;
  }
  return help;
}

void AddInstallationOptions(CLI::App& app, Texts& texts) {
  app.add_option("--installation", texts.installation,
                 "Directory of the installation: its configuration.xml, which is made\n"
                 "at the first saving if there is none, and its discriminators")
      ->type_name("DIR")
      ->required()
      ->check(CLI::Validator(CLI::ExistingDirectory).description(""))
      ->check(CLI::Validator(NotUtf8, ""));
  Restrict(app.add_option("--language", texts.language,
                          "Language of all texts: that of the system if this is not given,\n"
                          "and English if the system's is neither"),
           Column(qv::languageNames, &qv::LanguageName::code));
}

void AddWindowOptions(CLI::App& app, Texts& texts) {
  auto* show = app.add_option("--show", texts.show, ShowHelp());
  Restrict(show, Column(windowNames, &WindowName::name));
  app.add_flag("--list", texts.list,
               "With --show discriminators: print the rows that the dialog lists,\n"
               "in aligned columns, and end")
      ->needs(show);
  app.add_option("--picture", texts.picture,
                 "Save a picture of the window as this PNG file, and end")
      ->type_name("FILE")
      ->check(CLI::Validator(NoName, ""));
  app.add_option("--size", texts.size, "Give the window this size first, as far as it can have it")
      ->type_name("WxH")
      ->check(CLI::Validator(NoSize, ""));
  Restrict(app.add_option("--theme", texts.theme, "Draw in these colours instead of the system's"),
           {"light", "dark"});
}

void AddOptions(CLI::App& app, Texts& texts) {
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app.set_help_flag("--help", "Print this help, and end");
  app.set_version_flag("--version", std::string(program) + " " + CONFIGURATOR_VERSION,
                       "Print the version, and end");
  app.footer(examples);
  AddInstallationOptions(app, texts);
  AddWindowOptions(app, texts);
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
  return {.installation = std::move(texts.installation),
          .language = qv::LanguageOf(texts.language),
          .show = window.window,
          .picture = Given(std::move(texts.picture)),
          .size = ReadSize(texts.size),
          .theme = ReadTheme(texts.theme),
          .list = texts.list};
}

}  // namespace

std::variant<Arguments, EarlyEnd> ReadArguments(int count, const char* const* arguments) {
  CLI::App app(description, program);
  Texts texts;
  AddOptions(app, texts);
  try {
    app.parse(count, arguments);
    return ReadTexts(std::move(texts));
  } catch (const CLI::CallForHelp&) {
    return EarlyEnd{.status = 0, .output = app.help(), .error = {}};
  } catch (const CLI::CallForVersion& version) {
    return EarlyEnd{.status = 0, .output = std::string(version.what()) + "\n", .error = {}};
  } catch (const CLI::ParseError& error) {
    return EarlyEnd{.status = badCall,
                    .output = {},
                    .error = ErrorLine(error.what()) + "Try configurator --help.\n"};
  }
}

std::string ErrorLine(std::string_view reason) {
  return std::string(program) + ": " + std::string(reason) + "\n";
}

}  // namespace configurator
