#include "host/QVEvaluator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(QVEvaluator, TakesItsFlagsAsAListThatEndsInMinusOne) {
  ScriptedDriverSupport support;
  const auto evaluator = support.NewEvaluator(L"x");
  EXPECT_TRUE(evaluator->SetFlags(4, -1));
  EXPECT_TRUE(evaluator->SetFlags(4, 7, -1));
  EXPECT_THAT(support.calls, ElementsAre(L"new x", L"SetFlags 4 -1", L"SetFlags 4 7 -1"));
}

/// The least that a host has to write.
class PlainEvaluator : public QVEvaluator {
 public:
  void EnableDiscriminators(bool) override {}
  int AnalizeExpression() override { return 0; }
  int Evaluate(double&, int&) override { return CodeUnreadable; }
  const QVWideString& Expr() const override { return m_expression; }

 protected:
  bool TakeFlags(std::initializer_list<int>) override { return false; }

 private:
  QVWideString m_expression;
};

TEST(QVEvaluator, NeedsToSayNeitherPlacesNorProposals) {
  const PlainEvaluator evaluator;
  EXPECT_FALSE(evaluator.Fault());
  EXPECT_THAT(evaluator.ProposalsAt(0).proposals, IsEmpty());
}

TEST(ExpressionServices, AreFoundWhereTheyAreInstalled) {
  EXPECT_FALSE(QVDriverSupport::Get());
  EXPECT_FALSE(QVInformes::Get());
  InstalledFakeHost fake;
  EXPECT_EQ(QVDriverSupport::Get(), &fake->driverSupport);
  EXPECT_EQ(QVInformes::Get(), &fake->informes);
}

}  // namespace
}  // namespace qv
