// Each verb, with what it prints, what it leaves on the disk, and how it ends.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"
#include "tools/XmlDocument.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class VerbsTest : public CommandLine {
 protected:
  const Contents before = All();
};

TEST_F(VerbsTest, ListAlignsItsColumns) {
  const Ended ended = Do({"list"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
  std::istringstream lines(ended.output);
  std::vector<std::string> starts;
  for (std::string line; std::getline(lines, line);) {
    starts.push_back(line.substr(0, 38));
  }
  EXPECT_THAT(starts, ElementsAre(testing::StartsWith("Name                         Stem  "),
                                  "Day and night                3cb7ab9e-",
                                  "Tariff 2-0TD 2026            142ff28b-",
                                  "Tariff 3-0TD and 6-1TD 2026  9cfc40ad-",
                                  "Transformer station state    b4f5b7a3-"));
  EXPECT_EQ(All(), before);
}

TEST_F(VerbsTest, NamesAreStemsAndNamesOfAllFiles) {
  Write("x.Day and night.xdct", "broken");
  Write("y.xdct", "broken");
  const Ended ended = Do({"names"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output, tariff2 + "\n" + dayAndNight +
                              "\n9cfc40ad-7433-4b63-9bdc-fddcb544122c.Tariff 3-0TD and 6-1TD "
                              "2026\n" +
                              station +
                              "\nx.Day and night\ny\nDay and night\nTariff 2-0TD 2026\n"
                              "Tariff 3-0TD and 6-1TD 2026\nTransformer station state\n");
  EXPECT_THAT(Call({"--help"}).output, Not(HasSubstr("names ")));
}

TEST_F(VerbsTest, ListSpeaksTheLanguageOfTheCall) {
  EXPECT_THAT(Do({"list", "--language", "es"}).output, testing::StartsWith("Nombre "));
}

TEST_F(VerbsTest, HeadingsAreBoldOnATerminalOnly) {
  EXPECT_THAT(Do({"list"}, {}, true).output, testing::StartsWith("\033[1mName"));
  EXPECT_THAT(Do({"list"}).output, Not(HasSubstr("\033")));
}

TEST_F(VerbsTest, ControlCharactersOfAFileDoNothingToATerminal) {
  Edit(dayAndNight + ".xdct", "Hours of daylight",
       "Hours\xC2\x9B"
       "31m of&#9;daylight");
  const Ended ended = Do({"list"});
  EXPECT_THAT(ended.output, HasSubstr("Hours 31m of daylight"));
  EXPECT_EQ(std::count(ended.output.begin(), ended.output.end(), '\n'), 5);
}

TEST_F(VerbsTest, ListGivesItsRowsAsJson) {
  const Json json = DoJson({"list"});
  EXPECT_THAT(Names(json), ElementsAre("Day and night", "Tariff 2-0TD 2026",
                                       "Tariff 3-0TD and 6-1TD 2026", "Transformer station state"));
  EXPECT_EQ(json["rows"][0]["stem"], dayAndNight);
  EXPECT_EQ(json["rows"][0]["id"], "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b");
  EXPECT_EQ(json["hostHasToSave"], false);
  EXPECT_EQ(json["notices"], Json::array());
}

TEST_F(VerbsTest, AnEmbeddedInstallationHidesConditions) {
  Edit("configuration.xml", "MODBUSTCP", "KORVAXEMBEDDED");
  EXPECT_EQ(Names(DoJson({"list"})).size(), 3U);
  const Ended ended = Do({"modify", "Day and night", "--type", "CONDITIONS"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("cannot be chosen on an embedded installation"));
  EXPECT_EQ(Do({"modify", "Day and night", "--type", "SLOTS"}).status, 0);
}

TEST_F(VerbsTest, ShowTellsWhatADiscriminatorHolds) {
  const Ended ended = Do({"show", dayAndNight});
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.output, HasSubstr("Zero outside slots    no\n"));
  EXPECT_THAT(ended.output, HasSubstr("\nHour types\n  Day = 1\n  Night\n"));
  EXPECT_THAT(ended.output,
              HasSubstr("  Summer day\n    00:00 07:00 Night\n    07:00 21:00 Day\n"));
  EXPECT_THAT(ended.output, HasSubstr("\nCalendar\n  2026: 365 dates\n"));
  EXPECT_THAT(Do({"show", station}).output, HasSubstr("\nConditions\n  "));
}

TEST_F(VerbsTest, ShowGivesTheWholeDocumentAsJson) {
  const Json document = DoJson({"show", dayAndNight})["document"];
  EXPECT_EQ(document["name"], "Day and night");
  EXPECT_EQ(document["setZeroOutsideSlot"], false);
  EXPECT_EQ(document["content"][0], Json({{"id", "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b"}}));
}

TEST_F(VerbsTest, ADiscriminatorIsFoundByStemIdOrName) {
  for (const char* text : {"3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night",
                           "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b", "DAY and night"}) {
    EXPECT_EQ(DoJson({"show", text})["document"]["name"], "Day and night");
  }
  const Ended none = Do({"show", "Day"});
  EXPECT_EQ(none.status, 1);
  EXPECT_EQ(none.errors, "qvdisc: There is no discriminator “Day” in the list\n");
  Write("x.Day and night.xdct", "<main><id>x</id><name>Day and night</name></main>");
  EXPECT_THAT(Do({"show", "Day and night"}).errors, HasSubstr("more than one"));
  EXPECT_EQ(Do({"show", "x"}).status, 0);
}

TEST_F(VerbsTest, AddMakesTheFilesTheEntryAndSaves) {
  const Json json = DoJson({"add", "--name", "New", "--description", "d", "--zero-outside", "no"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["notices"], Json({8, 5}));
  EXPECT_EQ(json["hostHasToSave"], true);
  EXPECT_EQ(json["saved"], true);
  const std::string id = json["rows"][1]["id"];
  EXPECT_THAT(Read(id + ".New.xdct"), HasSubstr("<setZeroOutsideSlot>F</setZeroOutsideSlot>"));
  EXPECT_TRUE(std::filesystem::exists(File(id + ".New.xdctI")));
  EXPECT_THAT(Read("configuration.xml"), HasSubstr(id));
}

TEST_F(VerbsTest, AddMakesTheDeviceGroupsAndTheConfiguration) {
  std::filesystem::remove(File("configuration.xml"));
  const Json json = DoJson({"add", "--name", "New"});
  EXPECT_EQ(json["saved"], true);
  XmlDocument document;
  ASSERT_TRUE(document.Load(File("configuration.xml").wstring().c_str()));
  const qv::XmlNode& entry =
      **document.Root()->Node(L"deviceGroups")->Node(L"devices")->ChildsBegin();
  EXPECT_EQ(entry.Value(L"type"), L"R$DISC");
}

TEST_F(VerbsTest, ARefusedNameGivesTheTextOfTheDialog) {
  for (const auto& [name, number] : std::vector<std::pair<std::string, int>>{
           {"", 32363}, {"a.b", 32764}, {"DAY AND NIGHT", 32365}}) {
    const Json json = DoJson({"add", "--name", name});
    EXPECT_EQ(json["status"], 1);
    ASSERT_EQ(json["texts"].size(), 1U);
    EXPECT_EQ(json["texts"][0]["number"], number);
    EXPECT_EQ(json["hostHasToSave"], false);
  }
  EXPECT_EQ(DoJson({"add", "--name", "n", "--description", "\""})["texts"][0]["number"], 32366);
  EXPECT_EQ(All(), before);
}

TEST_F(VerbsTest, ModifyRenamesAndSwitchesTheType) {
  const Json json = DoJson({"modify", "Day and night", "--name", "Other", "--type", "CONDITIONS"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["hostHasToSave"], true);
  EXPECT_FALSE(std::filesystem::exists(File(dayAndNight + ".xdct")));
  EXPECT_FALSE(std::filesystem::exists(File(dayAndNight + ".xdctI")));
  const std::string file = Read("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Other.xdct");
  EXPECT_THAT(file, HasSubstr("<type>CONDITIONS</type>"));
  EXPECT_THAT(file, Not(HasSubstr("<hourTypes>")));
}

TEST_F(VerbsTest, ATypeOfAnotherWordIsReplaced) {
  Write("x.odd.xdct",
        "<main><id>x</id><name>odd</name><type>FOO</type><conditions><condition><id>c</id>"
        "</condition></conditions></main>");
  EXPECT_EQ(Do({"modify", "odd", "--type", "CONDITIONS"}).status, 0);
  EXPECT_THAT(Read("x.odd.xdct"), HasSubstr("<type>CONDITIONS</type>"));
  EXPECT_THAT(Read("x.odd.xdct"), HasSubstr("<id>c</id>"));
}

TEST_F(VerbsTest, NamesInBracketsAreNames) {
  const std::vector<std::string> names = {"[a,b]", "a", "b", "[]"};
  for (const std::string& name : names) {
    EXPECT_EQ(Do({"add", "--name", name}).status, 0) << name;
  }
  EXPECT_EQ(DoJson({"show", "[a,b]"})["document"]["name"], "[a,b]");
  EXPECT_EQ(Do({"remove", "--yes", "[a,b]", "[]"}).status, 0);
  EXPECT_EQ(Names(DoJson({"list"})).size(), 6U);
  EXPECT_EQ(Do({"check", "[]"}).status, 1);
}

TEST_F(VerbsTest, TheSameDiscriminatorTwiceIsOne) {
  EXPECT_EQ(DoJson({"remove", "--yes", dayAndNight, "Day and night"})["notices"], Json({5, 8}));
}

TEST_F(VerbsTest, ModifyWithoutAChangeStillWritesAndHasToSave) {
  const Json json = DoJson({"modify", "Day and night"});
  EXPECT_EQ(json["notices"], Json::array());
  EXPECT_EQ(json["hostHasToSave"], true);
}

TEST_F(VerbsTest, WhatCannotBeSavedIsGivenBack) {
  std::filesystem::permissions(File(tariff2 + ".xdct"), std::filesystem::perms::owner_read);
  const std::string old = Read(tariff2 + ".xdct");
  const Json json = DoJson({"modify", tariff2, "--description", "changed"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["texts"][0]["number"], 32362);
  EXPECT_THAT(std::string(json["unsaved"]), HasSubstr("<description>changed</description>"));
  EXPECT_EQ(Read(tariff2 + ".xdct"), old);
  const Ended pasted = Do({"paste"}, json["unsaved"]);
  EXPECT_EQ(pasted.status, 0);
  EXPECT_THAT(Do({"list"}).output, HasSubstr("Tariff 2-0TD 2026_1"));
}

TEST_F(VerbsTest, RemoveAsksAndTakesTheAnswerOfTheCall) {
  const Json no = DoJson({"remove", station, dayAndNight, "--no"});
  EXPECT_EQ(no["status"], 1);
  EXPECT_EQ(no["texts"][0]["kind"], "question");
  EXPECT_EQ(no["texts"][0]["answer"], false);
  EXPECT_EQ(All(), before);

  const Json yes = DoJson({"remove", station, dayAndNight, "--yes"});
  EXPECT_EQ(yes["status"], 0);
  EXPECT_EQ(yes["texts"].size(), 1U);
  EXPECT_EQ(yes["notices"], Json({5, 8, 5, 8}));
  EXPECT_EQ(Names(yes).size(), 2U);
  EXPECT_THAT(Read("configuration.xml"), Not(HasSubstr("b4f5b7a3")));
}

TEST_F(VerbsTest, WithoutAnAnswerAQuestionIsRefusedAwayFromATerminal) {
  const Ended ended = Do({"remove", dayAndNight}, "y\n");
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("This question needs --yes or --no"));
  EXPECT_EQ(DoJson({"remove", dayAndNight})["texts"][0]["answer"], nullptr);
  EXPECT_EQ(All(), before);
}

TEST_F(VerbsTest, AtATerminalTheUserIsAsked) {
  EXPECT_EQ(Do({"remove", dayAndNight}, "no\n", true).status, 1);
  EXPECT_EQ(Do({"remove", dayAndNight}, "", true).status, 1);
  EXPECT_EQ(All(), before);
  const Ended yes = Do({"remove", dayAndNight}, "what?\n\nyes\n", true);
  EXPECT_EQ(yes.status, 0);
  EXPECT_THAT(yes.errors, HasSubstr("[y/n]"));
  EXPECT_FALSE(std::filesystem::exists(File(dayAndNight + ".xdct")));
}

TEST_F(VerbsTest, WhatAQuestionIsAboutStandsOnLinesBelowIt) {
  const Ended no = Do({"remove", dayAndNight, station, "--no"});
  EXPECT_THAT(no.errors, HasSubstr("undone.\n• Day and night\n• Transformer station state\n"));
  const Json json = DoJson({"remove", dayAndNight, "--no"});
  EXPECT_THAT(std::string(json["texts"][0]["text"]), Not(HasSubstr("Day and night")));
}

TEST_F(VerbsTest, AFileThatCannotBeDeletedStopsTheRemoval) {
  std::filesystem::permissions(File(tariff2 + ".xdct"), std::filesystem::perms::owner_read);
  const Json json = DoJson({"remove", dayAndNight, tariff2, station, "--yes"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["texts"][1]["number"], 32369);
  EXPECT_EQ(json["saved"], true);
  EXPECT_EQ(Names(json).size(), 3U);
}

TEST_F(VerbsTest, CopyAndPasteGoThroughAPipe) {
  const Ended copied = Do({"copy", station, dayAndNight});
  EXPECT_EQ(copied.status, 0);
  EXPECT_THAT(copied.output, testing::StartsWith("<discriminatorClipboard><discriminator>"));
  EXPECT_LT(copied.output.find("Day and night"), copied.output.find("Transformer station state"));
  EXPECT_EQ(DoJson({"copy", station, dayAndNight})["payload"].get<std::string>() + "\n",
            copied.output);

  const Json pasted = DoJson({"paste"}, copied.output);
  EXPECT_EQ(pasted["status"], 0);
  EXPECT_EQ(pasted["notices"], Json({8, 5, 8, 5}));
  EXPECT_THAT(Names(pasted),
              testing::IsSupersetOf({"Day and night_1", "Transformer station state_1"}));
}

TEST_F(VerbsTest, ForeignInputIsRefused) {
  for (const std::string& input :
       {std::string(), std::string("hello"), std::string("<main/>"), std::string("\0\0\xff", 3),
        std::string("<discriminatorClipboard>"), std::string(1 << 20, '<'),
        std::string("<discriminatorClipboard/>"),
        std::string("<discriminatorClipboard><discriminator><main/></discriminator>"
                    "</discriminatorClipboard>")}) {
    const Ended ended = Do({"paste"}, input);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.errors, "qvdisc: Standard input holds no discriminators\n");
  }
  EXPECT_EQ(All(), before);
}

TEST_F(VerbsTest, APasteThatCannotBeWrittenIsTold) {
  const Ended ended = Do({"paste"},
                         "<discriminatorClipboard><discriminator><main><name>a/b</name></main>"
                         "</discriminator></discriminatorClipboard>");
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("The files of 1 discriminators could not be written"));
}

TEST_F(VerbsTest, OfSeveralPastedOnlyThoseThatCannotBeWrittenAreCounted) {
  const auto item = [](const std::string& name) {
    return "<discriminator><main><name>" + name + "</name></main></discriminator>";
  };
  const Json json = DoJson({"paste"}, "<discriminatorClipboard>" + item("a/b") + item("New") +
                                          item("c/d") + item("") + "</discriminatorClipboard>");
  EXPECT_EQ(json["status"], 1);
  EXPECT_THAT(std::string(json["errors"][0]), HasSubstr("The files of 2 discriminators"));
  EXPECT_EQ(json["notices"], Json({8, 5, 8, 5, 8, 5}));
  EXPECT_THAT(Names(json), testing::Contains("New"));
}

TEST_F(VerbsTest, IndexMakesTheFilesAnew) {
  const std::string index = Read(dayAndNight + ".xdctI");
  Write(dayAndNight + ".xdctI", "old");
  std::filesystem::remove(File(tariff2 + ".xdctI"));
  EXPECT_EQ(Do({"index", dayAndNight}).output, dayAndNight + ": index written\n");
  EXPECT_EQ(Read(dayAndNight + ".xdctI"), index);
  EXPECT_FALSE(std::filesystem::exists(File(tariff2 + ".xdctI")));

  const Json json = DoJson({"index"});
  EXPECT_EQ(json["indexes"].size(), 4U);
  EXPECT_EQ(json["indexes"][3], Json({{"stem", station}, {"needed", false}, {"written", false}}));
  EXPECT_EQ(json["hostHasToSave"], false);
  EXPECT_EQ(All(), before);
}

TEST_F(VerbsTest, AnIndexThatCannotBeWrittenIsAFailure) {
  std::filesystem::remove(File(dayAndNight + ".xdctI"));
  std::filesystem::create_directory(File(dayAndNight + ".xdctI"));
  const Ended ended = Do({"index"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr(dayAndNight + "” could not be written"));
}

TEST_F(VerbsTest, ABrokenOrForeignConfigurationIsRefused) {
  Write("configuration.xml", "<configuration>");
  Ended ended = Do({"add", "--name", "n"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("cannot be read"));
  Write("configuration.xml", "<other/>");
  ended = Do({"list"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "");
  EXPECT_THAT(ended.errors, HasSubstr("is not the configuration of an installation"));
  EXPECT_EQ(DoJson({"list"})["rows"], Json::array());
}

TEST_F(VerbsTest, AConfigurationThatCannotBeSavedIsTold) {
  std::filesystem::permissions(File("configuration.xml"), std::filesystem::perms::owner_read);
  const Json json = DoJson({"remove", dayAndNight, "--yes"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["hostHasToSave"], true);
  EXPECT_EQ(json["saved"], false);
  EXPECT_THAT(std::string(json["errors"][0]), HasSubstr("could not be saved"));
  const std::string unsaved = json["unsavedConfiguration"];
  EXPECT_THAT(unsaved, testing::StartsWith("<?xml"));
  EXPECT_THAT(unsaved, Not(HasSubstr("3cb7ab9e")));
  EXPECT_THAT(unsaved, HasSubstr("<commSystem>"));
}

TEST_F(VerbsTest, ReadingManyFilesShowsALineOnATerminalAndTakesItAway) {
  for (int i = 0; i < 120; ++i) {
    const std::string name = std::to_string(i);
    Write(name + ".n" + name + ".xdct",
          "<main><id>" + name + "</id><name>n" + name + "</name></main>");
  }
  const Ended ended = Do({"list"}, {}, true);
  EXPECT_EQ(ended.errors, "\r\033[KReading 50 of 124\r\033[KReading 100 of 124\r\033[K");
  EXPECT_EQ(Do({"list"}).errors, "");
}

}  // namespace
}  // namespace qvdisc
