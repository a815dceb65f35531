#include "hostkit/ExpressionFlaw.h"

#include "tools/Format.h"

namespace qv {

ExpressionFault ExpressionFlaw::In(const QVLoadString& texts) const {
  return {place, Format(texts.Load(text).ToView(), {std::wstring_view(Quoted(argument))})};
}

std::wstring Quoted(std::wstring_view piece) {
  constexpr std::size_t longest = 60;
  return std::wstring(piece.substr(0, longest)) + (piece.size() > longest ? L"…" : L"");
}

}  // namespace qv
