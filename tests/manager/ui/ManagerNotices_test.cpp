#include <utility>
#include <vector>

#include "tests/manager/ui/ManagerFixture.h"

namespace qv {
namespace {

/// Keeps the names that the list shows at each notice.
class WatchingGuids : public QVVornelGuids {
 public:
  explicit WatchingGuids(QStringList (*names)()) : m_names(names) {}

  std::vector<std::pair<int, QStringList>> seen;

  void invalidateGuid(int id, bool /*stale*/) override { seen.emplace_back(id, m_names()); }

 private:
  QStringList (*m_names)();
};

TEST_F(SetupDiscriminators, ANoticeFindsOnTheScreenWhatTheListHolds) {
  AddFile("1", "alpha", "");
  AddFile("2", "beta", "");
  WatchingGuids guids(&Shown);
  const Installed<QVVornelGuids> installed(guids);
  Run([] {
    EditNext("gamma", IDOK);
    Click(addButton);
    ClickRow(discriminatorList, 0);
    ClickRow(discriminatorList, 1, Qt::ShiftModifier);
    AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
    Click(removeButton);
    Click(exitButton);
  });
  const std::vector<std::pair<int, QStringList>> expected = {
      {8, {"alpha", "beta"}}, {5, {"alpha", "beta", "gamma"}}, {5, {"alpha", "beta", "gamma"}},
      {8, {"beta", "gamma"}}, {5, {"beta", "gamma"}},          {8, {"gamma"}}};
  EXPECT_EQ(guids.seen, expected);
}

}  // namespace
}  // namespace qv
