#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

/// How the programs describe and read their command lines.
namespace commandline {

/// The exit status of a call that can't be carried out.
inline constexpr int badCall = 2;

/// The program ends before it begins: with help, the version, a page, or the reason why not.
struct EarlyEnd {
  int status = 0;
  std::string output;  ///< for standard output
  std::string error;   ///< for standard error
};

/// Lets `app` read the arguments, the first of which is the program's name. Nothing if all of them
/// are good; its callback has been called then. A call that can't be carried out gives the status
/// `badCall` and, in the form of `errorLine`, the reason in words.
[[nodiscard]] std::optional<EarlyEnd> Read(CLI::App& app, int count, const char* const* arguments,
                                           std::string (*errorLine)(std::string_view reason));

/// Breaks the reading off because of something that no option can check by itself.
[[noreturn]] void Refuse(const std::string& reason);

/// The line that `program` puts on standard error for `reason`.
std::string ErrorLine(std::string_view program, std::string_view reason);

/// The flag `-h`, or `--help`.
void AddHelp(CLI::App& app, const std::string& description = "Print this help, and end");

/// A flag that prints a text in place of any work. `text` is asked for when the flag is given.
void AddPage(CLI::App& app, const std::string& flag, std::function<std::string()> text,
             const std::string& description);

/// The flag `--version`, which prints the program's name and `version`.
void AddVersion(CLI::App& app, const std::string& version,
                const std::string& description = "Print the version, and end");

/// An option whose value is taken as it stands, whatever it begins with. `value` outlives `app`.
CLI::Option* AddText(CLI::App& app, const std::string& name, std::string& value,
                     const std::string& description);

/// The same for an option of several values.
CLI::Option* AddTexts(CLI::App& app, const std::string& name, std::vector<std::string>& values,
                      const std::string& description);

/// Why a value can't be taken; empty if it can.
using Refusal = std::function<std::string(const std::string& value)>;

/// Refuses the values for which `refusal` has words; it is asked after those that the option has.
void Check(CLI::Option* option, Refusal refusal);

/// Words the refusal of a value that is none of the choices.
using NoneOf = std::string (*)(const std::string& value, const std::vector<std::string>& choices);

/// Lets `option` be one of `choices` and nothing else. Its type lists them with "|" between them.
void Restrict(CLI::Option* option, const std::vector<std::string>& choices, NoneOf noneOf);

/// The refusal of a text that is not UTF-8, in which it is called `what`; empty if it is.
std::string NotUtf8(const std::string& what, const std::string& text);

/// What `--language` may be: "es", "en".
std::vector<std::string> LanguageCodes();

/// The texts behind each other with separators between them.
std::string Joined(const std::vector<std::string>& texts, const std::string& separator);

/// One field of each line of a table.
template <class Table, class Field>
std::vector<std::string> Column(const Table& table, Field field) {
  std::vector<std::string> texts;
  std::transform(table.begin(), table.end(), std::back_inserter(texts), std::mem_fn(field));
  return texts;
}

}  // namespace commandline
