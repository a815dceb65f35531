#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "apps/qvdisc/Run.h"
#include "tests/support/TemporaryDirectory.h"

namespace qvdisc {

using Json = nlohmann::json;

struct Ended {
  int status = -1;
  std::string output;
  std::string errors;
};

/// Runs the program in this process, as if it had been called with these arguments.
inline Ended Call(const std::vector<std::string>& arguments, const std::string& input = {},
                  bool atTerminal = false, qv::Files& files = qv::Files::Disk()) {
  std::vector<const char*> words = {"qvdisc"};
  for (const std::string& argument : arguments) {
    words.push_back(argument.c_str());
  }
  const auto call = ReadArguments(static_cast<int>(words.size()), words.data());
  if (const auto* end = std::get_if<commandline::EarlyEnd>(&call)) {
    return {end->status, end->output, end->error};
  }
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const std::filesystem::path languages = LANGUAGES_FOLDER;
  const Terminal terminal{.in = in,
                          .out = out,
                          .err = err,
                          .canAsk = atTerminal,
                          .showsProgress = atTerminal,
                          .coloursOutput = atTerminal,
                          .coloursErrors = false};
  const System system{.language = qv::Language::English,
                      .languageDirectory = (languages / "").wstring(),
                      .files = files};
  const int status = Run(std::get<Arguments>(call), terminal, system);
  return {status, out.str(), err.str()};
}

/// The files of a directory, by name.
using Contents = std::map<std::string, std::string>;

/// Calls on a copy of the example installation.
class CommandLine : public testing::Test {
 public:
  CommandLine() {
    for (const auto& file : std::filesystem::directory_iterator(EXAMPLE_INSTALLATION)) {
      std::filesystem::copy(file, directory.Path());
      std::filesystem::permissions(directory.Path() / file.path().filename(),
                                   std::filesystem::perms::owner_write,
                                   std::filesystem::perm_options::add);
    }
  }

  /// The verb with its arguments, on this copy.
  Ended Do(std::vector<std::string> arguments, const std::string& input = {},
           bool atTerminal = false) const {
    arguments.insert(arguments.end(), {"--installation", directory.Path().string()});
    return Call(arguments, input, atTerminal);
  }

  /// The same with its output as JSON, of which the members that all verbs have are compared.
  Json DoJson(std::vector<std::string> arguments, const std::string& input = {}) const {
    arguments.push_back("--json");
    const Ended ended = Do(arguments, input);
    Json json = Json::parse(ended.output);
    EXPECT_EQ(json["status"], ended.status);
    EXPECT_EQ(json["form"], 1);
    EXPECT_EQ(json["verb"], arguments.front());
    return json;
  }

  /// The names of the rows that the call ended with.
  static std::vector<std::string> Names(const Json& json) {
    std::vector<std::string> names;
    for (const auto& row : json["rows"]) {
      names.push_back(row["name"]);
    }
    return names;
  }

  std::filesystem::path File(const std::string& name) const { return directory.Path() / name; }

  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(File(name), std::ios::binary) << content;
  }

  std::string Read(const std::string& name) const { return qv::FileBytes(File(name)); }

  /// Changes the first `from` in the file to `to`.
  void Edit(const std::string& name, const std::string& from, const std::string& to) const {
    std::string content = Read(name);
    const std::size_t at = content.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    Write(name, content.replace(at, from.size(), to));
  }

  Contents All() const {
    Contents files;
    for (const auto& file : std::filesystem::directory_iterator(directory.Path())) {
      files[file.path().filename().string()] =
          file.is_regular_file() ? qv::FileBytes(file.path()) : std::string("directory");
    }
    return files;
  }

  qv::TemporaryDirectory directory;
};

inline const std::string dayAndNight = "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night";
inline const std::string station = "b4f5b7a3-3a57-4f3e-92cb-dab16be737f9.Transformer station state";
inline const std::string tariff2 = "142ff28b-e7f0-4c2b-9500-df7680b117a7.Tariff 2-0TD 2026";

}  // namespace qvdisc
