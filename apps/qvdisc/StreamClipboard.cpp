#include "apps/qvdisc/StreamClipboard.h"

#include <algorithm>
#include <array>
#include <istream>
#include <utility>

#include "apps/qvdisc/PayloadInText.h"
#include "tools/XmlReader.h"

namespace qvdisc {

bool StreamClipboard::PutToClipboard(const char* bytes, int size, int format) {
  if (format != TextFormat || size < 1) {
    return false;
  }
  m_put.assign(bytes, static_cast<std::size_t>(size) - 1);
  return true;
}

int StreamClipboard::GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const {
  if (format != TextFormat) {
    return 0;
  }
  std::string text;
  std::array<char, 65536> piece{};
  while (m_in && text.size() <= qv::maxXmlSize) {
    m_in.read(piece.data(), piece.size());
    text.append(piece.data(), static_cast<std::size_t>(m_in.gcount()));
  }
  text = PayloadIn(std::move(text));
  bytes = std::make_unique<char[]>(text.size() + 1);
  std::copy(text.begin(), text.end(), bytes.get());
  return static_cast<int>(text.size()) + 1;
}

}  // namespace qvdisc
