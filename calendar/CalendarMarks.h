#pragma once

#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "calendar/CalendarDate.h"
#include "tools/Colour.h"
#include "tools/QVBasicString.h"

namespace qv {

/// What dates are marked with: a day type, by its colour and name, or nothing at all.
struct Brush {
  Colour colour = 0xFFFFFF;
  QVWideString text{};

  /// White without a text takes marks away. A day type that is white and has no name is the same
  /// brush, and can't mark.
  bool IsEraser() const { return colour == 0xFFFFFF && text.Empty(); }
  friend bool operator==(const Brush&, const Brush&) = default;
};

/// A date and what it is to be marked with; the eraser takes its mark away.
struct DateBrush {
  CalendarDate date;
  Brush brush;

  friend bool operator==(const DateBrush&, const DateBrush&) = default;
};

/// The marks of dates: each date has one brush, or none. Strokes can be undone and done again,
/// which the history keeps as the differences that they made.
class CalendarMarks {
 public:
  /// The brush that marks from now on; the eraser at first.
  void SetBrush(const Brush& brush);
  const Brush& CurrentBrush() const { return m_brush; }

  /// Marks a date with the brush, without a step of the history. False for a date that isn't
  /// `Valid`, which stays without a mark.
  bool Select(const QVDateTime& date);

  /// Marks dates with the brush, as one step that can be undone; dates that aren't `Valid` are
  /// passed over. Whether any date changed; otherwise there is no step.
  bool Apply(const std::vector<CalendarDate>& dates);

  /// Marks dates with a brush each, as one step, in the same way; the current brush stays.
  bool ApplyEach(const std::vector<DateBrush>& dates);

  /// Takes the last step back; false if there is none. A new step forgets those taken back.
  bool Undo();
  /// Does the step that was taken back last again; false if there is none.
  bool Redo();
  bool CanUndo() const { return !m_done.empty(); }
  bool CanRedo() const { return !m_undone.empty(); }
  /// The dates that `Undo` and `Redo` would change now.
  std::vector<CalendarDate> DatesToUndo() const;
  std::vector<CalendarDate> DatesToRedo() const;

  /// What a date is marked with, or null. Holds as long as these marks live.
  const Brush* BrushOf(CalendarDate date) const;

  /// The earliest and the latest date with a mark.
  std::optional<CalendarDate> First() const;
  std::optional<CalendarDate> Last() const;

  /// A date with a mark and the brush that made it.
  struct Mark {
    CalendarDate date;
    const Brush& brush;
  };

  /// Calls `visit` for each mark from the earliest date on, with a `Mark`.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const auto& [date, brush] : m_marks) {
      visit(Mark{date, m_brushes[brush]});
    }
  }

 private:
  using BrushIndex = std::size_t;

  /// What a step did to one date; nothing stands for no mark.
  struct Change {
    CalendarDate date;
    std::optional<BrushIndex> before;
    std::optional<BrushIndex> after;
  };
  using Step = std::vector<Change>;

  std::optional<BrushIndex> At(CalendarDate date) const;
  /// Nothing for the eraser.
  std::optional<BrushIndex> IndexOf(const Brush& brush);
  /// Marks a date and adds what it did, if anything, to the step.
  void Put(CalendarDate date, std::optional<BrushIndex> brush, Step& step);
  /// Whether the step did anything, which makes it the last one.
  bool Finish(Step step);
  static std::vector<CalendarDate> DatesOf(const Step& step);
  void Put(CalendarDate date, std::optional<BrushIndex> brush);

  Brush m_brush;
  std::optional<BrushIndex> m_index;  // of the brush, or nothing for the eraser
  std::deque<Brush> m_brushes;        // each once; their addresses hold
  std::map<CalendarDate, BrushIndex> m_marks;
  std::vector<Step> m_done;
  std::vector<Step> m_undone;
};

}  // namespace qv
