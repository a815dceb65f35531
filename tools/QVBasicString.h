#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "tools/CharTraits.h"

/// A text of `Char`, always terminated by a zero, that either owns its buffer or only refers to
/// somebody else's (a literal, foreign text or the shared empty text).
///
/// A change that must write to a buffer that isn't owned makes an owned copy first. An owned buffer
/// may have spare characters behind the text: how many an allocation adds is told by the growth
/// mode, bits 0 and 5 of the flags. Copies of a string own their text; what a copy never takes over
/// is the growth mode.
template <class Char, class Traits>
class QVBasicString {
 public:
  using View = std::basic_string_view<Char>;

  /// Flag: the buffer is not owned and never freed.
  static constexpr std::uint32_t NotOwned = 16;
  /// Growth mode: each allocation adds 255 characters of slack.
  static constexpr std::uint32_t GrowSmall = 32;
  /// Growth mode: each allocation adds 65535 characters of slack.
  static constexpr std::uint32_t GrowLarge = 33;
  /// What the searches give when there is no such place: the unsigned value of -1.
  static constexpr std::uint32_t NotFound = static_cast<std::uint32_t>(-1);

  /// Empty, not owned, without slack.
  QVBasicString() = default;

  /// Empty, not owned; the growth mode is taken from bits 0 and 5 of `growth`.
  explicit QVBasicString(std::uint32_t growth) : m_flags(NotOwned | (growth & GrowthMask)) {}

  /// With `copy` an owned copy of `text`. Without it the string only refers to `text`, which then
  /// has to live as long as this string does. A null `text` gives length 0.
  QVBasicString(const Char* text, bool copy) {
    const auto length = CheckedLength(Traits::Length(text));
    if (copy) {
      Assign(text, length);
    } else if (text) {
      m_buffer = const_cast<Char*>(text);  // never written: the flag says that it isn't owned
      m_length = length;
    }
  }

  /// An owned copy of `text`; null gives an empty string.
  QVBasicString(const Char* text)  // NOLINT(google-explicit-constructor): texts are passed as such
      : QVBasicString(text, true) {}

  /// An owned copy of exactly the characters of `text`.
  explicit QVBasicString(View text) { Assign(text); }

  QVBasicString(const QVBasicString& other) { CopyContent(other); }
  QVBasicString(QVBasicString&& other) noexcept { Swap(other); }

  QVBasicString& operator=(const QVBasicString& other) {
    if (this != &other) {
      CopyContent(other);
    }
    return *this;
  }
  QVBasicString& operator=(QVBasicString&& other) noexcept {
    Swap(other);
    SwapGrowth(other);  // each keeps its own
    return *this;
  }
  QVBasicString& operator=(const Char* text) {
    return Assign(text, CheckedLength(Traits::Length(text)));
  }

  ~QVBasicString() { Release(); }

  /// Replaces the content by exactly `count` characters of `text`, always in a new allocation; the
  /// result is owned. `text` may lie in this string.
  QVBasicString& Assign(const Char* text, std::uint32_t count) {
    const std::uint32_t slack = Slack();
    Char* fresh = Allocate(count, slack);
    std::copy_n(text, count, fresh);
    Adopt(fresh, count, slack);
    return *this;
  }
  QVBasicString& Assign(View text) { return Assign(text.data(), CheckedLength(text.size())); }

  /// Adds `count` characters of `text` at the end; allocates only if the spare room doesn't cover
  /// them, which for a text that isn't owned is the room of its owned copy. `text` may lie in this
  /// string.
  QVBasicString& Append(const Char* text, std::uint32_t count) {
    if (!Owned() && Slack() >= count) {
      Assign(m_buffer, m_length);
    }
    if (Owned() && m_spare >= count) {
      std::copy_n(text, count, m_buffer + m_length);
      m_length += count;
      m_spare -= count;
      m_buffer[m_length] = Char();
      return *this;
    }
    const std::uint32_t total = CheckedLength(std::uint64_t{m_length} + count);
    const std::uint32_t slack = Slack();
    Char* fresh = Allocate(total, slack);
    std::copy_n(m_buffer, m_length, fresh);
    std::copy_n(text, count, fresh + m_length);
    Adopt(fresh, total, slack);
    return *this;
  }
  QVBasicString& Append(View text) { return Append(text.data(), CheckedLength(text.size())); }
  QVBasicString& operator+=(View text) { return Append(text); }
  QVBasicString& operator+=(const QVBasicString& text) { return Append(text.ToView()); }
  QVBasicString& operator+=(const Char* text) {
    return Append(text, CheckedLength(Traits::Length(text)));
  }

  /// The index of the first `character` at or behind `start`, or `NotFound`.
  std::uint32_t Find(Char character, std::uint32_t start = 0) const {
    for (std::uint32_t i = start; i < m_length; ++i) {
      if (m_buffer[i] == character) {
        return i;
      }
    }
    return NotFound;
  }

  /// The index at or behind `start` where `text` first stands, or `NotFound`, as for an empty text.
  std::uint32_t Find(const Char* text, std::uint32_t start = 0) const {
    const std::size_t count = Traits::Length(text);
    if (count == 0) {
      return NotFound;
    }
    for (std::uint32_t i = Find(*text, start); i != NotFound; i = Find(*text, i + 1)) {
      if (Traits::Compare(m_buffer + i, text, count) == 0) {
        return i;
      }
    }
    return NotFound;
  }

  /// Upper-cases each character in place, by `Traits::ToUpper`.
  QVBasicString& MakeUpper() {
    if (!Owned()) {
      Assign(m_buffer, m_length);
    }
    std::transform(m_buffer, m_buffer + m_length, m_buffer, [](Char character) {
      return static_cast<Char>(Traits::ToUpper(static_cast<int>(character)));
    });
    return *this;
  }

  /// The text with its terminating zero. Valid until the next change of this string.
  // NOLINTNEXTLINE(google-explicit-constructor): strings are passed as texts
  operator const Char*() const { return m_buffer; }

  View ToView() const { return View(m_buffer, m_length); }
  bool Empty() const { return m_length == 0; }

  /// Characters without the terminating zero.
  std::uint32_t Length() const { return m_length; }
  /// Free characters behind the text in an owned buffer.
  std::uint32_t Spare() const { return m_spare; }
  std::uint32_t Flags() const { return m_flags; }
  bool Owned() const { return (m_flags & NotOwned) == 0; }

  friend bool operator==(const QVBasicString& a, const QVBasicString& b) {
    return a.ToView() == b.ToView();
  }
  friend bool operator==(const QVBasicString& a, const Char* b) { return a.ToView() == Viewed(b); }
  friend bool operator==(const QVBasicString& a, View b) { return a.ToView() == b; }

  friend QVBasicString operator+(const QVBasicString& a, const QVBasicString& b) {
    return Joined(a.ToView(), b.ToView());
  }
  friend QVBasicString operator+(const QVBasicString& a, const Char* b) {
    return Joined(a.ToView(), Viewed(b));
  }
  friend QVBasicString operator+(const Char* a, const QVBasicString& b) {
    return Joined(Viewed(a), b.ToView());
  }

 private:
  static constexpr std::uint32_t GrowthMask = 33;

  static std::uint32_t CheckedLength(std::uint64_t length) {
    // Room for the terminator and the largest slack has to remain in 32 bits.
    if (length > std::numeric_limits<std::uint32_t>::max() - 65536U) {
      throw std::length_error("QVBasicString: text too long");
    }
    return static_cast<std::uint32_t>(length);
  }

  /// `text` with null for an empty one.
  static View Viewed(const Char* text) { return View(text, Traits::Length(text)); }

  static QVBasicString Joined(View a, View b) {
    QVBasicString result;
    const std::uint32_t total = CheckedLength(std::uint64_t{a.size()} + b.size());
    Char* fresh = Allocate(total, 0);
    std::copy_n(a.data(), a.size(), fresh);
    std::copy_n(b.data(), b.size(), fresh + a.size());
    result.Adopt(fresh, total, 0);
    return result;
  }

  static Char* Allocate(std::uint32_t length, std::uint32_t slack) {
    Char* fresh = new Char[std::size_t{length} + 1 + slack];
    fresh[length] = Char();
    return fresh;
  }

  std::uint32_t Slack() const {
    switch (m_flags & GrowthMask) {
      case GrowSmall:
        return 255;
      case GrowLarge:
        return 65535;
      default:
        return 0;
    }
  }

  void Adopt(Char* fresh, std::uint32_t length, std::uint32_t slack) {
    Release();
    m_buffer = fresh;
    m_length = length;
    m_spare = slack;
    m_flags &= ~NotOwned;
  }

  void CopyContent(const QVBasicString& other) {
    if (other.Empty() && !Owned()) {
      m_buffer = const_cast<Char*>(Traits::EmptyString());
      m_length = 0;
    } else {
      Assign(other.m_buffer, other.m_length);
    }
  }

  void Release() {
    if (Owned()) {
      delete[] m_buffer;
    }
  }

  void Swap(QVBasicString& other) noexcept {
    std::swap(m_buffer, other.m_buffer);
    std::swap(m_flags, other.m_flags);
    std::swap(m_spare, other.m_spare);
    std::swap(m_length, other.m_length);
  }

  void SwapGrowth(QVBasicString& other) noexcept {
    const std::uint32_t difference = (m_flags ^ other.m_flags) & GrowthMask;
    m_flags ^= difference;
    other.m_flags ^= difference;
  }

  Char* m_buffer = const_cast<Char*>(Traits::EmptyString());
  std::uint32_t m_flags = NotOwned;
  std::uint32_t m_spare = 0;
  std::uint32_t m_length = 0;
};

/// The string type of this system.
using QVWideString = QVBasicString<wchar_t, QVWideChar>;
/// Text of XML in UTF-8.
using QVNarrowString = QVBasicString<char, QVChar>;
