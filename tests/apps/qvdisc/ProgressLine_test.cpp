#include "apps/qvdisc/ProgressLine.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qvdisc {
namespace {

/// What a reading of `total` files leaves on the stream of the errors.
std::string ToldOf(std::size_t total, bool isSeen, qv::Language language) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const Terminal terminal{.in = in, .out = out, .err = err, .showsProgress = isSeen};
  {
    ProgressLine line(terminal, language);
    for (std::size_t done = 0; done < total; ++done) {
      EXPECT_TRUE(line.Advance(done, total));
    }
  }
  EXPECT_EQ(out.str(), "");
  return err.str();
}

TEST(ProgressLine, ShowsEveryFiftiethAndTakesItselfAway) {
  EXPECT_EQ(ToldOf(101, true, qv::Language::Spanish),
            "\r\033[KLeyendo 50 de 101\r\033[KLeyendo 100 de 101\r\033[K");
}

TEST(ProgressLine, WritesNothingForFewFilesOrWithoutAnyoneWhoSeesIt) {
  EXPECT_EQ(ToldOf(50, true, qv::Language::English), "");
  EXPECT_EQ(ToldOf(500, false, qv::Language::English), "");
}

}  // namespace
}  // namespace qvdisc
