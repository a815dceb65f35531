#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "apps/commandline/CommandLine.h"
#include "hostkit/Language.h"

namespace configurator {

/// A window that can be shown alone.
enum class ShownWindow { Main, Discriminators, FastSelection, Wizard, Start };

/// What the command line calls a window.
struct WindowName {
  const char* name;
  ShownWindow window;
  const char* meaning;
  bool listsRows;  ///< whether `--list` can print its rows
};

/// All windows that `--show` knows. A new dialog is a line here and one in Run.cpp.
inline constexpr std::array windowNames = {
    WindowName{"main", ShownWindow::Main, "the main window", false},
    WindowName{"discriminators", ShownWindow::Discriminators,
               "the manager of the installation's discriminators", true},
    WindowName{"fast-selection", ShownWindow::FastSelection,
               "the choice of dates by a rule, March to June", false},
    WindowName{"wizard", ShownWindow::Wizard, "the wizard of expressions, on a condition", false},
    WindowName{"start", ShownWindow::Start, "what is shown if there is no installation to open",
               false},
};

enum class Theme { Light, Dark };

/// Width and height of a window, in pixels before any scaling.
struct WindowSize {
  int width = 0;
  int height = 0;

  friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

/// What the command line asks for.
struct Arguments {
  /// A directory, in UTF-8: that of the call, of the environment or the present one; empty if none
  /// of these names an installation.
  std::string installation;
  std::optional<qv::Language> language;  ///< nothing for that of the user's system
  ShownWindow show = ShownWindow::Main;
  std::string discriminator;           ///< the stem of its file, in UTF-8; empty for the first
  std::optional<std::string> picture;  ///< the file to make, in UTF-8
  std::optional<WindowSize> size;
  std::optional<Theme> theme;  ///< nothing for that of the user's system
  bool list = false;
  std::optional<std::string> settings;  ///< a file, in UTF-8; nothing for that of the user

  /// Whether the program ends by itself once the window has been up, so that nobody need be there.
  bool EndsByItself() const { return picture.has_value() || list; }
};

/// Why the program can't go on without anybody to ask for an installation.
inline constexpr std::string_view noInstallation =
    "No installation is named: give --installation DIR, set QVDISC_INSTALLATION, or work in the "
    "directory of one";

/// Reads the command line, of which the first is the program's name, and what the environment says
/// in place of it. A call that can't be carried out gives the status 2 and the reason in words.
[[nodiscard]] std::variant<Arguments, commandline::EarlyEnd> ReadArguments(
    int count, const char* const* arguments);

/// The line that the program puts on standard error for `reason`.
std::string ErrorLine(std::string_view reason);

}  // namespace configurator
