#pragma once

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "tools/XmlNode.h"

namespace qv {

/// The first child with this tag, made if there is none.
inline XmlNode& FindOrMake(XmlNode& level, const wchar_t* tag) {
  XmlNode* node = level.Node(tag);
  return node ? *node : *level.NewChild(tag, nullptr);
}

/// Moves the first entry at the top into some group, which may be made for it: what the host's user
/// does between two runs of the manager.
inline void MoveEntryIntoGroup(XmlNode& deviceGroups, std::mt19937& random) {
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  XmlNode* devices = deviceGroups.Node(L"devices");
  if (!devices || devices->ChildsBegin() == devices->ChildsEnd()) {
    return;
  }
  XmlNode* level = &deviceGroups;
  for (int depth = below(3); depth >= 0; --depth) {
    level = &FindOrMake(FindOrMake(*level, L"groups"), below(2) == 0 ? L"group" : L"any");
  }
  XmlNode* entry = *devices->ChildsBegin();
  *FindOrMake(*level, L"devices").NewChild(L"device", nullptr) = *entry;
  devices->RemoveChild(entry);
}

/// How many entries each id has, at any level; all of them have to be of discriminators.
inline std::map<std::wstring, int> EntriesOf(const XmlNode& level) {
  std::map<std::wstring, int> entries;
  if (const XmlNode* devices = level.Node(L"devices")) {
    for (auto child = devices->ChildsBegin(); child != devices->ChildsEnd(); ++child) {
      EXPECT_EQ((*child)->Value(L"type"), L"R$DISC");
      ++entries[std::wstring((*child)->Value(L"id").ToView())];
    }
  }
  if (const XmlNode* groups = level.Node(L"groups")) {
    for (auto group = groups->ChildsBegin(); group != groups->ChildsEnd(); ++group) {
      for (const auto& [id, count] : EntriesOf(**group)) {
        entries[id] += count;
      }
    }
  }
  return entries;
}

}  // namespace qv
