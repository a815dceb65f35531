#include "conditions/ui/TrialReport.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

#include "tests/conditions/ui/ConditionsFixture.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

class TrialReportTest : public DialogTest {
 protected:
  TrialReportTest() {
    host->loadString.additions = {
        Text::TrialTitle,  Text::TrialResult, Text::FirstTrueCondition, Text::NoTrueCondition,
        Text::CloseReport, Text::ResultTrue,  Text::ResultFalse};
  }

  void Run(const std::vector<TriedCondition>& shown, const std::function<void()>& script) {
    Drive(
        [&] {
          TrialReport report(nullptr, host->loadString, shown);
          return report.exec();
        },
        script);
  }

  static QTreeWidget* Shown() { return TopWindow()->findChild<QTreeWidget*>(); }
  static void Close() { QTest::keyClick(TopWindow(), Qt::Key_Escape); }

  const std::vector<TriedCondition> tried = {
      {L"A", L"a", {ConditionState::False}},
      {L"B", L"b", {ConditionState::Failed, L"nine"}},
      {L"C", L"c", {ConditionState::True}},
  };
};

TEST_F(TrialReportTest, TellsEachResultInItsOrderAndWhichComesFirst) {
  Run(tried, [] {
    QStringList results;
    for (int row = 0; row < Shown()->topLevelItemCount(); ++row) {
      results << Shown()->topLevelItem(row)->text(0) + Shown()->topLevelItem(row)->text(2);
    }
    EXPECT_EQ(results, QStringList({"A[60086]", "Bnine", "C[60085]"}));
    EXPECT_EQ(Shown()->headerItem()->text(2), TitleOf(Text::TrialResult));
    EXPECT_EQ(Shown()->currentIndex().row(), 2);
    EXPECT_EQ(TopWindow()->findChild<QLabel*>()->text(), TitleOf(Text::FirstTrueCondition));
    Close();
  });
}

TEST_F(TrialReportTest, TellsThatNoneIsTrue) {
  Run({tried[0]}, [] {
    EXPECT_EQ(TopWindow()->findChild<QLabel*>()->text(), TitleOf(Text::NoTrueCondition));
    QTest::mouseClick(TopWindow()->findChild<QPushButton*>(), Qt::LeftButton);
  });
}

TEST_F(TrialReportTest, ControlCCopiesAllLinesOrThoseSelected) {
  Run(tried, [] {
    QTest::keyClick(Shown(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "A\ta\t[60086]\nB\tb\tnine\nC\tc\t[60085]");
    Shown()->topLevelItem(1)->setSelected(true);
    QTest::keyClick(Shown(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "B\tb\tnine");
    Close();
  });
}

}  // namespace
}  // namespace qv
