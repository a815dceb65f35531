// Random gestures, compared after each with a calendar that is kept as plainly as possible.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <random>

#include "calendar/Weeks.h"
#include "calendar/YearDates.h"
#include "calendar/YearGestures.h"

namespace qv {
namespace {

const std::array<Brush, 4> brushes = {Brush{}, Brush{0x0000FF, L"a"}, Brush{0x00FF00, L"b"},
                                      Brush{0xFFFFFF, L"c"}};

/// Names of marked dates, with a copy of all for each step.
class Model {
 public:
  using Names = std::map<CalendarDate, std::wstring>;

  explicit Model(const Names& first) : m_states{first} {}

  const Names& Now() const { return m_states[m_at]; }

  std::wstring At(CalendarDate date) const {
    const auto found = Now().find(date);
    return found == Now().end() ? std::wstring() : found->second;
  }

  /// Gives each date a name that may depend on what was there before; none takes it away.
  void Step(const std::vector<CalendarDate>& dates,
            const std::function<std::wstring(CalendarDate)>& nameOf) {
    Names next = Now();
    for (const CalendarDate date : dates) {
      next.erase(date);
      if (const std::wstring name = nameOf(date); !name.empty()) {
        next[date] = name;
      }
    }
    if (next != Now()) {
      m_states.resize(m_at + 1);
      m_states.push_back(next);
      ++m_at;
    }
  }

  void Undo() { m_at -= m_at > 0 ? 1 : 0; }
  void Redo() { m_at += m_at + 1 < m_states.size() ? 1 : 0; }

 private:
  std::vector<Names> m_states;
  std::size_t m_at = 0;
};

class RandomGestures : public testing::TestWithParam<unsigned> {
 protected:
  RandomGestures() {
    // What a file brought, which no undo takes away.
    for (int i = 0; i < 40; ++i) {
      marks.SetBrush(brushes[Number(1, 3)]);
      const CalendarDate date = Date();
      EXPECT_TRUE(marks.Select(ToDateTime(date)));
    }
    first = NamesOf();
    model = Model(first);
    ChooseBrush();
  }

  std::size_t Number(std::size_t from, std::size_t to) {
    return std::uniform_int_distribution<std::size_t>(from, to)(m_random);
  }

  CalendarDate Date() { return DaysAfter({2024, 1, 1}, static_cast<int>(Number(0, 4 * 365))); }

  void ChooseBrush() {
    const Brush& brush = brushes[Number(0, 3)];
    marks.SetBrush(brush);
    name = std::wstring(brush.text.ToView());
  }

  Model::Names NamesOf() const {
    Model::Names names;
    marks.ForEach([&](const CalendarMarks::Mark& mark) {
      names[mark.date] = std::wstring(mark.brush.text.ToView());
    });
    return names;
  }

  void Expect(const std::vector<CalendarDate>& dates) {
    model.Step(dates, [this](CalendarDate) { return name; });
  }

  /// A press, some moves, and a release or an Escape.
  void Stroke() {
    const CalendarDate from = Number(0, 3) > 0 ? Date() : gestures.Cursor().Date();
    const bool extends = Number(0, 4) == 0;
    const CalendarDate start = extends ? gestures.Cursor().Date() : from;
    gestures.Press(from, extends);
    CalendarDate to = from;
    bool asBlock = false;
    for (std::size_t moves = Number(0, 3); moves > 0; --moves) {
      to = DaysAfter(from, static_cast<int>(Number(0, 80)) - 40);
      asBlock = Number(0, 2) == 0;
      gestures.DragTo(to, asBlock);
    }
    if (Number(0, 3) == 0) {
      gestures.Cancel();
    } else {
      gestures.Release();
      Expect(asBlock ? BlockBetween(start, to) : DatesBetween(start, to));
    }
  }

  void Keys() {
    for (std::size_t keys = Number(0, 4); keys > 0; --keys) {
      const auto key = static_cast<CursorKey>(Number(0, 7));
      gestures.Cursor().Move(key, Number(0, 5) == 0, Number(0, 1) == 0);
    }
    const auto selected = gestures.Cursor().Selected();
    if (Number(0, 2) > 0) {
      gestures.MarkSelected();
      Expect(selected);
    } else {
      gestures.EraseSelected();
      model.Step(selected, [](CalendarDate) { return std::wstring(); });
    }
  }

  void CopyWeek() {
    gestures.Cursor().GoTo(Date());
    gestures.CopyWeek();
    std::array<std::wstring, 7> names;
    for (const CalendarDate date : DatesOfWeek(gestures.Cursor().Date())) {
      names.at(static_cast<std::size_t>(WeekdayOf(date))) = model.At(date);
    }
    gestures.Cursor().GoTo(Date());
    gestures.PasteWeek();
    model.Step(DatesOfWeek(gestures.Cursor().Date()), [&](CalendarDate date) {
      return names.at(static_cast<std::size_t>(WeekdayOf(date)));
    });
  }

  void CopyMonth() {
    gestures.Cursor().GoTo(Date());
    gestures.CopyMonth();
    std::map<int, std::wstring> names;
    const CalendarDate from = gestures.Cursor().Date();
    for (const CalendarDate date : DatesOfMonth(from.year, from.month)) {
      names[date.day] = model.At(date);
    }
    gestures.Cursor().GoTo(Date());
    gestures.PasteMonth();
    const CalendarDate to = gestures.Cursor().Date();
    model.Step(DatesOfMonth(to.year, to.month), [&](CalendarDate date) {
      return names.contains(date.day) ? names[date.day] : model.At(date);
    });
  }

  void RepeatYear() {
    const bool byDate = Number(0, 1) == 0;
    gestures.Cursor().GoTo(Date());
    gestures.RepeatYear(byDate ? RepeatBy::Date : RepeatBy::Weekday);
    const int year = gestures.Cursor().Date().year;
    const Model before = model;
    model.Step(DatesOfYear(year + 1), [&](CalendarDate date) {
      if (byDate) {
        const CalendarDate source{year, date.month, date.day};
        return before.At(ToDateTime(source).Valid() ? source : date);
      }
      const CalendarDate source = DaysAfter(date, -364);
      return before.At(source.year == year ? source : DaysAfter(date, -371));
    });
  }

  void AnyGesture() {
    switch (Number(0, 9)) {
      case 0:
        return ChooseBrush();
      case 1:
        return Keys();
      case 2:
        return CopyWeek();
      case 3:
        return CopyMonth();
      case 4:
        return RepeatYear();
      case 5:
      case 6:
        marks.Undo();
        return model.Undo();
      case 7:
        marks.Redo();
        return model.Redo();
      default:
        return Stroke();
    }
  }

  std::mt19937 m_random{GetParam()};
  CalendarMarks marks;
  YearGestures gestures{marks, {2025, 6, 15}};
  Model model{{}};
  Model::Names first;
  std::wstring name;
};

TEST_P(RandomGestures, DoWhatAPlainCalendarDoes) {
  for (int i = 0; i < 150; ++i) {
    AnyGesture();
    ASSERT_EQ(NamesOf(), model.Now()) << "after gesture " << i;
  }
}

TEST_P(RandomGestures, AreAllTakenBackByUndoAndDoneAgainByRedo) {
  for (int i = 0; i < 150; ++i) {
    AnyGesture();
  }
  while (marks.Redo()) {
  }
  const Model::Names last = NamesOf();
  while (marks.Undo()) {
  }
  EXPECT_EQ(NamesOf(), first);
  while (marks.Redo()) {
  }
  EXPECT_EQ(NamesOf(), last);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGestures, testing::Range(0U, 40U));

}  // namespace
}  // namespace qv
