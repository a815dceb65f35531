#pragma once

#include <cstddef>
#include <string>

/// Why the value of an option can't be taken, in words; empty if it can.
namespace qvdisc {

/// Whether it is UTF-8.
std::string NoText(const std::string& text);

/// Whether it also is something that a file can hold.
std::string NoFieldText(const std::string& text);

/// Whether it also can be typed into the field of a name, which takes `most` characters.
std::string NoName(const std::string& text, std::size_t most);

}  // namespace qvdisc
