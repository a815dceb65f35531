#pragma once

#include <string>
#include <vector>

#include "apps/qvdisc/Words.h"

namespace qvdisc {

/// Something that a check tells of a file or of an entry.
struct Finding {
  Word kind = Word::Unreadable;  ///< one of those from `Unreadable` on
  std::wstring file{};           ///< the name of the file; empty for the configuration's entries
  std::wstring place{};          ///< where in it
  std::wstring value{};          ///< what is wrong there
  std::wstring expected{};       ///< what it is compared with
  unsigned line = 0;             ///< from 1, of what cannot be read; 0 for the file as a whole
  unsigned column = 0;

  /// Whether something has to be mended, rather than only explained.
  bool IsFault() const { return kind != Word::HiddenType; }

  friend bool operator==(const Finding&, const Finding&) = default;
};

/// What JSON calls this kind of finding.
const char* KindName(Word kind);

/// The finding as a sentence, without its file.
std::wstring Sentence(const Finding& finding, qv::Language language);

}  // namespace qvdisc
