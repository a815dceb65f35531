#include "tools/Guid.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace qv {
namespace {

constexpr uuid sample{{0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC,
                       0xDD, 0xEE, 0xFF}};
constexpr const wchar_t* sampleText = L"00112233-4455-6677-8899-aabbccddeeff";

TEST(guidtow, WritesLowerCaseDigitsInFiveGroups) {
  wchar_t buffer[256];
  EXPECT_EQ(guidtow(sample, buffer, 256), buffer);
  EXPECT_EQ(std::wstring(buffer), sampleText);
}

TEST(guidtow, CutsAtTheLengthOfTheBufferAndEndsWithAZero) {
  for (std::size_t length = 1; length <= 37; ++length) {
    std::wstring buffer(length + 1, L'#');
    guidtow(sample, buffer.data(), length);
    EXPECT_STREQ(buffer.c_str(), std::wstring(sampleText, length - 1).c_str()) << length;
    EXPECT_EQ(buffer.back(), L'#') << length;
  }
}

TEST(guidtow, WritesNothingIntoABufferOfNoLength) {
  wchar_t buffer[] = L"kept";
  EXPECT_EQ(guidtow(sample, buffer, 0), buffer);
  EXPECT_EQ(std::wstring(buffer), L"kept");
  EXPECT_EQ(guidtow(sample, nullptr, 0), nullptr);
}

TEST(NewGUID, FillsInARandomValueOfItsVersionAndVariant) {
  for (int i = 0; i < 100; ++i) {
    uuid value;
    EXPECT_TRUE(NewGUID(&value));
    EXPECT_EQ(value.bytes[6] >> 4, 4);
    EXPECT_EQ(value.bytes[8] >> 6, 2);
  }
}

TEST(NewGUID, RefusesANullPointer) { EXPECT_FALSE(NewGUID(nullptr)); }

TEST(NewGuidText, IsTheTextOfAGuid) {
  const QVWideString text = NewGuidText();
  ASSERT_EQ(text.Length(), 36U);
  for (std::uint32_t i = 0; i < 36; ++i) {
    const bool isDash = i == 8 || i == 13 || i == 18 || i == 23;
    const std::wstring allowed = isDash ? L"-" : L"0123456789abcdef";
    EXPECT_NE(allowed.find(text.ToView()[i]), std::wstring::npos) << i;
  }
}

TEST(NewGuidText, DiffersEachTime) {
  std::set<std::wstring> texts;
  for (int i = 0; i < 10000; ++i) {
    texts.insert(std::wstring(NewGuidText().ToView()));
  }
  EXPECT_EQ(texts.size(), 10000U);
}

}  // namespace
}  // namespace qv
