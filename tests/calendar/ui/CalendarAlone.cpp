// The calendar as a process of its own: prints "<result> <marked dates> <dates from the first to
// the last of them>" when it is left.
#include <QApplication>
#include <cstdio>

#include "calendar/CalendarTree.h"
#include "calendar/YearDates.h"
#include "calendar/ui/CDlgCalendar.h"
#include "discriminator/Fields.h"
#include "tests/support/FakeHost.h"
#include "tools/XmlDocument.h"

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const qv::InstalledFakeHost host;
  XmlDocument days;
  days.Parse("<dayTypes><day><id>w</id><name>work</name><color>0000ff</color></day></dayTypes>");
  qv::XmlNode calendar(L"calendar");
  CDlgCalendar dialog(nullptr, &calendar, days.Root(), nullptr);
  const int result = dialog.DoModal();

  const qv::DayTypes dayTypes(*days.Root());
  const auto rows = qv::SortedColouredTypes(days.Root(), qv::tag::Day);
  const qv::CalendarMarks marks = qv::ReadCalendar(qv::Calendar(calendar), dayTypes, rows);
  int marked = 0;
  marks.ForEach([&marked](const qv::CalendarMarks::Mark&) { ++marked; });
  const auto first = marks.First();
  const auto last = marks.Last();
  const int span = first && last ? qv::DaysFromTo(*first, *last) + 1 : 0;
  std::printf("%d %d %d\n", result, marked, span);
  return 0;
}
