#include "tools/Guid.h"

#include <uuid/uuid.h>

#include <algorithm>

namespace {

/// The length of a GUID's text.
constexpr std::size_t textLength = 36;

}  // namespace

bool NewGUID(uuid* value) {
  if (!value) {
    return false;
  }
  uuid_generate_random(value->bytes.data());
  return true;
}

wchar_t* guidtow(const uuid& value, wchar_t* buffer, std::size_t length) {
  if (length == 0) {
    return buffer;
  }
  char text[textLength + 1];
  uuid_unparse_lower(value.bytes.data(), text);
  const std::size_t count = std::min(textLength, length - 1);
  std::copy_n(text, count, buffer);
  buffer[count] = L'\0';
  return buffer;
}

namespace qv {

QVWideString NewGuidText() {
  uuid value;
  NewGUID(&value);
  wchar_t buffer[256];
  return QVWideString(guidtow(value, buffer, 256));
}

}  // namespace qv
