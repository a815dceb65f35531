// The columns of the three lists are sized anew by each verb.
#include "tests/support/DraggedColumns.h"
#include "tests/timestructure/ui/DayTypesFixture.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"

namespace qv {
namespace {

class TypeColumns : public DayTypesFixture {
 protected:
  using Confirm = std::function<void(const QString& name)>;

  /// Adds, modifies and removes, with `confirm` in each editor, which gets a name that is free.
  void ExpectSizedAnewByEachVerb(CDialog&& dialog, const Confirm& confirm) {
    const auto confirmAfter = [&](int button) {
      return [&confirm, button] {
        WhenNextWindow([&confirm, button] { confirm(QString::number(button)); });
        Click(button);
      };
    };
    Play(dialog, [&] {
      ExpectColumnsSizedAnew(typeList, confirmAfter(addButton));
      ClickRow(typeList, 0);
      ExpectColumnsSizedAnew(typeList, confirmAfter(modifyButton));
      ClickRow(typeList, 0);
      ExpectColumnsSizedAnew(typeList, [] { Click(removeButton); });
      Click(IDCANCEL);
    });
  }
};

TEST_F(TypeColumns, OfHourTypesAreSizedAnew) {
  ExpectSizedAnewByEachVerb(CDlgHourTypes(nullptr, hours.get(), nullptr), [](const QString& name) {
    Type(hourName, name);
    Click(IDOK);
  });
}

TEST_F(TypeColumns, OfDayTypesAreSizedAnew) {
  ExpectSizedAnewByEachVerb(CDlgDayTypes(nullptr, days.get(), nullptr, hours.get()),
                            [](const QString& name) {
                              Type(dayName, name);
                              AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
                              Click(IDOK);
                            });
}

TEST_F(TypeColumns, OfSlotsAreSizedAnew) {
  ExpectSizedAnewByEachVerb(CDlgAddModifyDayType(nullptr, &Day(L"feast"), days.get(), hours.get()),
                            [](const QString&) { Click(IDOK); });
}

}  // namespace
}  // namespace qv
