#pragma once

#include <string>

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/Outcome.h"

namespace qvdisc {

/// The outcome as one JSON document, in UTF-8, whose form docs/qvdisc.md describes.
std::string JsonReport(const Arguments& arguments, const Outcome& outcome);

/// The outcome for people: aligned columns, headings in bold where the terminal shows them.
std::string TextReport(const Arguments& arguments, const Outcome& outcome, bool isTerminal);

}  // namespace qvdisc
