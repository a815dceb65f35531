#include "calendar/CalendarTree.h"

#include <gmock/gmock.h>

#include "discriminator/Fields.h"
#include "tests/calendar/Printing.h"
#include "tests/support/Parsed.h"

namespace qv {
namespace {

constexpr char workAndRest[] =
    "<dayTypes><day><id>w</id><name>Work</name><color>0000ff</color></day>"
    "<day><id>r</id><name>Rest</name><color>00FF00</color></day></dayTypes>";

std::string Narrow(const QVWideString& text) {
  const std::wstring_view wide = text.ToView();
  return {wide.begin(), wide.end()};
}

/// The element of the node, without white space.
std::string Code(const XmlNode& node) {
  std::string code = '<' + Narrow(node.Tag()) + '>' + Narrow(node.Value());
  for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
    code += Code(**child);
  }
  return code + "</" + Narrow(node.Tag()) + '>';
}

/// A calendar and its day types as a file holds them.
struct Tree {
  std::unique_ptr<XmlNode> calendar;
  std::unique_ptr<XmlNode> dayTypes;

  explicit Tree(std::string_view years, std::string_view days = workAndRest)
      : calendar(Parsed("<calendar>" + std::string(years) + "</calendar>")),
        dayTypes(Parsed(days)) {}

  CalendarMarks Read() const {
    return ReadCalendar(Calendar(*calendar), DayTypes(*dayTypes),
                        SortedColouredTypes(dayTypes.get(), tag::Day));
  }

  /// What the calendar is after it was read and written again, without its own element.
  std::string Rewritten() const {
    WriteCalendar(Read(), DayTypes(*dayTypes), Calendar(*calendar));
    const std::string code = Code(*calendar);
    constexpr std::size_t start = std::string_view("<calendar>").size();
    constexpr std::size_t end = std::string_view("</calendar>").size();
    return code.substr(start, code.size() - start - end);
  }
};

/// The marks as "year-month-day name colour", by date.
std::vector<std::string> Listed(const CalendarMarks& marks) {
  std::vector<std::string> list;
  marks.ForEach([&](const CalendarMarks::Mark& mark) {
    list.push_back(std::to_string(mark.date.year) + '-' + std::to_string(mark.date.month) + '-' +
                   std::to_string(mark.date.day) + ' ' + Narrow(mark.brush.text) + ' ' +
                   std::to_string(mark.brush.colour));
  });
  return list;
}

std::string Year(int year, std::string_view months) {
  return "<year><year>" + std::to_string(year) + "</year>" + std::string(months) + "</year>";
}

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CalendarTree, AMarkHasNameAndColourOfItsDayType) {
  const Tree tree(Year(2026, "<month1><day6>r</day6><day1>w</day1></month1>"));
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-1 Work 255", "2026-1-6 Rest 65280"));
  EXPECT_TRUE(tree.Read().CurrentBrush().IsEraser());
  EXPECT_FALSE(tree.Read().CanUndo());
}

TEST(CalendarTree, ReferencesToRemovedDayTypesFallAway) {
  const Tree tree(Year(2026, "<month1><day1>gone</day1><day2></day2><day3>w</day3></month1>"));
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-3 Work 255"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day3>w</day3></month1>"));
}

TEST(CalendarTree, DaysBeyondTheirMonthFallAway) {
  const Tree tree(Year(2026,
                       "<month2><day28>w</day28><day29>w</day29><day30>w</day30></month2>"
                       "<month13><day1>w</day1></month13><month4><day31>w</day31></month4>"));
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-2-28 Work 255"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month2><day28>w</day28></month2>"));
}

TEST(CalendarTree, ALeapYearHasItsDay) {
  const std::string leap = Year(2024, "<month2><day29>w</day29></month2>");
  EXPECT_EQ(Tree(leap).Rewritten(), leap);
}

TEST(CalendarTree, OnlyTheTagsOfAPathAreMonthsAndDays) {
  const Tree tree(Year(2026,
                       "<month01><day1>w</day1></month01><Month2><day1>w</day1></Month2>"
                       "<month3><day01>w</day01><day>w</day><dayX>w</dayX><day5x>w</day5x>"
                       "<day7>w</day7><day7>r</day7></month3><month3><day8>w</day8></month3>"
                       "<month0><day1>w</day1></month0><month><day1>w</day1></month>"));
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-3-7 Work 255"));
}

TEST(CalendarTree, TwoNodesOfOneYearAreOneAfterwardsAndTheLaterWins) {
  const Tree tree(Year(2026, "<month1><day1>w</day1><day2>w</day2></month1>") +
                  Year(2026, "<month1><day1>r</day1></month1>"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day1>r</day1><day2>w</day2></month1>"));
}

TEST(CalendarTree, YearsAreSorted) {
  const Tree tree(Year(2027, "<month1><day1>w</day1></month1>") +
                  Year(2026, "<month12><day1>w</day1></month12>") +
                  Year(2027, "<month2><day28>w</day28></month2>"));
  EXPECT_EQ(tree.Rewritten(),
            Year(2026, "<month12><day1>w</day1></month12>") +
                Year(2027, "<month1><day1>w</day1></month1><month2><day28>w</day28></month2>"));
}

struct YearCase {
  const char* text;
  int year;

  friend void PrintTo(const YearCase& year, std::ostream* stream) { *stream << year.text; }
};

class OddYears : public testing::TestWithParam<YearCase> {};

TEST_P(OddYears, AreReadAsNumbersOf16Bits) {
  const Tree tree("<year><year>" + std::string(GetParam().text) +
                  "</year><month1><day1>w</day1></month1></year>");
  EXPECT_THAT(Listed(tree.Read()), ElementsAre(std::to_string(GetParam().year) + "-1-1 Work 255"));
  EXPECT_EQ(tree.Rewritten(), Year(GetParam().year, "<month1><day1>w</day1></month1>"));
}

INSTANTIATE_TEST_SUITE_P(Years, OddYears,
                         testing::Values(YearCase{"", 0}, YearCase{"0", 0}, YearCase{"none", 0},
                                         YearCase{"-5", -5}, YearCase{" 2026x", 2026},
                                         YearCase{"99999", -31073}, YearCase{"32768", -32768},
                                         YearCase{"65536", 0},
                                         YearCase{"1234567890123456789012345678901234567890", -1}));

TEST(CalendarTree, AYearWithoutItsFieldIsTheYear0) {
  EXPECT_THAT(Listed(Tree("<year><month1><day1>w</day1></month1></year>").Read()),
              ElementsAre("0-1-1 Work 255"));
}

TEST(CalendarTree, ALeapDayNeedsTheYearAsItIsWrittenAndAsItIsNarrowed) {
  const char* leapDay = "<month2><day29>w</day29></month2>";
  EXPECT_THAT(Listed(Tree(Year(65540, leapDay)).Read()), ElementsAre("4-2-29 Work 255"));
  EXPECT_THAT(Listed(Tree(Year(65636, leapDay)).Read()), IsEmpty());  // 100 has none
  EXPECT_THAT(Listed(Tree(Year(65700, leapDay)).Read()), IsEmpty());  // 164 has one
}

TEST(CalendarTree, EachDateThatExistsIsVisitedWithItsId) {
  const Tree tree(Year(2027, "<month2><day29>w</day29><day1>x</day1></month2>") +
                  Year(67564, "<month2><day29>w</day29></month2>") +
                  Year(65636, "<month2><day29>w</day29></month2>") +  // 100 has none
                  Year(2026, "<month13><day1>w</day1></month13><month1><day1/></month1>"));
  std::vector<std::pair<CalendarDate, std::string>> dates;
  ForEachDate(*tree.calendar, [&](CalendarDate date, const QVWideString& id) {
    dates.emplace_back(date, Narrow(id));
  });
  EXPECT_THAT(dates, ElementsAre(std::pair(CalendarDate{2027, 2, 1}, "x"),
                                 std::pair(CalendarDate{2028, 2, 29}, "w"),
                                 std::pair(CalendarDate{2026, 1, 1}, "")));
}

TEST(CalendarTree, WithoutDayTypesTheWholeCalendarGoes) {
  const Tree tree(Year(2026, "<month1><day1>w</day1></month1>"), "<dayTypes/>");
  EXPECT_EQ(tree.Rewritten(), "");
}

TEST(CalendarTree, WhatIsNoYearStays) {
  const Tree tree("<note>kept</note>" + Year(2026, "<month1><day1>w</day1></month1>") +
                  "<other></other>" + Year(2027, ""));
  EXPECT_EQ(tree.Rewritten(),
            "<note>kept</note><other></other>" + Year(2026, "<month1><day1>w</day1></month1>"));
}

TEST(CalendarTree, EachYearThatTheWalkPassesHasItsNode) {
  const Tree tree(Year(2023, "<month12><day1>w</day1></month12>") +
                  Year(2025, "<month1><day1>w</day1></month1>"));
  EXPECT_EQ(tree.Rewritten(), Year(2023, "<month12><day1>w</day1></month12>") + Year(2024, "") +
                                  Year(2025, "<month1><day1>w</day1></month1>"));
}

TEST(CalendarTree, TheWalkEndsAMonthEarlyIfTheFirstMarkHasTheGreaterDay) {
  const Tree tree(Year(2026,
                       "<month1><day20>w</day20></month1><month2><day28>w</day28></month2>"
                       "<month3><day1>w</day1><day10>r</day10></month3>"));
  const CalendarMarks marks = tree.Read();
  EXPECT_THAT(DatesBeyondWalk(marks),
              ElementsAre(CalendarDate{2026, 3, 1}, CalendarDate{2026, 3, 10}));
  EXPECT_EQ(tree.Rewritten(), Year(2026,
                                   "<month1><day20>w</day20></month1>"
                                   "<month2><day28>w</day28></month2>"));
}

TEST(CalendarTree, TheWalkReachesTheLastMarkOfTheSameDay) {
  const std::string year =
      Year(2026, "<month1><day20>w</day20></month1><month3><day20>w</day20></month3>");
  EXPECT_THAT(DatesBeyondWalk(Tree(year).Read()), IsEmpty());
  EXPECT_EQ(Tree(year).Rewritten(), year);
}

TEST(CalendarTree, AWalkFromThe31stMeetsEachMonthOnce) {
  const std::string year = Year(2026,
                                "<month1><day31>w</day31></month1>"
                                "<month2><day1>w</day1></month2>"
                                "<month3><day31>w</day31></month3>");
  EXPECT_EQ(Tree(year).Rewritten(), year);
}

TEST(CalendarTree, AWalkThatEndsEarlyAtTheTurnOfTheYearMakesNoNodeForTheLost) {
  const Tree tree(Year(2026, "<month12><day31>w</day31></month12>") +
                  Year(2027, "<month1><day30>w</day30></month1>"));
  EXPECT_THAT(DatesBeyondWalk(tree.Read()), ElementsAre(CalendarDate{2027, 1, 30}));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month12><day31>w</day31></month12>"));
}

TEST(CalendarTree, WithoutAMarkNothingIsBeyondTheWalk) {
  EXPECT_THAT(DatesBeyondWalk(CalendarMarks()), IsEmpty());
}

TEST(CalendarTree, ADecemberOfTheLastYearEndsTheWalk) {
  const std::string year = Year(32767, "<month12><day31>w</day31></month12>");
  EXPECT_EQ(Tree(year).Rewritten(), year);
}

TEST(CalendarTree, TheWholeSpanOfYearsIsWalked) {
  const Tree tree(Year(-32768, "<month1><day1>w</day1></month1>") +
                  Year(32767, "<month12><day31>w</day31></month12>"));
  WriteCalendar(tree.Read(), DayTypes(*tree.dayTypes), Calendar(*tree.calendar));
  EXPECT_EQ(std::distance(tree.calendar->ChildsBegin(), tree.calendar->ChildsEnd()), 65536);
}

TEST(CalendarTree, AMarkWithoutADayTypeOfItsNameIsLeftOut) {
  const Tree tree("");
  CalendarMarks marks;
  marks.SetBrush({0x0000FF, L"Gone"});
  EXPECT_TRUE(marks.Select(ToDateTime({2026, 1, 1})));
  WriteCalendar(marks, DayTypes(*tree.dayTypes), Calendar(*tree.calendar));
  EXPECT_EQ(Code(*tree.calendar), "<calendar>" + Year(2026, "") + "</calendar>");
}

TEST(CalendarTree, OfDayTypesWithOneNameTheFirstRowColoursAndTheFirstOfTheDocumentIsWritten) {
  const Tree tree(Year(2026, "<month1><day1>b</day1></month1>"),
                  "<dayTypes><day><id>a</id><name>Same</name><color>000001</color></day>"
                  "<day><id>b</id><name>Same</name><color>000002</color></day></dayTypes>");
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-1 Same 1"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day1>a</day1></month1>"));
}

TEST(CalendarTree, AnEmptyNameMarksUnlessItsColourIsWhite) {
  const char* year = "<month1><day1>e</day1></month1>";
  const Tree coloured(Year(2026, year),
                      "<dayTypes><day><id>e</id><name></name><color>1</color></day></dayTypes>");
  EXPECT_EQ(coloured.Rewritten(), Year(2026, year));
  const Tree white(Year(2026, year),
                   "<dayTypes><day><id>e</id><name></name><color>FFFFFF</color></day></dayTypes>");
  EXPECT_EQ(white.Rewritten(), "");
}

TEST(CalendarTree, UnmarkedDatesMeetNoDayTypeEvenOneWithoutAName) {
  const Tree tree(Year(2026, "<month1><day1>w</day1><day3>w</day3></month1>"),
                  "<dayTypes><day><id>e</id><name></name><color>1</color></day>"
                  "<day><id>w</id><name>Work</name><color>2</color></day></dayTypes>");
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day1>w</day1><day3>w</day3></month1>"));
}

TEST(CalendarTree, AWhiteDayTypeWithANameIsAnOrdinaryOne) {
  const char* month = "<month1><day1>w</day1></month1>";
  EXPECT_EQ(Tree(Year(2026, month),
                 "<dayTypes><day><id>w</id><name>White</name><color>ffffff</color></day>"
                 "</dayTypes>")
                .Rewritten(),
            Year(2026, month));
}

TEST(CalendarTree, AFirstMarkOnThe1stNeverLosesAnything) {
  for (int day = 1; day <= 28; ++day) {
    const std::string year =
        Year(2026, "<month1><day1>w</day1></month1><month3><day" + std::to_string(day) + ">r</day" +
                       std::to_string(day) + "></month3>");
    EXPECT_EQ(Tree(year).Rewritten(), year);
  }
}

TEST(CalendarTree, NamesThatDifferInCaseAreTwo) {
  const Tree tree(Year(2026, "<month1><day1>l</day1><day2>u</day2></month1>"),
                  "<dayTypes><day><id>u</id><name>WORK</name><color>000001</color></day>"
                  "<day><id>l</id><name>work</name><color>000002</color></day></dayTypes>");
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-1 work 2", "2026-1-2 WORK 1"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day1>l</day1><day2>u</day2></month1>"));
}

TEST(CalendarTree, AWhiteDayTypeWithoutANameErasesWhatAnEarlierYearNodeMarked) {
  const Tree tree(Year(2026, "<month1><day1>w</day1><day2>w</day2></month1>") +
                      Year(2026, "<month1><day1>e</day1></month1>"),
                  "<dayTypes><day><id>w</id><name>Work</name><color>1</color></day>"
                  "<day><id>e</id><name></name><color>FFFFFF</color></day></dayTypes>");
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-2 Work 1"));
}

TEST(CalendarTree, AnIdThatNoPathCanHoldFallsAway) {
  const Tree tree(Year(2026, "<month1><day1>a?b</day1></month1>"),
                  "<dayTypes><day><id>a?b</id><name>Work</name><color>1</color></day></dayTypes>");
  EXPECT_THAT(Listed(tree.Read()), IsEmpty());
}

TEST(CalendarTree, ANameWithAQuestionMarkIsLookedUpByWhatStandsBeforeIt) {
  const Tree tree(Year(2026, "<month1><day1>q</day1></month1>"),
                  "<dayTypes><day><id>q</id><name>a?b</name><color>1</color></day>"
                  "<day><id>a</id><name>a</name><color>2</color></day></dayTypes>");
  EXPECT_EQ(tree.Rewritten(), Year(2026, "<month1><day1>a</day1></month1>"));
}

TEST(CalendarTree, ANameWithAQuestionMarkThatLeadsNowhereFallsAway) {
  const Tree tree(Year(2026, "<month1><day1>q</day1></month1>"),
                  "<dayTypes><day><id>q</id><name>a?b</name><color>1</color></day></dayTypes>");
  EXPECT_THAT(Listed(tree.Read()), ElementsAre("2026-1-1 a?b 1"));
  EXPECT_EQ(tree.Rewritten(), Year(2026, ""));
}

}  // namespace
}  // namespace qv
