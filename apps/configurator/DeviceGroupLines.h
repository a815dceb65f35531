#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

#include "apps/configurator/DeviceGroupEdits.h"
#include "discriminator/Fields.h"
#include "tools/XmlNode.h"

/// How the rules of the tree of device groups find its lines in the document.
namespace configurator {

/// A line of the tree, and the container that its node is a child of. `Node` is `XmlNode`, or
/// `const XmlNode` where it is only read.
template <class Node>
struct LineOf {
  Node* container = nullptr;
  Node* node = nullptr;
  bool isGroup = false;

  friend bool operator==(const LineOf&, const LineOf&) = default;
};

/// Appends a line for each child of `container`, which may be null.
template <class Node>
void AddLines(Node* container, bool areGroups, std::vector<LineOf<Node>>& lines) {
  if (container) {
    std::transform(container->ChildsBegin(), container->ChildsEnd(), std::back_inserter(lines),
                   [&](Node* child) {
                     return LineOf<Node>{container, child, areGroups};
                   });
  }
}

/// The lines directly below `level`, by their rows.
template <class Node>
std::vector<LineOf<Node>> LinesOf(Node& level) {
  std::vector<LineOf<Node>> lines;
  AddLines(level.Node(qv::tag::Groups), true, lines);
  AddLines(level.Node(qv::tag::Devices), false, lines);
  return lines;
}

/// The line at `place`; one without a node if there is none.
template <class Node>
LineOf<Node> Find(Node& deviceGroups, const TreePlace& place) {
  LineOf<Node> line{nullptr, &deviceGroups, true};
  for (const int row : place) {
    if (!line.isGroup) {
      return {};
    }
    const auto lines = LinesOf(*line.node);
    if (row < 0 || row >= static_cast<int>(lines.size())) {
      return {};
    }
    line = lines[static_cast<std::size_t>(row)];
  }
  return line;
}

/// The container of `level` with this tag, made if there is none.
inline qv::XmlNode& FindOrMake(qv::XmlNode& level, const wchar_t* containerTag) {
  qv::XmlNode* container = level.Node(containerTag);
  return container ? *container : *level.NewChild(containerTag, nullptr);
}

}  // namespace configurator
