#include "host/Mnemonic.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(WithoutMnemonic, TakesTheSignOfAMnemonicOut) {
  const std::pair<const wchar_t*, const wchar_t*> texts[] = {
      {L"", L""},          {L"Name", L"Name"},    {L"&Name", L"Name"}, {L"N&ame", L"Name"},
      {L"Name&", L"Name"}, {L"A && B", L"A & B"}, {L"&&&B", L"&B"},    {L"&A and &B", L"A and B"},
  };
  for (const auto& [text, plain] : texts) {
    EXPECT_EQ(WithoutMnemonic(text), plain) << text;
  }
}

}  // namespace
}  // namespace qv
