#pragma once

#include <string>

namespace qv {

/// A numeric field with the spin beside it.
class SpinState {
 public:
  /// The number in the field if it is one from 0 to `Upper()`, otherwise the last that was.
  int Position() const { return m_position; }
  int Upper() const { return m_upper; }
  /// Whether the spin reacts; the field beside it always does.
  bool IsEnabled() const { return m_enabled; }
  const std::wstring& Text() const { return m_text; }
  /// Whether the field holds a number above the range.
  bool IsAbove() const;

  /// What the user typed.
  void SetText(const std::wstring& text);
  /// Moves the position into the range and shows it.
  void SetPosition(int position);
  /// A number in the field that is in the range now becomes the position.
  void SetRange(int upper);
  void Enable(bool enabled) { m_enabled = enabled; }

 private:
  std::wstring m_text = L"0";
  int m_position = 0;
  int m_upper = 0;
  bool m_enabled = true;
};

}  // namespace qv
