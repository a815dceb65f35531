#include "host/Mnemonic.h"

namespace qv {

std::wstring WithoutMnemonic(std::wstring_view text) {
  std::wstring plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != L'&') {
      plain += text[i];
    } else if (i + 1 < text.size() && text[i + 1] == L'&') {
      plain += text[i++];
    }
  }
  return plain;
}

}  // namespace qv
