#include "apps/qvdisc/TerminalView.h"

#include <gtest/gtest.h>

#include <sstream>

#include "manager/DiscriminatorList.h"

namespace qvdisc {
namespace {

TEST(TerminalView, EachReadingHasALineOfItsOwn) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const Terminal terminal{.in = in, .out = out, .err = err, .showsProgress = true};
  TerminalView view(terminal, qv::Language::English);
  EXPECT_TRUE(view.NewProgress()->Advance(50, 60));
  EXPECT_EQ(err.str(), "\r\033[KReading 50 of 60\r\033[K");
  view.ShowRows({});
  view.RemoveRow(0);
  EXPECT_EQ(err.str(), "\r\033[KReading 50 of 60\r\033[K");
  EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace qvdisc
