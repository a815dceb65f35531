#include "host/Host.h"

#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"
#include "tests/support/NamedCase.h"

namespace qv {
namespace {

TEST(InstalledHost, IsNothingWithoutServices) { EXPECT_FALSE(InstalledHost()); }

TEST(InstalledHost, RefersToTheInstalledServices) {
  InstalledFakeHost fake;
  const auto host = InstalledHost();
  ASSERT_TRUE(host);
  EXPECT_EQ(&host->setup, &fake->setup);
  EXPECT_EQ(&host->mainCfg, &fake->mainCfg);
  EXPECT_EQ(&host->guids, &fake->guids);
  EXPECT_EQ(&host->loadString, &fake->loadString);
  EXPECT_EQ(&host->createIndex, &fake->createIndex);
  EXPECT_EQ(&host->clipboard, &fake->clipboard);
}

template <class Service>
void TakeOut() {
  Service::Install(nullptr);
}

/// One service that a host may lack.
struct MissingService : NamedCase {
  void (*takeOut)();
};

class InstalledHostWithout : public testing::TestWithParam<MissingService> {};

TEST_P(InstalledHostWithout, IsNothing) {
  InstalledFakeHost fake;
  ASSERT_TRUE(InstalledHost());
  GetParam().takeOut();
  EXPECT_FALSE(InstalledHost());
}

INSTANTIATE_TEST_SUITE_P(OneService, InstalledHostWithout,
                         testing::Values(MissingService{"Setup", TakeOut<QVVornelSetup>},
                                         MissingService{"MainCfg", TakeOut<QVMainCfg>},
                                         MissingService{"Guids", TakeOut<QVVornelGuids>},
                                         MissingService{"Clipboard", TakeOut<QVClipboard>},
                                         MissingService{"LoadString", TakeOut<QVLoadString>},
                                         MissingService{"CreateIndex",
                                                        TakeOut<CreateDiscriminatorIndex>}),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace qv
