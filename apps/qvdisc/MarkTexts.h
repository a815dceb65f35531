#pragma once

#include <string>
#include <vector>

namespace qvdisc {

/// What the verbs for the calendar take as texts, to be turned into values once all of them are
/// known to be good.
struct MarkTexts {
  std::vector<std::string> words;  ///< the dates and, of `mark`, the day type behind them
  std::string weekdays;
  std::string months;
  std::string year;
};

}  // namespace qvdisc
