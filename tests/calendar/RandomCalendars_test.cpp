#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <random>

#include "calendar/CalendarForm.h"
#include "tests/support/Parsed.h"
#include "tools/Format.h"

namespace qv {
namespace {

/// A calendar as plainly as it can be held: the names of dates, and a copy for each step back.
class Model {
 public:
  using Names = std::map<CalendarDate, std::wstring>;

  const Names& Now() const { return m_states[m_at]; }

  void Mark(CalendarDate date, const std::wstring& name) { Put(m_states[m_at], date, name); }

  void Stroke(const std::vector<CalendarDate>& dates, const std::wstring& name) {
    Names next = Now();
    for (const CalendarDate date : dates) {
      Put(next, date, name);
    }
    if (next != Now()) {
      m_states.resize(m_at + 1);
      m_states.push_back(next);
      ++m_at;
    }
  }

  bool Undo() { return m_at > 0 && (--m_at, true); }
  bool Redo() { return m_at + 1 < m_states.size() && (++m_at, true); }

 private:
  static void Put(Names& names, CalendarDate date, const std::wstring& name) {
    if (name.empty()) {
      names.erase(date);
    } else {
      names[date] = name;
    }
  }

  std::vector<Names> m_states{1};
  std::size_t m_at = 0;
};

class RandomCalendars : public testing::TestWithParam<unsigned> {
 protected:
  int Number(int first, int last) {
    return std::uniform_int_distribution<int>(first, last)(m_random);
  }

  CalendarDate Date() {
    const int month = Number(1, 12);
    const int year = Number(2024, 2027);
    return {year, month, Number(1, DaysOfMonth(ToDateTime({year, month, 1})))};
  }

  std::vector<CalendarDate> Dates() {
    std::vector<CalendarDate> dates(static_cast<std::size_t>(Number(0, 9)));
    for (CalendarDate& date : dates) {
      date = Date();
    }
    return dates;
  }

  std::optional<int> Row() {
    const int row = Number(-1, 2);
    return row < 0 ? std::nullopt : std::optional(row);
  }

  static std::wstring NameOf(std::optional<int> row) {
    static const std::wstring names[] = {L"a", L"b", L"c"};
    return row ? names[*row] : std::wstring();
  }

  static Model::Names NamesOf(const CalendarMarks& marks) {
    Model::Names names;
    marks.ForEach([&](const CalendarMarks::Mark& mark) {
      names[mark.date] = std::wstring(mark.brush.text.ToView());
    });
    return names;
  }

  std::mt19937 m_random{GetParam()};
};

/// The dates of a rule, by the standard's calendar.
std::vector<CalendarDate> DatesByTheStandard(int year, const FastSelection& rule) {
  using namespace std::chrono;
  std::vector<CalendarDate> dates;
  const sys_days first = std::chrono::year(year) / January / 1;
  const sys_days next = std::chrono::year(year + 1) / January / 1;
  for (sys_days at = first; at < next; at += days(1)) {
    const year_month_day date(at);
    const unsigned month = static_cast<unsigned>(date.month());
    const unsigned weekday = std::chrono::weekday(at).iso_encoding();
    if ((rule.months >> (month - 1) & 1U) != 0 && (rule.weekDays >> (weekday - 1) & 1U) != 0) {
      dates.push_back(
          {year, static_cast<int>(month), static_cast<int>(static_cast<unsigned>(date.day()))});
    }
  }
  return dates;
}

/// Whether there is a node for each year that a walk passes and for no other, and for no month
/// without a date.
bool HasTheNodesOfAWalk(const XmlNode& calendar, const Model::Names& written,
                        const Model::Names& before) {
  int next = before.empty() ? 0 : before.begin()->first.year;
  for (auto year = calendar.ChildsBegin(); year != calendar.ChildsEnd(); ++year, ++next) {
    if ((*year)->Value(L"year") != Format(L"%d", {next}).c_str()) {
      return false;
    }
    for (auto child = std::next((*year)->ChildsBegin()); child != (*year)->ChildsEnd(); ++child) {
      if ((*child)->ChildsBegin() == (*child)->ChildsEnd()) {
        return false;
      }
    }
  }
  return written.empty() || next > written.rbegin()->first.year;
}

/// The names that the years of a calendar hold, found by paths alone.
Model::Names NamesInTree(const XmlNode& calendar) {
  Model::Names names;
  for (int year = 2024; year <= 2027; ++year) {
    const XmlNode* yearNode = calendar.NodeV(L"year?year=%d?", year);
    for (int month = 1; yearNode && month <= 12; ++month) {
      const XmlNode* monthNode = yearNode->NodeV(L"month%d", month);
      for (int day = 1; monthNode && day <= 31; ++day) {
        const QVWideString id = monthNode->Value(Format(L"day%d", {day}).c_str());
        if (!id.Empty()) {
          names[{year, month, day}] = std::wstring(id.ToView()).substr(2);
        }
      }
    }
  }
  return names;
}

/// What a save keeps: the month of the last mark goes if the first one has the greater day.
Model::Names KeptBySave(const Model::Names& names) {
  Model::Names kept = names;
  const bool isCut = !names.empty() && names.begin()->first.day > names.rbegin()->first.day;
  if (isCut) {
    const CalendarDate last = names.rbegin()->first;
    std::erase_if(kept, [&](const auto& mark) {
      return mark.first.year == last.year && mark.first.month == last.month;
    });
  }
  return kept;
}

TEST_P(RandomCalendars, AreWhatAPlainModelSays) {
  const auto dayTypes = Parsed(
      "<dayTypes><day><id>id</id><name>z</name></day><day><id>idc</id><name>c</name></day>"
      "<day><id>idb</id><name>b</name></day><day><id>ida</id><name>a</name></day></dayTypes>");
  const auto calendar = Parsed("<calendar/>");
  for (int session = 0; session < 5; ++session) {
    CalendarForm form{Calendar(*calendar), DayTypes(*dayTypes)};
    Model model;
    for (const auto& [date, name] : NamesInTree(*calendar)) {
      model.Mark(date, name);
    }
    ASSERT_EQ(NamesOf(form.Marks()), model.Now());
    std::optional<int> row;
    for (int step = 0; step < 60; ++step) {
      switch (Number(0, 5)) {
        case 0:
          row = Row();
          form.SelectRow(row);
          break;
        case 1:
        case 2: {
          const auto dates = Dates();
          form.Marks().Apply(dates);
          model.Stroke(dates, NameOf(row));
          break;
        }
        case 3: {
          const int year = Number(2024, 2027);
          const int dayType = Number(0, 2);
          const FastSelection rule{static_cast<std::uint32_t>(Number(0, 127)),
                                   static_cast<std::uint32_t>(Number(0, 4095))};
          form.OnFastSelection(year, [&] { return FastSelectionChoice{dayType, rule}; });
          model.Stroke(DatesByTheStandard(year, rule), NameOf(dayType));
          break;
        }
        case 4:
          EXPECT_EQ(form.Marks().Undo(), model.Undo());
          break;
        default:
          EXPECT_EQ(form.Marks().Redo(), model.Redo());
      }
      ASSERT_EQ(NamesOf(form.Marks()), model.Now());
    }
    const Model::Names kept = KeptBySave(model.Now());
    ASSERT_TRUE(form.Save().IsDone());
    ASSERT_EQ(NamesInTree(*calendar), kept);
    ASSERT_TRUE(HasTheNodesOfAWalk(*calendar, kept, model.Now()));
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCalendars, testing::Range(0U, 40U));

}  // namespace
}  // namespace qv
