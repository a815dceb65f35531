#include "apps/qvdisc/ProgressLine.h"

#include <ostream>

#include "apps/qvdisc/Words.h"

namespace qvdisc {
namespace {

constexpr const char* backToTheStart = "\r\033[K";

}  // namespace

ProgressLine::~ProgressLine() {
  if (m_isShown) {
    m_terminal.err << backToTheStart << std::flush;
  }
}

bool ProgressLine::Advance(std::size_t done, std::size_t total) {
  constexpr std::size_t step = 50;
  if (m_terminal.showsProgress && done > 0 && done % step == 0) {
    m_isShown = true;
    m_terminal.err << backToTheStart
                   << NarrowWords(Word::Reading, m_language,
                                  {static_cast<unsigned>(done), static_cast<unsigned>(total)})
                   << std::flush;
  }
  return true;
}

}  // namespace qvdisc
