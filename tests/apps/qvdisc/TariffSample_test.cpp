// The script of the documentation that makes a tariff.
#include <gmock/gmock.h>

#include <cstdlib>

#include "tests/apps/qvdisc/TypesTest.h"

namespace qvdisc {
namespace {

/// An installation in which there is nothing yet, beside the example.
class TariffSample : public TypesTest {
 protected:
  /// Runs the script with the program in the path.
  int RunScript() const {
    const std::filesystem::path programs = std::filesystem::path(QVDISC_FILE).parent_path();
    const std::string call = "LC_ALL=C PATH='" + programs.string() +
                             "':\"$PATH\" QVDISC_INSTALLATION='" + made.Path().string() +
                             "' sh '" SAMPLES_FOLDER "/tariff-2-0TD.sh' > '" + Output().string() +
                             "' 2>&1";
    return std::system(call.c_str());
  }

  std::filesystem::path Output() const { return told.Path() / "output"; }

  /// The types that a call lists in an installation, without what is different in each of them.
  static Json TypesIn(const std::filesystem::path& installation, const std::string& kind,
                      const std::string& stem, const char* member) {
    const Ended ended =
        Call({kind, "list", stem, "--json", "--installation", installation.string()});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    Json types = Json::parse(ended.output)[member];
    for (Json& type : types) {
      type.erase("id");
      if (type.contains("slots")) {
        for (Json& slot : type["slots"]) {
          slot.erase("hourTypeId");
        }
      }
    }
    return types;
  }

  /// The calendar of a discriminator, without the ids of the day types.
  static Json CalendarIn(const std::filesystem::path& installation, const std::string& stem) {
    const Ended ended = Call({"show", stem, "--json", "--installation", installation.string()});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    Json calendar = Json::parse(ended.output)["document"]["calendar"];
    for (Json& year : calendar["years"]) {
      for (Json& type : year["dayTypes"]) {
        type.erase("dayTypeId");
      }
    }
    return calendar;
  }

  qv::TemporaryDirectory made;
  qv::TemporaryDirectory told;
};

TEST_F(TariffSample, MakesTheTypesAndTheCalendarOfTheExampleFromNothing) {
  ASSERT_EQ(RunScript(), 0) << qv::FileBytes(Output());
  const std::string name = "Tariff 2-0TD";
  const Json hourTypes = TypesIn(made.Path(), "hour-type", name, "hourTypes");
  EXPECT_EQ(hourTypes.size(), 3U);
  EXPECT_EQ(hourTypes, TypesIn(directory.Path(), "hour-type", tariff2, "hourTypes"));
  const Json dayTypes = TypesIn(made.Path(), "day-type", name, "dayTypes");
  EXPECT_EQ(dayTypes.size(), 2U);
  EXPECT_EQ(dayTypes, TypesIn(directory.Path(), "day-type", tariff2, "dayTypes"));

  const Json calendar = CalendarIn(made.Path(), name);
  EXPECT_EQ(calendar["years"][0]["dates"], 365);
  EXPECT_EQ(calendar, CalendarIn(directory.Path(), tariff2));

  const Ended checked = Call({"check", "--strict", "--installation", made.Path().string()});
  EXPECT_EQ(checked.status, 0) << checked.output;
  EXPECT_THAT(qv::FileBytes(Output()), testing::HasSubstr("Day type “Working day” made\n"));
}

}  // namespace
}  // namespace qvdisc
