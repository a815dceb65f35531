#include "apps/configurator/FastSelectionWindow.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDate>

#include "tests/apps/ExampleCopy.h"
#include "tests/support/ControlDriver.h"
#include "tests/support/ControlNumbers.h"
#include "toolkit/Types.h"

namespace configurator {
namespace {

class FastSelectionWindow : public testing::Test {
 protected:
  FastSelectionWindow() {
    EXPECT_FALSE(workspace.SetLanguage(qv::Language::English));
    EXPECT_FALSE(workspace.Open(installation.Directory()));
  }

  /// Runs the dialog while `script` plays its user.
  FastSelectionEnd Run(const QString& stem, const std::function<void()>& script) {
    FastSelectionEnd end;
    qv::Drive(
        [&] {
          end = RunFastSelection(workspace, stem, [this](QWidget&) { ++made; });
          return 0;
        },
        script);
    return end;
  }

  const ExampleCopy installation;
  Workspace workspace{ProgramDirectories::OfThisProgram()};
  int made = 0;
};

TEST_F(FastSelectionWindow, OffersTheDayTypesOfTheFirstListedForMarchToJune) {
  const auto files = installation.Files();
  const FastSelectionEnd end = Run({}, [] {
    EXPECT_EQ(qv::Combo(qv::fastDayType)->itemText(0), "Winter day");
    EXPECT_TRUE(qv::Caption(qv::fastYear).endsWith(QString::number(QDate::currentDate().year())));
    for (const int check : qv::monthChecks) {
      qv::TopControl<QCheckBox>(check)->click();
    }
    qv::TopControl<QCheckBox>(qv::weekDayChecks[0])->click();
    qv::TopControl<QCheckBox>(qv::weekDayChecks[6])->click();
    qv::Combo(qv::fastDayType)->setCurrentIndex(1);
    qv::Click(IDOK);
  });
  EXPECT_FALSE(end.problem);
  EXPECT_EQ(end.result, "IDOK weekdays=0x41 months=0x03c day-type=1");
  EXPECT_EQ(made, 1);
  EXPECT_EQ(installation.Files(), files);
}

TEST_F(FastSelectionWindow, OffersThoseOfTheDiscriminatorThatIsNamed) {
  const FastSelectionEnd end = Run("142ff28b-e7f0-4c2b-9500-df7680b117a7.Tariff 2-0TD 2026", [] {
    EXPECT_EQ(qv::Combo(qv::fastDayType)->itemText(0), "Working day");
    qv::Click(IDCANCEL);
  });
  EXPECT_EQ(end.result, "IDCANCEL");
}

TEST_F(FastSelectionWindow, ADiscriminatorThatIsNotThereOrNotOfSlotsIsTold) {
  for (const char* stem :
       {"none", "b4f5b7a3-3a57-4f3e-92cb-dab16be737f9.Transformer station state"}) {
    const FastSelectionEnd end = RunFastSelection(workspace, stem, [](QWidget&) {});
    EXPECT_EQ(end.problem, workspace.Words(OwnText::NoDiscriminatorOfSlots));
  }
}

}  // namespace
}  // namespace configurator
