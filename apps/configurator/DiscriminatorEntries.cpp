#include "apps/configurator/DiscriminatorEntries.h"

#include <algorithm>
#include <set>

#include "apps/configurator/DeviceGroupLines.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/FileNames.h"
#include "tools/Nodes.h"

namespace configurator {
namespace {

using qv::XmlNode;

/// The depth is bounded: a document is nested 512 levels deep at most.
void AddDiscriminators(const XmlNode& level, const TreePlace& place, DiscriminatorEntries& found) {
  TreePlace below = place;
  below.push_back(0);
  for (const auto& line : LinesOf(level)) {
    if (line.isGroup) {
      AddDiscriminators(*line.node, below, found);
    } else if (qv::FieldOf(*line.node, qv::tag::Type) == qv::word::DiscriminatorDevice) {
      found.push_back({below, qv::FieldOf(*line.node, qv::tag::Id)});
    }
    ++below.back();
  }
}

std::set<std::wstring> IdsOf(const DiscriminatorEntries& entries) {
  std::set<std::wstring> ids;
  for (const DiscriminatorEntry& entry : entries) {
    ids.insert(entry.id);
  }
  return ids;
}

std::wstring IdOfFile(std::wstring_view fileName) {
  return std::wstring(qv::IdOfStem(QVWideString(fileName)).ToView());
}

void AddEntry(XmlNode& devices, const std::wstring& id) {
  XmlNode* device = devices.NewChild(qv::tag::Device, nullptr);
  device->SetValue(qv::tag::Id, QVWideString(id));
  device->SetValue(qv::tag::Type, qv::word::DiscriminatorDevice);
}

TreePlace NearestPlace(const XmlNode& deviceGroups, TreePlace place) {
  while (!place.empty() && !Find(deviceGroups, place).node) {
    if (place.back() > 0) {
      --place.back();
    } else {
      place.pop_back();
    }
  }
  return place;
}

}  // namespace

DiscriminatorEntries DiscriminatorEntriesOf(const XmlNode* deviceGroups) {
  DiscriminatorEntries entries;
  if (deviceGroups) {
    AddDiscriminators(*deviceGroups, {}, entries);
  }
  return entries;
}

Places EntriesSince(const DiscriminatorEntries& before, const DiscriminatorEntries& now) {
  const auto known = IdsOf(before);
  Places places;
  for (const DiscriminatorEntry& entry : now) {
    if (!known.contains(entry.id)) {
      places.push_back(entry.place);
    }
  }
  return places;
}

std::vector<DiscriminatorOnDisk> DiscriminatorsWithoutEntry(const DiscriminatorEntries& entries,
                                                            std::wstring_view directory,
                                                            qv::Files& files) {
  const auto known = IdsOf(entries);
  const qv::DiscriminatorDirectory disk(QVWideString(directory), files);
  std::vector<DiscriminatorOnDisk> found;
  for (const std::wstring& file : disk.FileNames()) {
    const std::wstring id = IdOfFile(file);
    // Only what the entries lack is read.
    const auto shown =
        known.contains(id) ? std::nullopt : disk.Summary(file, qv::ShowConditions::Yes);
    if (shown) {
      found.push_back({id, std::wstring(shown->name.ToView())});
    }
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& one, const auto& other) { return one.name < other.name; });
  return found;
}

Places AddEntries(XmlNode& deviceGroups, const TreePlace& group,
                  const std::vector<std::wstring>& ids) {
  const auto line = Find(deviceGroups, group);
  if (!line.isGroup || ids.empty()) {
    return {};
  }
  TreePlace place = group;
  place.push_back(static_cast<int>(LinesOf(*line.node).size()));
  XmlNode& devices = FindOrMake(*line.node, qv::tag::Devices);
  Places places;
  for (const std::wstring& id : ids) {
    AddEntry(devices, id);
    places.push_back(place);
    ++place.back();
  }
  return places;
}

Places RemoveEntries(XmlNode& deviceGroups, const Places& what) {
  std::vector<LineOf<XmlNode>> lines;
  TreePlace first;
  for (const TreePlace& place : what) {
    const auto line = Find(deviceGroups, place);
    if (line.node && !line.isGroup) {
      first = lines.empty() ? place : std::min(first, place);
      lines.push_back(line);
    }
  }
  for (const auto& line : lines) {
    line.container->RemoveChild(line.node);
  }
  return lines.empty() ? Places() : Places{NearestPlace(deviceGroups, first)};
}

}  // namespace configurator
