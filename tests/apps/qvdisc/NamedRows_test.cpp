#include "apps/qvdisc/NamedRows.h"

#include <gmock/gmock.h>

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::Optional;

class NamedRowsTest : public testing::Test {
 protected:
  std::optional<std::vector<int>> Named(const std::vector<std::wstring>& names) {
    return NamedRows(rows, names, outcome);
  }

  static qv::STagDiscriminatorRow Row(const wchar_t* stem, const wchar_t* name) {
    return {0, {QVWideString(stem), QVWideString(name), {}}};
  }

  const std::vector<qv::STagDiscriminatorRow> rows = {Row(L"1.Day", L"Day"), Row(L"2.day", L"day"),
                                                      Row(L"3.Night", L"Night"),
                                                      Row(L"Night.1", L"1")};
  Outcome outcome;
};

TEST_F(NamedRowsTest, NoNameIsOfNoRow) {
  EXPECT_THAT(Named({}), Optional(ElementsAre()));
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(NamedRowsTest, RowsAscendAndComeOnce) {
  EXPECT_THAT(Named({L"Night.1", L"3.Night", L"2", L"2.day", L"3"}),
              Optional(ElementsAre(1, 2, 3)));
}

TEST_F(NamedRowsTest, AStemComesBeforeAnIdAndAnIdBeforeAName) {
  EXPECT_THAT(Named({L"Night"}), Optional(ElementsAre(3)));
  EXPECT_THAT(Named({L"1"}), Optional(ElementsAre(0)));
  EXPECT_THAT(Named({L"nIGHT"}), Optional(ElementsAre(2)));
}

TEST_F(NamedRowsTest, ANameOfNoRowOrOfSeveralIsTold) {
  EXPECT_EQ(Named({L"3", L"none", L"neither"}), std::nullopt);
  EXPECT_EQ(Named({L"DAY"}), std::nullopt);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.errors, ElementsAre(L"There is no discriminator “none” in the list",
                                          L"“DAY” can be more than one discriminator: write "
                                          L"<id>.<name>"));
}

}  // namespace
}  // namespace qvdisc
