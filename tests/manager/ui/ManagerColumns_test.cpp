#include "tests/manager/ui/ManagerFixture.h"
#include "tests/support/DraggedColumns.h"

namespace qv {
namespace {

class ManagerColumns : public SetupDiscriminators {
 protected:
  /// Runs the manager over two discriminators, with the first selected, while `verb` has to size
  /// columns anew.
  void ExpectSizedAnewBy(const std::function<void()>& verb) {
    AddFile("1", "alpha", "a");
    AddFile("2", "beta", "b");
    Run([&] {
      ClickRow(discriminatorList, 0);
      ExpectColumnsSizedAnew(discriminatorList, verb);
      Click(exitButton);
    });
  }

  static void ConfirmNext(const QString& name) {
    WhenNextWindow([=] {
      Type(discriminatorName, name);
      Click(IDOK);
    });
  }
};

TEST_F(ManagerColumns, AreSizedAnewByAnAdd) {
  ExpectSizedAnewBy([] {
    ConfirmNext("new");
    Click(addButton);
  });
}

TEST_F(ManagerColumns, AreSizedAnewByAModify) {
  ExpectSizedAnewBy([] {
    ConfirmNext("other");
    Click(modifyButton);
  });
}

TEST_F(ManagerColumns, AreSizedAnewByARemovalAlsoIfItIsDeclined) {
  ExpectSizedAnewBy([] {
    AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::No);
    Click(removeButton);
  });
  ExpectSizedAnewBy([] {
    AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
    Click(removeButton);
  });
}

TEST_F(ManagerColumns, AreSizedAnewByAPaste) {
  ExpectSizedAnewBy([] {
    Press(discriminatorList, Qt::Key_C, Qt::ControlModifier);
    Press(discriminatorList, Qt::Key_V, Qt::ControlModifier);
  });
}

}  // namespace
}  // namespace qv
