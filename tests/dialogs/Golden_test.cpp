#include "tests/support/Golden.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/TemporaryDirectory.h"

namespace qv {
namespace {

class ComparedLines : public testing::Test {
 protected:
  ComparedLines() { std::ofstream(file) << "first\nsecond\n"; }

  const TemporaryDirectory directory;
  const std::filesystem::path file = directory.Path() / "golden.txt";
};

TEST_F(ComparedLines, AsInTheFileAreFine) { ExpectGolden(file, {"first", "second"}); }

TEST_F(ComparedLines, AreShownWhereTheyDiffer) {
  EXPECT_NONFATAL_FAILURE(ExpectGolden(file, {"first", "changed"}), "- second\n+ changed\n");
  EXPECT_NONFATAL_FAILURE(ExpectGolden(file, {"first"}), "- second\n");
  EXPECT_NONFATAL_FAILURE(ExpectGolden(file, {"first", "second", "third"}), "+ third\n");
}

TEST_F(ComparedLines, HaveTheOrderOfTheFile) {
  EXPECT_NONFATAL_FAILURE(ExpectGolden(file, {"second", "first"}), "golden.txt");
}

}  // namespace
}  // namespace qv
