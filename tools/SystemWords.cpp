#include "tools/SystemWords.h"

#include <cwchar>

#include "tools/Utf8.h"

namespace qv {

std::wstring SystemWords(const std::error_code& error) {
  // The words come in the encoding of the process's locale.
  const std::string words = error.message();
  std::wstring wide(words.size(), L'\0');
  const char* source = words.c_str();
  std::mbstate_t state{};
  const std::size_t length = std::mbsrtowcs(wide.data(), &source, wide.size(), &state);
  if (length == static_cast<std::size_t>(-1)) {
    return FromUtf8(words);
  }
  wide.resize(length);
  return wide;
}

}  // namespace qv
