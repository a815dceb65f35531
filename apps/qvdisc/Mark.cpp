#include <algorithm>
#include <set>

#include "apps/qvdisc/DateRanges.h"
#include "apps/qvdisc/EditDiscriminator.h"
#include "apps/qvdisc/TypeVerb.h"
#include "apps/qvdisc/TypeWords.h"
#include "calendar/CalendarForm.h"
#include "calendar/CalendarTree.h"

namespace qvdisc {
namespace {

using qv::CalendarDate;
using qv::CalendarForm;
using Dates = std::set<CalendarDate>;

Dates DatesIn(qv::Calendar calendar) {
  Dates dates;
  qv::ForEachDate(calendar.Node(),
                  [&](CalendarDate date, const QVWideString& /*id*/) { dates.insert(date); });
  return dates;
}

/// The calendar of a discriminator while the call works on it.
class CalledCalendar {
 public:
  CalledCalendar(qv::Calendar calendar, qv::DayTypes dayTypes, const Edited& edited)
      : m_calendar(calendar),
        m_dayTypes(dayTypes),
        m_edited(edited),
        m_form(calendar, dayTypes),
        m_wanted(DatesIn(calendar)) {}

  /// Whether the dialog is confirmed; if so, `marked` tells what that did.
  bool Use(MarkedDates& marked) {
    if (!ChooseBrush()) {
      return false;
    }
    Want();
    m_form.Marks().Apply(Call().dates);
    const auto beyondWalk = qv::DatesBeyondWalk(m_form.Marks());
    const bool isSaved = m_form.Save().IsDone();
    marked = MarkedIn(DatesIn(m_calendar), Dates(beyondWalk.begin(), beyondWalk.end()));
    return isSaved;
  }

 private:
  const MarkCall& Call() const { return m_edited.editing.call.mark; }

  bool ChooseBrush() {
    if (!Call().dayType) {
      m_form.SelectRow(std::nullopt);
      return true;
    }
    const auto row =
        PlaceOf(m_form.Rows(), TypeKind::Day, *Call().dayType, FoundBy::NameOrId, m_edited.outcome);
    m_form.SelectRow(row);
    return row && CanMark(m_form.Rows()[static_cast<std::size_t>(*row)]);
  }

  /// Dates are marked with a name, which has to lead back to the day type when they are written.
  bool CanMark(const qv::ColouredType& type) {
    const bool isFound = m_dayTypes.Node().NodeV(L"/day?name=%s?", type.name) == type.node;
    const bool canMark = isFound && !m_form.Marks().CurrentBrush().IsEraser();
    if (!canMark) {
      Fail(m_edited.outcome, TypeWord::CannotMark, {type.name});
    }
    return canMark;
  }

  void Want() {
    for (const CalendarDate date : Call().dates) {
      if (Call().dayType) {
        m_wanted.insert(date);
      } else {
        m_wanted.erase(date);
      }
    }
  }

  /// What was done, of which `written` are the dates that the calendar has now.
  MarkedDates MarkedIn(const Dates& written, const Dates& beyondWalk) {
    MarkedDates marked;
    if (Call().dayType) {
      marked.dayType = m_form.Marks().CurrentBrush().text.ToView();
    }
    marked.dates = static_cast<int>(std::count_if(
        Call().dates.begin(), Call().dates.end(),
        [&](CalendarDate date) { return written.contains(date) == Call().dayType.has_value(); }));
    for (const CalendarDate date : m_wanted) {
      if (!written.contains(date)) {
        (beyondWalk.contains(date) ? marked.beyondWalk : marked.withoutType).push_back(date);
      }
    }
    return marked;
  }

  qv::Calendar m_calendar;
  qv::DayTypes m_dayTypes;
  const Edited& m_edited;
  CalendarForm m_form;
  Dates m_wanted;  ///< which have a day type, or are to have one
};

bool RunCalendar(const Edited& edited, qv::DiscriminatorForm& form, MarkedDates& marked) {
  bool isConfirmed = false;
  form.OnCalendar([&](qv::Calendar calendar, qv::DayTypes dayTypes, qv::HourTypes /*hourTypes*/) {
    CalledCalendar called(calendar, dayTypes, edited);
    isConfirmed = called.Use(marked);
    return qv::EditorEnd{isConfirmed, isConfirmed};
  });
  return isConfirmed;
}

}  // namespace

void Mark(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
          Outcome& outcome) {
  const Edited edited{list, rows, editing, outcome};
  MarkedDates marked;
  const auto use = [&](qv::DiscriminatorForm& form) { return RunCalendar(edited, form, marked); };
  if (!ModifyParts(edited, qv::DiscriminatorType::Slots, use)) {
    return;
  }
  if (!marked.beyondWalk.empty()) {
    outcome.Fail(Word::LeftOutBeyondWalk,
                 {RangesAsText(marked.beyondWalk, outcome.language).c_str()});
  }
  if (!marked.withoutType.empty()) {
    outcome.remarks.push_back(Words(Word::LeftOutWithoutType, outcome.language,
                                    {RangesAsText(marked.withoutType, outcome.language).c_str()}));
  }
  outcome.marked = std::move(marked);
}

}  // namespace qvdisc
