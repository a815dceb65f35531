#pragma once

#include <string>

namespace qvdisc {

/// The payload of discriminators in `text`, such as the text of a mail: `text` itself if it is one,
/// else the first element in it that holds discriminators, without what stands before and after it.
/// `text` as it stands if there is none.
std::string PayloadIn(std::string text);

}  // namespace qvdisc
