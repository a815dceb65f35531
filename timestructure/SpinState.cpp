#include "timestructure/SpinState.h"

#include <algorithm>

#include "tools/Numbers.h"

namespace qv {

bool SpinState::IsAbove() const { return Wtoi(m_text) > m_upper; }

void SpinState::SetText(const std::wstring& text) {
  m_text = text;
  const bool isNumber =
      !text.empty() && text.find_first_not_of(L"0123456789") == std::wstring::npos;
  const int number = isNumber ? Wtoi(text) : -1;
  if (number >= 0 && number <= m_upper) {
    m_position = number;
  }
}

void SpinState::SetRange(int upper) {
  m_upper = upper;
  SetText(m_text);
}

void SpinState::SetPosition(int position) {
  m_position = std::clamp(position, 0, m_upper);
  m_text = std::to_wstring(m_position);
}

}  // namespace qv
