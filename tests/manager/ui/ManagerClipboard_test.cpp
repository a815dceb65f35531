// What the manager copies and pastes, by keys and from its menu.
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <vector>

#include "tests/manager/ui/ManagerFixture.h"

namespace qv {
namespace {

TEST_F(SetupDiscriminators, CopyAndPasteByKeysMakeNewRows) {
  AddFile("1", "alpha", "a");
  EXPECT_EQ(Run([] {
              ClickRow(discriminatorList, 0);
              Press(discriminatorList, Qt::Key_C, Qt::ControlModifier);
              Press(discriminatorList, Qt::Key_V, Qt::ControlModifier);
              Press(discriminatorList, Qt::Key_V, Qt::ControlModifier);
              EXPECT_EQ(Shown(), QStringList({"alpha", "alpha_1", "alpha_2"}));
              EXPECT_TRUE(TheList()->selectedItems().isEmpty());
              EXPECT_EQ(TopWindow()->cursor().shape(), Qt::ArrowCursor);
              Click(exitButton);
            }),
            IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 5, 8, 5}));
}

/// Clicks with the right button, and lets `play` have the menu that comes up, or null.
void RightClick(QWidget* viewport, const std::function<void(QMenu*)>& play) {
  QTimer::singleShot(0, viewport,
                     [&play] { play(qobject_cast<QMenu*>(QApplication::activePopupWidget())); });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(viewport, &event);
  Settle();
}

/// The captions of the menu that a right click brings up; none if it brings none.
QStringList MenuAt(QWidget* viewport) {
  QStringList captions;
  RightClick(viewport, [&captions](QMenu* menu) {
    if (menu) {
      for (const QAction* action : menu->actions()) {
        captions << action->text();
      }
      menu->close();
    }
  });
  return captions;
}

/// Chooses the command with this caption in the menu that a right click brings up.
void ChooseInMenu(QWidget* viewport, const QString& caption) {
  RightClick(viewport, [&caption](QMenu* menu) {
    ASSERT_TRUE(menu);
    for (QAction* action : menu->actions()) {
      if (action->text() == caption) {
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        return;
      }
    }
    ADD_FAILURE() << "no command " << qPrintable(caption);
    menu->close();
  });
}

QString CopyCommand() { return TitleOf(Text::Copy) + "\tCtrl+C"; }
QString PasteCommand() { return TitleOf(Text::Paste) + "\tCtrl+V"; }

TEST_F(SetupDiscriminators, TheMenuCopiesAndPastes) {
  AddFile("1", "alpha", "a");
  Run([this] {
    ClickRow(discriminatorList, 0);
    ChooseInMenu(TheList()->viewport(), CopyCommand());
    EXPECT_TRUE(host->clipboard.text.has_value());
    ChooseInMenu(TheList()->viewport(), PasteCommand());
    EXPECT_EQ(Shown(), QStringList({"alpha", "alpha_1"}));
    Click(exitButton);
  });
}

/// A clipboard that looks at the cursor of the top window while it is used.
class WatchingClipboard : public FakeClipboard {
 public:
  mutable std::vector<Qt::CursorShape> shapes;

  bool PutToClipboard(const char* bytes, int size, int format) override {
    shapes.push_back(TopWindow()->cursor().shape());
    return FakeClipboard::PutToClipboard(bytes, size, format);
  }
  int GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const override {
    shapes.push_back(TopWindow()->cursor().shape());
    return FakeClipboard::GetFromClipboard(bytes, format);
  }
};

TEST_F(SetupDiscriminators, TheWaitCursorShowsDuringCopyAndPasteAndGoesOnEveryWayOut) {
  WatchingClipboard clipboard;
  const Installed<QVClipboard> installed(clipboard);
  AddFile("1", "alpha", "a");
  Run([&] {
    const auto press = [](Qt::Key key) {
      Press(discriminatorList, key, Qt::ControlModifier);
      EXPECT_EQ(TopWindow()->cursor().shape(), Qt::ArrowCursor);
    };
    press(Qt::Key_C);  // without a row
    press(Qt::Key_V);  // nothing on the clipboard
    clipboard.text = "foreign";
    press(Qt::Key_V);
    ClickRow(discriminatorList, 0);
    press(Qt::Key_C);
    press(Qt::Key_V);
    Click(exitButton);
  });
  EXPECT_EQ(clipboard.shapes, std::vector<Qt::CursorShape>(4, Qt::WaitCursor));
}

TEST_F(SetupDiscriminators, TheMenuOffersCopyAndPasteAsFarAsTheyCanBeDone) {
  AddFile("1", "alpha", "a");
  Run([this] {
    EXPECT_EQ(MenuAt(TheList()->viewport()), QStringList());
    ClickRow(discriminatorList, 0);
    EXPECT_EQ(MenuAt(TheList()->viewport()), QStringList({CopyCommand()}));
    host->clipboard.text = "<discriminatorClipboard/>";
    EXPECT_EQ(MenuAt(TheList()->viewport()), QStringList({CopyCommand(), PasteCommand()}));
    TheList()->clearSelection();
    EXPECT_EQ(MenuAt(TheList()->viewport()), QStringList({PasteCommand()}));
    host->clipboard.text = "<main/>";
    EXPECT_EQ(MenuAt(TheList()->viewport()), QStringList());
    Click(exitButton);
  });
}

}  // namespace
}  // namespace qv
