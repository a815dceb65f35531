#include "hostkit/DecimalNumber.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

namespace qv {
namespace {

TEST(DecimalNumber, IsReadWhateverTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "");
  EXPECT_EQ(DecimalNumber(L"1.5"), 1.5);
  EXPECT_EQ(DecimalNumber(L"-12"), -12);
  EXPECT_EQ(DecimalNumber(L".5"), 0.5);
  EXPECT_EQ(DecimalNumber(L"5."), 5);
  EXPECT_EQ(DecimalNumber(L"2e-1"), 0.2);
  std::setlocale(LC_ALL, before.c_str());
}

TEST(DecimalNumber, IsAllOfTheText) {
  for (const wchar_t* text : {L"", L" 1", L"1 ", L"1,5", L"+1", L"1e", L"e1", L".", L"1.2.3",
                              L"nan", L"inf", L"infinity", L"0x10", L"1_000", L"١", L"--1"}) {
    EXPECT_EQ(DecimalNumber(text), std::nullopt) << text;
  }
}

TEST(DecimalNumber, BeyondTheRangeIsInfiniteOrZero) {
  const std::wstring nines(500, L'9');
  const std::wstring zeros(500, L'0');
  EXPECT_TRUE(std::isinf(DecimalNumber(nines).value()));
  EXPECT_TRUE(std::isinf(DecimalNumber(L"1e999999999999").value()));
  EXPECT_LT(DecimalNumber(L"-" + nines).value(), 0);
  EXPECT_EQ(DecimalNumber(L"1e-400"), 0);
  EXPECT_EQ(DecimalNumber(L"0." + zeros + L"1"), 0);
  EXPECT_EQ(DecimalNumber(zeros + L"7"), 7);
  EXPECT_EQ(DecimalNumber(L"0e999999"), 0);
  EXPECT_TRUE(std::isinf(DecimalNumber(L"0.1e999").value()));
}

TEST(DecimalNumber, IsWrittenWithSixDigits) {
  EXPECT_EQ(NumberText(231.5), L"231.5");
  EXPECT_EQ(NumberText(1.0 / 3), L"0.333333");
  EXPECT_EQ(NumberText(-2), L"-2");
  EXPECT_EQ(NumberText(1e300), L"1e+300");
}

}  // namespace
}  // namespace qv
