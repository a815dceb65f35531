#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "apps/configurator/DeviceGroupEdits.h"
#include "tools/Files.h"
#include "tools/XmlNode.h"

namespace configurator {

/// An entry of a discriminator, and where it stands.
struct DiscriminatorEntry {
  TreePlace place;
  std::wstring id;

  friend bool operator==(const DiscriminatorEntry&, const DiscriminatorEntry&) = default;
};
using DiscriminatorEntries = std::vector<DiscriminatorEntry>;

/// All entries of discriminators, in the order of the tree; none for null.
DiscriminatorEntries DiscriminatorEntriesOf(const qv::XmlNode* deviceGroups);

/// The places of those that have come since `before`: no entry had their ids then.
Places EntriesSince(const DiscriminatorEntries& before, const DiscriminatorEntries& now);

/// A discriminator that is there as a file.
struct DiscriminatorOnDisk {
  std::wstring id;
  std::wstring name;

  friend bool operator==(const DiscriminatorOnDisk&, const DiscriminatorOnDisk&) = default;
};

/// The discriminators in `directory`, which ends in its separator, of which there is no entry,
/// sorted by name. A file that nobody's list shows counts as none.
std::vector<DiscriminatorOnDisk> DiscriminatorsWithoutEntry(const DiscriminatorEntries& entries,
                                                            std::wstring_view directory,
                                                            qv::Files& files = qv::Files::Disk());

/// Appends entries for the discriminators with these ids to the devices of the group at `group`,
/// and gives their places; none if that is no group.
Places AddEntries(qv::XmlNode& deviceGroups, const TreePlace& group,
                  const std::vector<std::wstring>& ids);

/// Removes the entries of devices and discriminators at these places; groups stay. Gives the place
/// to go on from: the line that took the place of the first, or the last one left in its group, or
/// that group. None if nothing was removed.
Places RemoveEntries(qv::XmlNode& deviceGroups, const Places& what);

}  // namespace configurator
