#include "apps/qvdisc/PayloadInText.h"

#include <algorithm>
#include <string_view>

#include "manager/ClipboardPayload.h"

namespace qvdisc {
namespace {

constexpr std::string_view opening = "<discriminatorClipboard";
constexpr std::string_view closing = "</discriminatorClipboard";

bool HoldsDiscriminators(const std::string& text) {
  const auto payload = qv::ParsePayload(text.c_str());
  return payload && !qv::ItemsOfPayload(*payload).empty();
}

}  // namespace

std::string PayloadIn(std::string text) {
  if (HoldsDiscriminators(text)) {
    return text;
  }
  // Payloads don't hold each other, so that each end belongs to the last start before it. No letter
  // is looked at twice, whatever the text is.
  std::size_t from = 0;
  for (std::size_t end = text.find(closing); end != std::string::npos;
       end = text.find(closing, from)) {
    const std::size_t start = std::string_view(text).substr(from, end - from).rfind(opening);
    if (start != std::string_view::npos) {
      const std::size_t next = std::min(text.find('>', end), text.size() - 1) + 1;
      std::string element = text.substr(from + start, next - from - start);
      if (HoldsDiscriminators(element)) {
        return element;
      }
    }
    // Only behind its name: what ends there may be words that speak of a payload, before the ">" of
    // one.
    from = end + closing.size();
  }
  return text;
}

}  // namespace qvdisc
