// The dial and the grid show what their editors hold after each verb and whenever they are damaged.
#include <QEvent>

#include "tests/timestructure/ui/SlotEditorFixture.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"

namespace qv {
namespace {

const QColor orange(0xFF, 0xCC, 0x80);  // of the day "work", and of the slot editor's
const QColor green(Qt::green);          // of the day "feast"
const QColor red(Qt::red);              // of "peak"
const QColor blue(Qt::blue);            // of "valley"

/// Counts the paints of a widget.
class Paints : public QObject {
 public:
  explicit Paints(QWidget* widget) { widget->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject* widget, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return QObject::eventFilter(widget, event);
  }
};

class DialOfDayType : public DayTypesFixture {
 protected:
  void Run(XmlNode& day, const std::function<void()>& script) {
    CDlgAddModifyDayType editor(nullptr, &day, days.get(), hours.get());
    Play(editor, script);
  }

  static void SlotNext(const QString& from, const QString& to) {
    WhenNextWindow([=] {
      Type(fromHours, from);
      Type(toHours, to);
      Click(IDOK);
    });
  }

  /// The colour of a dial at nine in the morning. It paints the dial alone.
  static QColor AtNine(QWidget* dial) {
    const QImage picture = dial->grab().toImage();
    return picture.pixelColor(picture.width() / 8, picture.height() * 9 / 20);
  }
};

TEST_F(DialOfDayType, FollowsEachVerb) {
  Run(Day(L"feast"), [] {
    QWidget* dial = TopControl(dayDial);
    EXPECT_EQ(AtNine(dial), green);
    SlotNext("6", "12");
    Click(addButton);
    EXPECT_EQ(AtNine(dial), red);
    ClickRow(typeList, 0);
    SlotNext("12", "18");
    Click(modifyButton);
    EXPECT_EQ(AtNine(dial), green);
    SlotNext("6", "12");
    Click(addButton);
    ClickRow(typeList, 1);
    Click(removeButton);
    EXPECT_EQ(AtNine(dial), green);
    Click(IDCANCEL);
  });
}

TEST_F(DialOfDayType, IsPaintedAnewWhenASlotIsRemoved) {
  Run(Day(L"work"), [] {
    ClickRow(typeList, 0);
    Settle();
    const Paints paints(TopControl(dayDial));
    Press(typeList, Qt::Key_Delete);
    Settle();
    EXPECT_GT(paints.count, 0);
    Click(IDCANCEL);
  });
}

TEST_F(DialOfDayType, ShowsTheDocumentWhenItIsDamagedBelowAnotherEditor) {
  Run(Day(L"work"), [&] {
    QWidget* editor = TopWindow();
    QWidget* dial = TopControl(dayDial);
    WhenNextWindow([&] {
      Day(L"work").Node(L"slot")->SetValue(L"to", L"06:00");
      EXPECT_EQ(AtNine(dial), red);
      editor->update();
      Settle();
      EXPECT_EQ(AtNine(dial), orange);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDCANCEL);
  });
}

class GridOfSlot : public SlotEditor {};

TEST_F(GridOfSlot, FollowsEachField) {
  SelectIn("00:00", [] {
    EXPECT_EQ(ColourAt(At(2, 0)), orange);
    Type(toHours, "4");
    EXPECT_EQ(ColourAt(At(2, 0)), red);
    EXPECT_EQ(ColourAt(At(4, 0)), orange);
    Type(toMinutes, "30");
    EXPECT_EQ(ColourAt(At(4, 0)), red);
    ClickArrow(fromHoursSpin, Qt::UpArrow);
    EXPECT_EQ(ColourAt(At(0, 0)), orange);
    Press(toHours, Qt::Key_Down);
    EXPECT_EQ(ColourAt(At(4, 0)), orange);
  });
}

TEST_F(GridOfSlot, FollowsTheHourType) {
  SelectIn("04:00", [] {
    Combo(slotTypeCombo)->setFocus();
    Press(slotTypeCombo, Qt::Key_Down);
    EXPECT_EQ(ColourAt(At(2, 0)), blue);
  });
}

TEST_F(GridOfSlot, FollowsAFirstHourType) {
  hours->Reset();
  SelectIn("04:00", [] {
    EXPECT_EQ(ColourAt(At(2, 0)), orange);
    WhenNextWindow([] {
      Type(hourName, "white");
      Click(IDOK);
    });
    Click(addButton);
    EXPECT_EQ(ColourAt(At(2, 0)), QColor(Qt::white));
  });
}

TEST_F(GridOfSlot, ShowsTheSlotWhenItIsDamagedBelowAnotherEditor) {
  SelectIn("04:00", [] {
    QWidget* editor = TopWindow();
    const QPoint cell = Cell(At(2, 0));
    WhenNextWindow([&] {
      editor->update();
      Settle();
      EXPECT_EQ(editor->grab().toImage().pixelColor(cell), red);
      Click(IDCANCEL);
    });
    Click(addButton);
  });
}

TEST_F(GridOfSlot, IsSelectedInByTheLeftButtonAlone) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    SelectIn("04:00", [=] {
      QTest::mousePress(TopWindow(), button, {}, Cell(At(10, 0)));
      MoveTo(Cell(At(12, 0)), button);
      QTest::mouseRelease(TopWindow(), button, {}, Cell(At(12, 0)));
      EXPECT_EQ(Shown(), "0:0-4:0");
    });
    EXPECT_FALSE(modified);
  }
}

struct SpinField {
  int edit;
  int spin;
  const char* higher;
  const char* lower;
};

TEST_F(SlotEditor, EachSpinStepsUpAndDownFromTheMiddleOfItsRange) {
  constexpr SpinField fields[] = {
      {fromHours, fromHoursSpin, "11:20-15:40", "9:20-15:40"},
      {fromMinutes, fromMinutesSpin, "10:21-15:40", "10:19-15:40"},
      {toHours, toHoursSpin, "10:20-16:40", "10:20-14:40"},
      {toMinutes, toMinutesSpin, "10:20-15:41", "10:20-15:39"},
  };
  for (const SpinField& field : fields) {
    Run("p", "10:20", "15:40", [&] {
      ClickArrow(field.spin, Qt::UpArrow);
      EXPECT_EQ(Shown(), field.higher);
      ClickArrow(field.spin, Qt::DownArrow);
      ClickArrow(field.spin, Qt::DownArrow);
      EXPECT_EQ(Shown(), field.lower);
      Press(field.edit, Qt::Key_Up);
      Press(field.edit, Qt::Key_Up);
      EXPECT_EQ(Shown(), field.higher);
      Press(field.edit, Qt::Key_Down);
      Press(field.edit, Qt::Key_Down);
      EXPECT_EQ(Shown(), field.lower);
      Click(IDCANCEL);
    });
  }
}

}  // namespace
}  // namespace qv
