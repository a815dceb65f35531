#include "hostkit/InstalledServices.h"

#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace qv {
namespace {

TEST(InstalledServices, AreThereAsLongAsTheObjectLives) {
  FakeHost fake;
  {
    const InstalledServices installed(fake.setup, fake.mainCfg, fake.guids, fake.loadString,
                                      fake.createIndex, fake.clipboard);
    const auto host = InstalledHost();
    ASSERT_TRUE(host);
    EXPECT_EQ(&host->setup, &fake.setup);
    EXPECT_EQ(&host->clipboard, &fake.clipboard);
  }
  EXPECT_FALSE(InstalledHost());
}

}  // namespace
}  // namespace qv
