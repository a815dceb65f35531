#include "checks/EntryCheck.h"

#include <set>
#include <utility>

#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

std::wstring NameOfGroup(const XmlNode& group, unsigned number) {
  const std::wstring name = FieldOf(group, tag::Name);
  return name.empty() ? Format(L"(%s %u)", {group.Tag(), number}) : name;
}

std::set<std::wstring> IdsOf(const SeenFiles& seen) {
  std::set<std::wstring> ids;
  for (const SeenFile& file : seen) {
    ids.insert(file.id);
  }
  return ids;
}

class EntryCheck {
 public:
  EntryCheck(const SeenFiles& seen, std::wstring configuration, Findings& findings)
      : m_seen(seen),
        m_ids(IdsOf(seen)),
        m_configuration(std::move(configuration)),
        m_findings(findings) {}

  /// The entries of this level and of its groups. The depth is bounded: a document is nested 512
  /// levels deep at most.
  void CheckLevel(const XmlNode& level, const std::wstring& place) {
    for (const XmlNode& device : ChildrenWithTag(level.Node(tag::Devices), tag::Device)) {
      if (FieldOf(device, tag::Type) == word::DiscriminatorDevice) {
        CheckEntry(FieldOf(device, tag::Id), place);
      }
    }
    if (const XmlNode* groups = level.Node(tag::Groups)) {
      unsigned number = 0;
      for (auto group = groups->ChildsBegin(); group != groups->ChildsEnd(); ++group) {
        CheckLevel(**group, place + L"/" + NameOfGroup(**group, ++number));
      }
    }
  }

  /// The files that no entry of the levels was of.
  void CheckFiles() {
    for (const SeenFile& file : m_seen) {
      if (file.isRead && !m_entries.contains(file.id)) {
        m_findings.push_back({.kind = FindingKind::DiscriminatorWithoutEntry, .file = file.file});
      }
    }
  }

 private:
  void CheckEntry(const std::wstring& id, const std::wstring& place) {
    if (!m_ids.contains(id)) {
      Tell(FindingKind::EntryWithoutDiscriminator, id, place);
    }
    if (!m_entries.insert(id).second) {
      Tell(FindingKind::DuplicateEntry, id, place);
    }
  }

  void Tell(FindingKind kind, const std::wstring& id, const std::wstring& place) {
    m_findings.push_back({.kind = kind, .file = m_configuration, .place = place, .value = id});
  }

  const SeenFiles& m_seen;
  const std::set<std::wstring> m_ids;
  const std::wstring m_configuration;
  Findings& m_findings;
  std::set<std::wstring> m_entries;
};

}  // namespace

void CheckEntries(const XmlNode* deviceGroups, const SeenFiles& seen,
                  const std::wstring& configuration, Findings& findings) {
  EntryCheck check(seen, configuration, findings);
  if (deviceGroups) {
    check.CheckLevel(*deviceGroups, tag::DeviceGroups);
  }
  check.CheckFiles();
}

}  // namespace qv
