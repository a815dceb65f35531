#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/XmlNode.h"

namespace configurator {

/// Where a line of the tree of device groups stands: its row at each level from the top down, in
/// which the groups of a level come before its devices, as `ReadDeviceTree` gives them. Empty for
/// what holds the top level. A place that isn't there names nothing, and edits refuse it.
using TreePlace = std::vector<int>;
using Places = std::vector<TreePlace>;

/// The place of the group that holds the line at `place`, which isn't empty.
TreePlace ParentOf(TreePlace place);

/// How many groups may stand in each other. A file nested too deep could not be read again.
inline constexpr int maxGroupDepth = 100;

/// Whether a group stands at `place`; the empty place counts as one.
bool IsGroupPlace(const qv::XmlNode& deviceGroups, const TreePlace& place);

/// The group into which something new goes: the one that is selected, or the one around the only
/// selected line, or else the top.
TreePlace GroupFor(const qv::XmlNode& deviceGroups, const Places& selected);

/// A group and where it stands.
struct GroupLine {
  TreePlace place;
  std::wstring name;

  friend bool operator==(const GroupLine&, const GroupLine&) = default;
};
/// All groups, from the top down, each before those in it.
std::vector<GroupLine> GroupsOf(const qv::XmlNode& deviceGroups);

/// How many rows of the kind of `place`, groups or devices, its level has, and the first of them.
struct Siblings {
  int first = 0;
  int count = 0;

  friend bool operator==(const Siblings&, const Siblings&) = default;
};
Siblings SiblingsOf(const qv::XmlNode& deviceGroups, const TreePlace& place);

/// Makes a group after those of the group at `parent`, and gives its place; nothing if `parent` is
/// no group or stands too deep.
std::optional<TreePlace> AddGroup(qv::XmlNode& deviceGroups, const TreePlace& parent,
                                  std::wstring_view name);

/// Whether there was another group than the top at `place`, which now has the name.
bool RenameGroup(qv::XmlNode& deviceGroups, const TreePlace& place, std::wstring_view name);

/// Removes the group at `place`; false if there is none. What it held moves into the group around
/// it: its groups to where it stood, its devices behind those that are there.
bool RemoveGroup(qv::XmlNode& deviceGroups, const TreePlace& place);

/// Whether all lines of `what` can move into the group at `group`. A group can't move into itself
/// or below itself, nor can any group come to stand deeper than it does and too deep.
bool CanMove(const qv::XmlNode& deviceGroups, const Places& what, const TreePlace& group);

/// Moves lines into the group at `group`, before its row `row`, or behind all others without one,
/// in the order in which they stand. A group that would come to stand among the devices comes last
/// of the groups, and a device among the groups first of the devices. What stands below another
/// line of `what` moves along with that and stays where it is in it.
///
/// Gives the new places of what was moved, in order; none if `CanMove` is false.
Places MoveLines(qv::XmlNode& deviceGroups, Places what, const TreePlace& group,
                 std::optional<int> row);

}  // namespace configurator
