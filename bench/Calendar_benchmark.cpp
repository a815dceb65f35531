// Fifty years of dates that all have a day type: reading the marks from the tree, and writing them
// back by the walk. The peers do the same with a plain map of dates, and read and write the XML of
// that tree.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "calendar/CalendarTree.h"
#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr int firstYear = 2000;
constexpr int lastYear = 2049;

/// A discriminator with five day types, of which each date of the years has one.
class MarkedYears {
 public:
  MarkedYears() {
    m_document.Create(tag::Main);
    XmlNode& root = *m_document.Root();
    XmlNode& dayTypes = *root.NewChild(tag::DayTypes, nullptr);
    for (int type = 0; type < types; ++type) {
      XmlNode& day = *dayTypes.NewChild(tag::Day, nullptr);
      day.SetValue(tag::Id, Id(type).c_str());
      day.SetValue(tag::Name, Format(L"Day type %d", {type}).c_str());
      day.SetValue(tag::Color, Format(L"%06X", {type * 1000}).c_str());
    }
    Fill(*root.NewChild(tag::Calendar, nullptr));
  }

  Calendar CalendarPart() { return Calendar(*m_document.Root()->Node(tag::Calendar)); }
  DayTypes DayTypesPart() { return DayTypes(*m_document.Root()->Node(tag::DayTypes)); }
  std::vector<ColouredType> Rows() { return SortedColouredTypes(&DayTypesPart().Node(), tag::Day); }
  const XmlDocument& Document() const { return m_document; }

 private:
  static constexpr int types = 5;

  static std::wstring Id(int type) {
    return Format(L"0f8fad5b-d9cb-469f-a165-70867728950%d", {type});
  }

  static void Fill(XmlNode& calendar) {
    int date = 0;
    for (int number = firstYear; number <= lastYear; ++number) {
      XmlNode& year = *calendar.NewChild(tag::Year, nullptr);
      year.SetValue(tag::Year, Format(L"%d", {number}).c_str());
      for (int month = 1; month <= 12; ++month) {
        XmlNode& node = *year.NewChild(Format(L"month%d", {month}).c_str(), nullptr);
        const int days = DaysOfMonth(ToDateTime({number, month, 1}));
        for (int day = 1; day <= days; ++day) {
          node.NewChild(Format(L"day%d", {day}).c_str(), nullptr)
              ->SetValue(QVWideString(Id(date++ % types).c_str()));
        }
      }
    }
  }

  XmlDocument m_document;
};

void OfMarks(benchmark::State& state) {
  MarkedYears years;
  const auto rows = years.Rows();
  for (auto _ : state) {
    const CalendarMarks marks = ReadCalendar(years.CalendarPart(), years.DayTypesPart(), rows);
    WriteCalendar(marks, years.DayTypesPart(), years.CalendarPart());
  }
}

/// What anybody would write: a look-up by path for each date, and a map of ids.
void OfAPlainMap(benchmark::State& state) {
  MarkedYears years;
  for (auto _ : state) {
    XmlNode& calendar = years.CalendarPart().Node();
    std::map<CalendarDate, QVWideString> ids;
    for (int number = firstYear; number <= lastYear; ++number) {
      const XmlNode& year = *calendar.NodeV(L"year?year=%d?", number);
      for (int month = 1; month <= 12; ++month) {
        const XmlNode& node = *year.NodeV(L"month%d", month);
        const int days = DaysOfMonth(ToDateTime({number, month, 1}));
        for (int day = 1; day <= days; ++day) {
          ids[{number, month, day}] = node.NodeV(L"day%d", day)->Value();
        }
      }
    }
    calendar.Reset();
    XmlNode* year = nullptr;
    XmlNode* month = nullptr;
    CalendarDate last;
    for (const auto& [date, id] : ids) {
      if (!year || date.year != last.year) {
        year = calendar.NewChild(tag::Year, nullptr);
        year->SetValue(tag::Year, Format(L"%d", {date.year}).c_str());
      }
      if (!month || date.month != last.month || date.year != last.year) {
        month = year->NewChild(Format(L"month%d", {date.month}).c_str(), nullptr);
      }
      month->NewChild(Format(L"day%d", {date.day}).c_str(), nullptr)->SetValue(id);
      last = date;
    }
  }
}

void OfTheXmlOfTheTree(benchmark::State& state) {
  const MarkedYears years;
  QVNarrowString code;
  if (!years.Document().CreateXmlCode(code, true)) {
    state.SkipWithError("no XML");
  }
  const std::string text(code.ToView());
  for (auto _ : state) {
    XmlDocument document;
    if (!document.Parse(text.c_str()) || !document.CreateXmlCode(code, true)) {
      state.SkipWithError("no XML");
    }
  }
}

/// The most empty years that a walk can pass.
void OfEmptyYears(benchmark::State& state) {
  MarkedYears years;
  CalendarMarks marks;
  marks.SetBrush({0, L"Day type 0"});
  marks.Select(ToDateTime({-32768, 1, 1}));
  marks.Select(ToDateTime({32767, 12, 31}));
  for (auto _ : state) {
    WriteCalendar(marks, years.DayTypesPart(), years.CalendarPart());
  }
}

BENCHMARK(OfMarks)->Unit(benchmark::kMillisecond);
BENCHMARK(OfAPlainMap)->Unit(benchmark::kMillisecond);
BENCHMARK(OfTheXmlOfTheTree)->Unit(benchmark::kMillisecond);
BENCHMARK(OfEmptyYears)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qv
