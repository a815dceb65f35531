// Each kind of fault, planted in a copy of the example and found.
#include <gmock/gmock.h>

#include <set>
#include <tuple>

#include "apps/qvdisc/FindingWords.h"
#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using qv::Finding;
using qv::FindingKind;
using testing::ElementsAre;
using testing::HasSubstr;

class CheckTest : public CommandLine {
 protected:
  /// The findings, and whether the exit status says that some of them are faults.
  std::vector<Json> Findings(bool faulty = true, std::vector<std::string> stems = {}) {
    stems.insert(stems.begin(), {"check", "--json"});
    const Contents before = All();
    const Ended ended = Do(stems);
    EXPECT_EQ(ended.status, faulty ? 1 : 0) << ended.errors;
    EXPECT_EQ(All(), before) << "a check changes nothing";
    const Json json = Json::parse(ended.output);
    return json["findings"].get<std::vector<Json>>();
  }

  /// The kinds of the findings, one a line.
  static std::string Kinds(const std::vector<Json>& findings) {
    std::string kinds;
    for (const Json& finding : findings) {
      kinds += finding["kind"].get<std::string>() + "\n";
    }
    return kinds;
  }

  /// The only finding there is, after its kind was compared.
  Json Only(const std::string& kind) {
    const auto findings = Findings();
    EXPECT_EQ(Kinds(findings), kind + "\n");
    return findings.empty() ? Json() : findings.front();
  }

  const std::string file = dayAndNight + ".xdct";
};

TEST_F(CheckTest, TheExampleIsFlawless) {
  EXPECT_TRUE(Findings(false).empty());
  EXPECT_EQ(Do({"check"}).output, tariff2 + ".xdct: listed\n" + file + ": listed\n" +
                                      "9cfc40ad-7433-4b63-9bdc-fddcb544122c.Tariff 3-0TD and "
                                      "6-1TD 2026.xdct: listed\n" +
                                      station + ".xdct: listed\n4 files, nothing found\n");
}

TEST_F(CheckTest, AFileThatCannotBeReadIsToldWithItsPlace) {
  Write(file, "<main>\n  <id>1</i>\n");
  const Json found = Only("unreadable");
  EXPECT_EQ(found["file"], file);
  EXPECT_EQ(found["line"], 2);
  EXPECT_GT(found["column"], 0);
  EXPECT_THAT(Do({"check"}).output, HasSubstr(file + ": cannot be read: line 2, column " +
                                              std::to_string(found["column"].get<int>()) + ": "));
}

TEST_F(CheckTest, AFieldThatDisagreesWithTheFileNameIsTold) {
  Edit(file, "<name>Day and night</name>", "<name>day and night</name>");
  Json found = Only("name-differs");
  EXPECT_EQ(found["value"], "day and night");
  EXPECT_EQ(found["expected"], "Day and night");

  Edit(file, "<name>day and night</name>", "<name>Day and night</name>");
  Edit(file, "<id>3cb7ab9e-", "<id>00000000-");
  EXPECT_EQ(Kinds(Findings()),
            "id-differs\ndiscriminator-without-entry\nentry-without-discriminator\n");
}

TEST_F(CheckTest, AFileNameOfAnotherFormIsTold) {
  std::filesystem::rename(File(file), File("copy.xdct"));
  std::filesystem::remove(File(file + "I"));
  EXPECT_EQ(Only("file-name")["file"], "copy.xdct");
}

TEST_F(CheckTest, AHiddenTypeIsExplainedAndNoFault) {
  Edit("configuration.xml", "MODBUSTCP", "KORVAXEMBEDDED");
  const auto findings = Findings(false);
  ASSERT_EQ(Kinds(findings), "hidden-type\n");
  EXPECT_EQ(findings[0]["fault"], false);
  EXPECT_THAT(Do({"check"}).output,
              HasSubstr(".xdct: note: not in the list: the installation is embedded and hides the "
                        "type CONDITIONS\n1 note in 4 files\n"));
}

TEST_F(CheckTest, ASlotWithoutItsHourTypeIsToldWithItsPlace) {
  // The second slot of the first day.
  std::string content = Read(file);
  std::size_t at = content.find("<slot>", content.find("<dayTypes>"));
  at = content.find("<id>", content.find("<slot>", at + 1));
  Write(file, content.replace(at + 4, 8, "deaddead"));
  const Json found = Only("dead-hour-type");
  EXPECT_EQ(found["place"], "dayTypes/Winter day/slot 2 (08:00-18:00)");
  EXPECT_THAT(found["value"].get<std::string>(), testing::StartsWith("deaddead"));
}

TEST_F(CheckTest, DatesThatAreReadOtherwiseAreTold) {
  const std::vector<std::tuple<std::string, std::string, std::string, std::string>> faults = {
      {"<year>2026</year>", "<year>2026x</year>", "wrong-year", "2026x"},
      {"<month2>", "<month13><day1/></month13><month2>", "no-such-month", "month13"},
      {"<month2>", "<month2><day30/>", "no-such-date", "day30"},
  };
  const std::string good = Read(file);
  for (const auto& [from, to, kind, value] : faults) {
    Write(file, good);
    Edit(file, from, to);
    EXPECT_EQ(Only(kind)["value"], value);
  }
}

TEST_F(CheckTest, SlotsThatMakeNoDayAreTold) {
  const std::vector<std::tuple<std::string, std::string, std::string, std::string>> faults = {
      {"<to>08:00</to>", "<to>8:00</to>", "malformed-time", "8:00"},
      {"<to>08:00</to>", "<to>24:30</to>", "time-out-of-range", "24:30"},
      {"<to>08:00</to>", "<to>07:60</to>", "time-out-of-range", "07:60"},
      {"<from>18:00</from>", "<from>24:00</from>", "day-gaps", "360"},
      {"<from>18:00</from>", "<from>17:59</from>", "slots-overlap", "slot 2 (08:00-18:00)"},
      {"<from>18:00</from>", "<from>18:01</from>", "day-gaps", "1"},
  };
  const std::string good = Read(file);
  for (const auto& [from, to, kind, value] : faults) {
    Write(file, good);
    Edit(file, from, to);
    const auto findings = Findings(kind != "day-gaps");
    ASSERT_EQ(Kinds(findings), kind + "\n") << to;
    EXPECT_EQ(findings[0]["value"], value);
    EXPECT_THAT(findings[0]["place"].get<std::string>(),
                testing::StartsWith("dayTypes/Winter day"));
    EXPECT_EQ(findings[0]["fault"], kind != "day-gaps");
  }
  Write(file, good);
  Edit(file, "<from>08:00</from>", "<from>19:00</from>");
  EXPECT_EQ(Only("start-after-end")["place"], "dayTypes/Winter day/slot 2 (19:00-18:00)");
}

TEST_F(CheckTest, ADateWithoutItsDayTypeIsTold) {
  std::string content = Read(file);
  const std::size_t at = content.find("<day7>", content.find("<month3>"));
  ASSERT_NE(at, std::string::npos);
  Write(file, content.replace(at + 6, 8, "deaddead"));
  EXPECT_EQ(Only("dead-day-type")["place"], "calendar/2026-03-07");
}

TEST_F(CheckTest, PartsThatComeTwiceAreTold) {
  Edit(file, "<name>Night</name>", "<name>Day</name>");
  EXPECT_EQ(Kinds(Findings()), "index-stale\nduplicate-part\n");
  Edit(file, "<name>Summer day</name>", "<name>Winter day</name>");
  const auto findings = Findings();
  ASSERT_EQ(findings.size(), 3U);
  EXPECT_EQ(findings[1]["place"], "hourTypes");
  EXPECT_EQ(findings[1]["expected"], "name");
  EXPECT_EQ(findings[2]["place"], "dayTypes");
  EXPECT_EQ(findings[2]["value"], "Winter day");
}

TEST_F(CheckTest, IndexFilesAreCompared) {
  std::filesystem::remove(File(file + "I"));
  EXPECT_EQ(Only("index-missing")["file"], file);
  Write(file + "I", "<hourTypes/>");
  Only("index-stale");
  Write(file + "I", "<hourTypes>");
  Only("index-unreadable");
  Do({"index", dayAndNight});
  EXPECT_TRUE(Findings(false).empty());
}

TEST_F(CheckTest, IndexFilesOfNoUseAreTold) {
  Write(station + ".xdctI", "<hourTypes/>");
  EXPECT_EQ(Only("index-without-use")["file"], station + ".xdctI");
}

TEST_F(CheckTest, TheIndexOfAnUnreadableFileIsLeftAlone) {
  Write(file, "");
  EXPECT_EQ(Only("unreadable")["file"], file);
}

TEST_F(CheckTest, EntriesAndDiscriminatorsAreCompared) {
  Edit("configuration.xml", "<id>b4f5b7a3-", "<id>00000000-");
  const auto findings = Findings();
  ASSERT_EQ(Kinds(findings), "discriminator-without-entry\nentry-without-discriminator\n");
  EXPECT_EQ(findings[0]["file"], station + ".xdct");
  EXPECT_EQ(findings[1]["place"], "deviceGroups/Transformer station");
  EXPECT_EQ(findings[1]["value"], "00000000-3a57-4f3e-92cb-dab16be737f9");
  EXPECT_THAT(Do({"check"}).output, HasSubstr("\nconfiguration.xml: deviceGroups/Transformer"));
}

TEST_F(CheckTest, ARepeatedEntryIsTold) {
  Edit("configuration.xml", "<id>b4f5b7a3-3a57-4f3e-92cb-dab16be737f9</id>",
       "<id>3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b</id>");
  EXPECT_EQ(Kinds(Findings()), "discriminator-without-entry\nduplicate-entry\n");
}

TEST_F(CheckTest, WithoutDeviceGroupsEveryDiscriminatorLacksItsEntry) {
  std::filesystem::remove(File("configuration.xml"));
  EXPECT_EQ(Findings().size(), 4U);
}

TEST_F(CheckTest, IdsAndNamesThatComeTwiceAreTold) {
  Write("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.DAY AND NIGHT.xdct",
        "<main><id>3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b</id><name>DAY AND NIGHT</name></main>");
  EXPECT_EQ(Kinds(Findings()), "duplicate-id\nduplicate-name\nduplicate-id\nduplicate-name\n");
}

TEST_F(CheckTest, OnlyTheFilesOfTheCallAreTold) {
  Write(file, "");
  std::filesystem::remove(File(tariff2 + ".xdctI"));
  EXPECT_EQ(Kinds(Findings(true, {tariff2})), "index-missing\n");
  EXPECT_EQ(Kinds(Findings(true, {"Day and night", "Day and night"})), "unreadable\n");
  EXPECT_TRUE(Findings(false, {station}).empty());
  EXPECT_EQ(Do({"check", station}).output, station + ".xdct: listed\n1 file, nothing found\n");
  const Ended none = Do({"check", "none"});
  EXPECT_EQ(none.status, 1);
  EXPECT_THAT(none.errors, HasSubstr("There is no discriminator “none”"));
}

TEST_F(CheckTest, AwkwardFilesAreToldAndDoNoHarm) {
  for (const auto& awkward : std::filesystem::directory_iterator(AWKWARD_FILES)) {
    if (awkward.is_regular_file()) {
      std::filesystem::copy(awkward, directory.Path(),
                            std::filesystem::copy_options::overwrite_existing);
    }
  }
  Write("configuration.xml", "<configuration/>");
  std::set<std::string> told;
  for (const Json& finding : Findings()) {
    told.insert(finding["file"].get<std::string>());
  }
  EXPECT_GE(told.size(), 5U);
  EXPECT_EQ(Do({"check"}).status, 1);
}

TEST_F(CheckTest, SpeaksSpanish) {
  std::filesystem::remove(File(file + "I"));
  EXPECT_EQ(Do({"check", "--language", "es", dayAndNight}).output,
            file + ": aparece en la lista\n" + file +
                ": falta el archivo de índice\n1 fallo en 1 archivo\n");
}

TEST_F(CheckTest, CountsFilesAndFindingsInWords) {
  const auto lastLine = [](const std::string& output) {
    return output.substr(output.find_last_of('\n', output.size() - 2) + 1);
  };
  EXPECT_EQ(lastLine(Do({"check", dayAndNight}).output), "1 file, nothing found\n");
  EXPECT_EQ(lastLine(Do({"check", "--language", "es", dayAndNight}).output),
            "1 archivo, sin incidencias\n");
  std::filesystem::remove(File(file + "I"));
  EXPECT_EQ(lastLine(Do({"check", dayAndNight}).output), "1 fault in 1 file\n");
  Edit(file, "<from>18:00</from>", "<from>18:01</from>");
  EXPECT_EQ(lastLine(Do({"check", dayAndNight}).output), "1 fault and 1 note in 1 file\n");
  Edit(file, "<to>07:00</to>", "<to>06:59</to>");
  std::filesystem::remove(File(tariff2 + ".xdctI"));
  EXPECT_EQ(lastLine(Do({"check", "--language", "es"}).output),
            "2 fallos y 2 notas en 4 archivos\n");
}

TEST_F(CheckTest, NotesCountForTheExitStatusIfTheCallSaysSo) {
  EXPECT_EQ(Do({"check", "--strict"}).status, 0);
  Edit(file, "<from>18:00</from>", "<from>18:01</from>");
  const Json json = DoJson({"check"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["faults"], 0);
  EXPECT_EQ(json["notes"], 1);
  EXPECT_EQ(DoJson({"check", "--strict"})["status"], 1);
  EXPECT_EQ(Do({"check", "--strict", station}).status, 0);
  std::filesystem::remove(File(file + "I"));
  EXPECT_EQ(DoJson({"check"})["faults"], 1);
  EXPECT_EQ(Do({"check"}).status, 1);
}

TEST_F(CheckTest, ABrokenConfigurationIsAFindingAndTheFilesAreStillChecked) {
  std::filesystem::remove(File(file + "I"));
  Write("configuration.xml", "<configuration>\n<a>\n");
  auto findings = Findings();
  ASSERT_EQ(Kinds(findings), "index-missing\nunreadable\n");
  EXPECT_EQ(findings[1]["file"], "configuration.xml");
  EXPECT_EQ(findings[1]["line"], 3);
  Write("configuration.xml", "<main/>");
  findings = Findings();
  ASSERT_EQ(Kinds(findings), "index-missing\nforeign-configuration\n");
}

TEST_F(CheckTest, EachFileIsToldToBeListedOrNot) {
  Write(file, "");
  const Json json = Json::parse(Do({"check", "--json"}).output);
  ASSERT_EQ(json["files"].size(), 4U);
  for (const Json& told : json["files"]) {
    EXPECT_EQ(told["listed"], told["file"] != file);
  }
}

TEST_F(CheckTest, AFileThatCannotBeOpenedHasNoPlace) {
  std::filesystem::remove(File(file));
  std::filesystem::create_directory(File(file));
  EXPECT_EQ(Only("unreadable")["line"], 0);
  EXPECT_EQ(Do({"check"}).output.find("line 0"), std::string::npos);
}

TEST_F(CheckTest, AnIndexThatIsNoFileIsUnreadable) {
  std::filesystem::remove(File(file + "I"));
  std::filesystem::create_directory(File(file + "I"));
  Only("index-unreadable");
}

TEST_F(CheckTest, NamesAreComparedAsTheEditorComparesThem) {
  int number = 0;
  for (const char* name : {"s", "T", "\xC5\xBF"}) {  // the last is an s of old prints
    const std::string id = "x" + std::to_string(++number);
    Write(id + "." + name + ".xdct", "<main><id>" + id + "</id><name>" + name + "</name></main>");
  }
  std::string twins;
  for (const Json& finding : Findings()) {
    if (finding["kind"] == "duplicate-name") {
      twins += finding["file"].get<std::string>().substr(0, 2) + " ";
    }
  }
  EXPECT_EQ(twins, "x1 x3 ");
}

TEST_F(CheckTest, IdsOfPartsThatComeTwiceAreTold) {
  Edit(station + ".xdct", "<conditions>",
       "<conditions><condition><id>1</id><name>a</name></condition><condition><id>1</id><name>a</"
       "name></condition>");
  const auto findings = Findings();
  ASSERT_EQ(Kinds(findings),
            "duplicate-part\nduplicate-part\ncondition-missing\ncondition-missing\n");
  EXPECT_EQ(findings[0]["expected"], "id");
  EXPECT_EQ(findings[0]["place"], "conditions");
}

TEST_F(CheckTest, TagsThatAreNoDatesAreNoDates) {
  Edit(file, "<month1>", "<monthX><day1>none</day1></monthX><month1><dayZ>none</dayZ>");
  EXPECT_TRUE(Findings(false).empty());
}

TEST_F(CheckTest, OnlyDevicesAreEntries) {
  Edit("configuration.xml", "<devices>",
       "<devices><extra><id>none</id><type>R$DISC</type></extra>");
  EXPECT_TRUE(Findings(false).empty());
}

TEST_F(CheckTest, AGroupWithoutANameIsToldByItsNumber) {
  Edit("configuration.xml", "<name>Transformer station</name>", "");
  Edit("configuration.xml", "<id>b4f5b7a3-", "<id>00000000-");
  const auto findings = Findings();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[1]["place"], "deviceGroups/(group 1)");
}

TEST_F(CheckTest, TheUselessIndexOfANamedFileIsTold) {
  Write(station + ".xdctI", "<hourTypes/>");
  EXPECT_EQ(Kinds(Findings(true, {station})), "index-without-use\n");
}

TEST(Finding, EachKindHasItsNameAndItsSentenceInBothLanguages) {
  std::set<std::string> names;
  for (int i = 0; i < static_cast<int>(FindingKind::Count); ++i) {
    const auto kind = static_cast<FindingKind>(i);
    EXPECT_TRUE(names.insert(KindName(kind)).second) << i;
    const Finding finding{
        .kind = kind, .file = L"f", .place = L"p", .value = L"v", .expected = L"e"};
    EXPECT_NE(Sentence(finding, qv::Language::Spanish), Sentence(finding, qv::Language::English));
    EXPECT_EQ(Sentence(finding, qv::Language::Spanish).find(L'%'), std::wstring::npos);
  }
}

}  // namespace
}  // namespace qvdisc
