#include "apps/qvdisc/SlotText.h"

#include <gtest/gtest.h>

namespace qvdisc {
namespace {

TEST(SlotText, IsReadWithAnyNameOfAnHourType) {
  EXPECT_EQ(std::get<CalledSlot>(ReadSlot("08:00-12:30 P1 punta")),
            (CalledSlot{{8, 0}, {12, 30}, L"P1 punta"}));
  EXPECT_EQ(std::get<CalledSlot>(ReadSlot("8:05-24:00   1:00 \xC3\xB1")),
            (CalledSlot{{8, 5}, {24, 0}, L"1:00 \u00f1"}));
}

TEST(SlotText, MayHoldWhatTheFieldsHoldThoughTheRulesRefuseIt) {
  EXPECT_EQ(std::get<CalledSlot>(ReadSlot("24:59-00:00 P1")),
            (CalledSlot{{24, 59}, {0, 0}, L"P1"}));
}

TEST(SlotText, OfAnotherFormIsRefused) {
  for (const char* text :
       {"", "08:00", "08:00-12:00", "08:00-12:00 ", "08:00-12:00P1", "08:00 12:00 P1",
        "08:00 - 12:00 P1", "8-12 P1", "08:0-12:00 P1", "008:00-12:00 P1", "08:000-12:00 P1",
        ":00-12:00 P1", "-8:00-12:00 P1", " 08:00-12:00 P1", "08:00-12:00\tP1", "P1 08:00-12:00"}) {
    const auto read = ReadSlot(text);
    ASSERT_TRUE(std::holds_alternative<std::string>(read)) << text;
    EXPECT_EQ(std::get<std::string>(read),
              std::string("A slot is written as 08:00-12:00 NAME: ") + text);
  }
}

TEST(SlotText, BeyondItsFieldsIsRefusedWithTheirLimits) {
  for (const char* text : {"25:00-12:00 P1", "08:00-25:00 P1", "99:99-99:99 P1"}) {
    EXPECT_EQ(std::get<std::string>(ReadSlot(text)), std::string("Hours are 0 to 24: ") + text);
  }
  for (const char* text : {"08:60-12:00 P1", "08:00-12:60 P1"}) {
    EXPECT_EQ(std::get<std::string>(ReadSlot(text)), std::string("Minutes are 0 to 59: ") + text);
  }
}

}  // namespace
}  // namespace qvdisc
