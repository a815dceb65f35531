#pragma once

#include <QCheckBox>
#include <memory>
#include <vector>

#include "calendar/ui/CDlgCalendar.h"
#include "calendar/ui/QVCalendar.h"
#include "calendar/ui/YearView.h"
#include "tests/support/DialogTest.h"
#include "tests/support/Parsed.h"

namespace qv {

/// The calendar dialog over two day types, and one marked date in 2026.
class CalendarDialog : public DialogTest {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgCalendar dialog(nullptr, calendar.get(), days.get(), hours.get());
    return Play(dialog, script);
  }

  static QVCalendar* Control() { return TopControl<QVCalendar>(calendarView); }

  static void GoTo(int year) { Control()->SetYear(year); }

  /// Clicks a date of the year on show.
  static void ClickDate(int month, int day) {
    auto* view = Control()->findChild<YearView*>();
    const YearGeometry geometry({view->width(), view->height()}, Control()->GetYear(), {1});
    const Rect cell = geometry.CellOf({Control()->GetYear(), month, day});
    QTest::mouseClick(view, Qt::LeftButton, {},
                      {cell.left + cell.Width() / 2, cell.top + cell.Height() / 2});
  }

  /// Lets the fast selection that comes next tick these boxes, choose a day type, and end.
  static void RuleNext(std::vector<int> checks, int dayType, int end = IDOK) {
    WhenNextWindow([=] {
      for (const int check : checks) {
        TopControl<QCheckBox>(check)->click();
      }
      Combo(fastDayType)->setCurrentIndex(dayType);
      Click(end);
    });
  }

  std::wstring IdOf(int year, int month, int day) const {
    const XmlNode* yearNode = calendar->NodeV(L"year?year=%d?", year);
    const XmlNode* monthNode = yearNode ? yearNode->NodeV(L"month%d", month) : nullptr;
    const XmlNode* dayNode = monthNode ? monthNode->NodeV(L"day%d", day) : nullptr;
    return dayNode ? std::wstring(dayNode->Value().ToView()) : L"-";
  }

  std::unique_ptr<XmlNode> calendar =
      Parsed("<calendar><year><year>2026</year><month6><day1>w</day1></month6></year></calendar>");
  std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>w</id><name>work</name><color>0000ff</color></day>"
      "<day><id>r</id><name>Rest</name><color>00FF00</color></day></dayTypes>");
  std::unique_ptr<XmlNode> hours = Parsed("<hourTypes/>");
};

}  // namespace qv
