#pragma once

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {

/// Calls that work on the hour types and day types of the example.
class TypesTest : public CommandLine {
 protected:
  /// The call with its output as JSON, which tells of the types in `member`.
  Json DoTypes(std::vector<std::string> arguments) const {
    const std::string verb = arguments[0] + " " + arguments[1];
    arguments.push_back("--json");
    const Ended ended = Do(arguments);
    Json json = Json::parse(ended.output);
    EXPECT_EQ(json["status"], ended.status);
    EXPECT_EQ(json["verb"], verb);
    return json;
  }

  /// The numbers of what was told and asked.
  static std::vector<int> Numbers(const Json& json) {
    std::vector<int> numbers;
    for (const auto& text : json["texts"]) {
      numbers.push_back(text["number"]);
    }
    return numbers;
  }

  /// One member of each of the objects.
  static std::vector<std::string> Column(const Json& types, const char* member) {
    std::vector<std::string> values;
    for (const auto& type : types) {
      values.push_back(type[member]);
    }
    return values;
  }

  Json HourTypesOf(const std::string& stem) const {
    return DoTypes({"hour-type", "list", stem})["hourTypes"];
  }

  Json DayTypesOf(const std::string& stem) const {
    return DoTypes({"day-type", "list", stem})["dayTypes"];
  }

  const Contents before = All();
};

}  // namespace qvdisc
