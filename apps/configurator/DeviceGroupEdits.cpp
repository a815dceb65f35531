#include "apps/configurator/DeviceGroupEdits.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#include "apps/configurator/DeviceGroupLines.h"
#include "discriminator/Fields.h"
#include "tools/QVBasicString.h"

namespace configurator {
namespace {

using qv::XmlNode;
using NodeSet = std::set<const XmlNode*>;

using Line = LineOf<XmlNode>;

bool IsAtOrBelow(const TreePlace& place, const TreePlace& above) {
  return above.size() <= place.size() && std::equal(above.begin(), above.end(), place.begin());
}

/// In the order of the tree, without what stands below another or comes twice.
Places Outermost(Places places) {
  std::sort(places.begin(), places.end());
  Places outermost;
  for (TreePlace& place : places) {
    if (outermost.empty() || !IsAtOrBelow(place, outermost.back())) {
      outermost.push_back(std::move(place));
    }
  }
  return outermost;
}

/// How many groups stand in each other from this line down.
template <class Node>
int Depth(const LineOf<Node>& line) {
  if (!line.isGroup) {
    return 0;
  }
  int below = 0;
  for (const auto& child : LinesOf(*line.node)) {
    below = std::max(below, Depth(child));
  }
  return below + 1;
}

/// The children of a level before which something is put, or null for behind all.
struct Gap {
  const XmlNode* group = nullptr;
  const XmlNode* device = nullptr;
};

/// The gap before the row `row`, between lines that aren't `moved` themselves.
Gap GapAt(XmlNode& level, std::optional<int> row, const std::vector<Line>& moved) {
  Gap gap;
  const auto lines = LinesOf(level);
  for (std::size_t i = lines.size(); row && i > 0 && static_cast<int>(i) > *row; --i) {
    const Line& line = lines[i - 1];
    if (std::find(moved.begin(), moved.end(), line) == moved.end()) {
      (line.isGroup ? gap.group : gap.device) = line.node;
    }
  }
  return gap;
}

/// Moves the line's node to the end of `container`, as a copy.
XmlNode* Transfer(const Line& line, XmlNode& container) {
  XmlNode* copy = container.NewChild(std::wstring(line.node->Tag().ToView()).c_str(), nullptr);
  *copy = *line.node;
  line.container->RemoveChild(line.node);
  return copy;
}

/// Moves those of `lines` that are groups, or those that are devices, into `level`, before the
/// child `before` or behind all for null. Gives the nodes that stand there now.
NodeSet MoveKind(const std::vector<Line>& lines, bool areGroups, XmlNode& level,
                 const XmlNode* before) {
  const wchar_t* const tag = areGroups ? qv::tag::Groups : qv::tag::Devices;
  NodeSet moved;
  for (const Line& line : lines) {
    if (line.isGroup == areGroups) {
      moved.insert(Transfer(line, FindOrMake(level, tag)));
    }
  }
  if (!moved.empty() && before) {
    XmlNode& container = *level.Node(tag);
    const auto end = container.ChildsEnd();
    std::rotate(std::find(container.ChildsBegin(), end, before),
                std::prev(end, static_cast<std::ptrdiff_t>(moved.size())), end);
  }
  return moved;
}

/// Adds the place of each of `nodes` that stands below `level`, which is at `place`.
void AddPlaces(const XmlNode& level, const TreePlace& place, const NodeSet& nodes, Places& places) {
  TreePlace below = place;
  below.push_back(0);
  for (const auto& line : LinesOf(level)) {
    if (nodes.count(line.node) > 0) {
      places.push_back(below);
    } else if (line.isGroup) {
      AddPlaces(*line.node, below, nodes, places);
    }
    ++below.back();
  }
}

void AddGroups(const XmlNode& level, const TreePlace& place, std::vector<GroupLine>& groups) {
  TreePlace below = place;
  below.push_back(0);
  for (const auto& line : LinesOf(level)) {
    if (line.isGroup) {
      groups.push_back({below, std::wstring(line.node->Value(qv::tag::Name).ToView())});
      AddGroups(*line.node, below, groups);
      ++below.back();
    }
  }
}

}  // namespace

TreePlace GroupFor(const XmlNode& deviceGroups, const Places& selected) {
  const TreePlace place = selected.size() == 1 ? selected.front() : TreePlace();
  return IsGroupPlace(deviceGroups, place) ? place : ParentOf(place);
}

TreePlace ParentOf(TreePlace place) {
  place.pop_back();
  return place;
}

std::vector<GroupLine> GroupsOf(const XmlNode& deviceGroups) {
  std::vector<GroupLine> groups;
  AddGroups(deviceGroups, {}, groups);
  return groups;
}

bool IsGroupPlace(const XmlNode& deviceGroups, const TreePlace& place) {
  return Find(deviceGroups, place).isGroup;
}

Siblings SiblingsOf(const XmlNode& deviceGroups, const TreePlace& place) {
  const auto line = Find(deviceGroups, place);
  if (place.empty() || !line.node) {
    return {};
  }
  const auto lines = LinesOf(*Find(deviceGroups, ParentOf(place)).node);
  const auto isSibling = [&](const auto& other) { return other.isGroup == line.isGroup; };
  const auto first = std::find_if(lines.begin(), lines.end(), isSibling);
  return {static_cast<int>(first - lines.begin()),
          static_cast<int>(std::count_if(first, lines.end(), isSibling))};
}

std::optional<TreePlace> AddGroup(XmlNode& deviceGroups, const TreePlace& parent,
                                  std::wstring_view name) {
  const Line line = Find(deviceGroups, parent);
  if (!line.isGroup || parent.size() >= maxGroupDepth) {
    return std::nullopt;
  }
  XmlNode& groups = FindOrMake(*line.node, qv::tag::Groups);
  groups.NewChild(L"group", nullptr)->SetValue(qv::tag::Name, QVWideString(name));
  TreePlace place = parent;
  place.push_back(static_cast<int>(std::distance(groups.ChildsBegin(), groups.ChildsEnd())) - 1);
  return place;
}

bool RenameGroup(XmlNode& deviceGroups, const TreePlace& place, std::wstring_view name) {
  const Line line = Find(deviceGroups, place);
  if (!line.isGroup || place.empty()) {
    return false;
  }
  line.node->SetValue(qv::tag::Name, QVWideString(name));
  return true;
}

bool RemoveGroup(XmlNode& deviceGroups, const TreePlace& place) {
  const Line group = Find(deviceGroups, place);
  if (!group.isGroup || place.empty()) {
    return false;
  }
  XmlNode& around = *Find(deviceGroups, ParentOf(place)).node;
  const auto lines = LinesOf(*group.node);
  MoveKind(lines, true, around, group.node);
  MoveKind(lines, false, around, nullptr);
  group.container->RemoveChild(group.node);
  return true;
}

bool CanMove(const XmlNode& deviceGroups, const Places& what, const TreePlace& group) {
  const auto fits = [&](const TreePlace& place) {
    const auto line = Find(deviceGroups, place);
    return !place.empty() && line.node && !(line.isGroup && IsAtOrBelow(group, place)) &&
           (group.size() < place.size() ||
            static_cast<int>(group.size()) + Depth(line) <= maxGroupDepth);
  };
  return IsGroupPlace(deviceGroups, group) && std::all_of(what.begin(), what.end(), fits);
}

Places MoveLines(XmlNode& deviceGroups, Places what, const TreePlace& group,
                 std::optional<int> row) {
  if (!CanMove(deviceGroups, what, group)) {
    return {};
  }
  std::vector<Line> lines;
  for (const TreePlace& place : Outermost(std::move(what))) {
    lines.push_back(Find(deviceGroups, place));
  }
  XmlNode& level = *Find(deviceGroups, group).node;
  const Gap gap = GapAt(level, row, lines);
  NodeSet moved = MoveKind(lines, true, level, gap.group);
  moved.merge(MoveKind(lines, false, level, gap.device));
  Places places;
  AddPlaces(deviceGroups, {}, moved, places);
  return places;
}

}  // namespace configurator
