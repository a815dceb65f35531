#include "calendar/ui/YearMenu.h"

#include <QMenu>
#include <functional>

#include "calendar/ui/YearView.h"
#include "calendar/ui/YearWords.h"

namespace qv {
namespace {

/// A menu as it is made, whose lines without a text are left out.
class MenuMaker {
 public:
  explicit MenuMaker(QMenu& menu) : m_menu(menu) {}

  void Add(Text text, bool isEnabled, const std::function<void()>& verb,
           const QKeySequence& key = {}) {
    const QString caption = YearCaption(text);
    if (caption.isEmpty()) {
      return;
    }
    const QString shown = key.isEmpty() ? QString() : '\t' + key.toString(QKeySequence::NativeText);
    QAction* action = m_menu.addAction(caption + shown);
    action->setEnabled(isEnabled);
    m_hasVerbs = true;
    QObject::connect(action, &QAction::triggered, &m_menu, verb);
  }

  void AddLine() { m_menu.addSeparator(); }
  bool HasVerbs() const { return m_hasVerbs; }

 private:
  QMenu& m_menu;
  bool m_hasVerbs = false;
};

void AddHistory(MenuMaker& menu, YearView& view) {
  menu.Add(
      Text::YearUndo, view.Marks().CanUndo(), [&view] { view.Undo(); }, Qt::CTRL | Qt::Key_Z);
  menu.Add(
      Text::YearRedo, view.Marks().CanRedo(), [&view] { view.Redo(); }, Qt::CTRL | Qt::Key_Y);
}

void AddCopies(MenuMaker& menu, YearView& view) {
  const CopiedMarks& copied = view.Gestures().Copied();
  const auto copies = [&view](void (YearGestures::*copy)()) {
    return [&view, copy] {
      view.Do([copy](YearGestures& gestures) {
        (gestures.*copy)();
        return false;
      });
    };
  };
  const auto pastes = [&view](bool (YearGestures::*paste)()) {
    return [&view, paste] {
      view.Do([paste](YearGestures& gestures) { return (gestures.*paste)(); });
    };
  };
  menu.Add(Text::CopyWeek, true, copies(&YearGestures::CopyWeek));
  menu.Add(Text::PasteWeek, copied.HasWeek(), pastes(&YearGestures::PasteWeek));
  menu.Add(Text::CopyMonth, true, copies(&YearGestures::CopyMonth));
  menu.Add(Text::PasteMonth, copied.HasMonth(), pastes(&YearGestures::PasteMonth));
}

void AddRepeats(MenuMaker& menu, YearView& view) {
  const auto repeats = [&view](RepeatBy by) {
    return
        [&view, by] { view.Do([by](YearGestures& gestures) { return gestures.RepeatYear(by); }); };
  };
  const bool hasNext = view.Gestures().Cursor().CanReach(view.Year() + 1);
  menu.Add(Text::RepeatByWeekday, hasNext, repeats(RepeatBy::Weekday));
  menu.Add(Text::RepeatByDate, hasNext, repeats(RepeatBy::Date));
}

}  // namespace

void ShowYearMenu(YearView& view, const QPoint& globalPlace) {
  auto* menu = new QMenu(&view);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  MenuMaker maker(*menu);
  AddHistory(maker, view);
  maker.AddLine();
  AddCopies(maker, view);
  maker.AddLine();
  AddRepeats(maker, view);
  if (maker.HasVerbs()) {
    menu->popup(globalPlace);
  } else {
    delete menu;
  }
}

}  // namespace qv
