#pragma once

#include <iosfwd>
#include <memory>
#include <random>
#include <string>

#include "tests/support/Parsed.h"
#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

namespace qv {

/// The tree on one line, values in quotes and children in brackets, as in `a="1"[b c="x"]`. Line
/// feed, carriage return and tab stand as `\n`, `\r` and `\t`.
std::string Outline(const XmlNode& node);

/// A tree that XML can carry, of some ten nodes: any mixture of values and children, and values of
/// all kinds of characters.
std::unique_ptr<XmlNode> RandomTree(std::mt19937& random);

/// A chain of `levels` nodes, each the only child of the one above.
std::unique_ptr<XmlNode> Chain(int levels);

/// Shows a tree where a test fails.
void PrintTo(const XmlNode& node, std::ostream* out);

}  // namespace qv

/// Shows a text where a test fails.
void PrintTo(const QVWideString& text, std::ostream* out);
