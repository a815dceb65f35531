#include "apps/qvdisc/InstallationCheck.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"
#include "tools/Nodes.h"
#include "tools/XmlReader.h"

namespace qvdisc {
namespace {

using Loaded = qv::Configuration::Loaded;
using qv::FieldOf;
using qv::XmlNode;

constexpr wchar_t configurationFile[] = L"configuration.xml";

/// What is kept of a file that could be read.
struct ReadFile {
  std::wstring file;
  std::wstring id;
  std::wstring name;
};

std::wstring UpperCased(const std::wstring& text) {
  QVWideString upper{std::wstring_view{text}};
  upper.MakeUpper();
  return std::wstring(upper.ToView());
}

std::wstring IdInFileName(const std::wstring& file) {
  return std::wstring(qv::IdOfStem(QVWideString(std::wstring_view{file})).ToView());
}

class InstallationCheck {
 public:
  InstallationCheck(const Checked& checked, qv::Files& files)
      : m_checked(checked), m_files(files) {}

  CheckedInstallation Run(qv::Progress& progress) {
    CheckedInstallation result;
    result.files = m_files.Walk((m_checked.directory + qv::discriminatorPattern).ToView());
    for (std::size_t i = 0; i < result.files.size(); ++i) {
      progress.Advance(i, result.files.size());
      CheckFile(result.files[i]);
    }
    CheckIndexes();
    CheckTwins();
    CheckConfiguration();
    result.findings = std::move(m_findings);
    std::stable_sort(result.findings.begin(), result.findings.end(), ComesBefore);
    return result;
  }

 private:
  static bool ComesBefore(const Finding& a, const Finding& b) {
    const auto rank = [](const Finding& finding) {
      return std::pair(finding.file == configurationFile, std::wstring_view{finding.file});
    };
    return rank(a) < rank(b);
  }

  QVWideString PathOf(const std::wstring& file) const {
    return m_checked.directory + QVWideString(std::wstring_view{file});
  }

  /// The root of a file, or null once it has been told why it can't be read.
  std::unique_ptr<XmlNode> Read(const std::wstring& file) {
    qv::XmlError error;
    auto root = qv::ReadXmlFile(PathOf(file).ToView(), m_files, &error);
    if (!root) {
      Tell({.kind = FindingKind::Unreadable,
            .file = file,
            .value = std::wstring(error.reason.begin(), error.reason.end()),
            .line = static_cast<unsigned>(error.line),
            .column = static_cast<unsigned>(error.column)});
    }
    return root;
  }

  void CheckFile(const std::wstring& file) {
    const auto root = Read(file);
    if (!root) {
      m_ids.insert(IdInFileName(file));
      m_ofUnknownIndex.insert(file);
      return;
    }
    const ReadFile read{file, FieldOf(*root, qv::tag::Id), FieldOf(*root, qv::tag::Name)};
    CheckType(*root, file);
    if (AgreesWithFileName(read)) {
      CheckIndex(*root, file);
    } else {
      m_ofUnknownIndex.insert(file);
    }
    const auto inside = CheckDocument(*root, file);
    m_findings.insert(m_findings.end(), inside.begin(), inside.end());
    m_ids.insert(read.id);
    m_read.push_back(read);
  }

  void CheckType(const XmlNode& root, const std::wstring& file) {
    if (m_checked.configuration.IsEmbedded() &&
        FieldOf(root, qv::tag::Type) == qv::word::Conditions) {
      Tell({.kind = FindingKind::HiddenType, .file = file});
    }
  }

  bool AgreesWithFileName(const ReadFile& read) {
    const std::wstring_view stem = *qv::WithoutExtension(read.file);
    if (qv::FileStem(QVWideString(read.id.c_str()), QVWideString(read.name.c_str())) == stem) {
      return true;
    }
    const auto name = qv::NameOfStem(stem);
    if (!name) {
      Tell({.kind = FindingKind::FileName, .file = read.file});
      return false;
    }
    const std::wstring id = IdInFileName(read.file);
    if (id != read.id) {
      Tell({.kind = FindingKind::IdDiffers, .file = read.file, .value = read.id, .expected = id});
    }
    if (*name != read.name) {
      Tell({.kind = FindingKind::NameDiffers,
            .file = read.file,
            .value = read.name,
            .expected = std::wstring(*name)});
    }
    return false;
  }

  void CheckIndex(const XmlNode& root, const std::wstring& file) {
    const XmlNode* hourTypes = root.Node(qv::tag::HourTypes);
    if (!hourTypes) {
      return;
    }
    const QVWideString path = qv::IndexPath(PathOf(file));
    m_indexesInUse.insert(std::wstring(path.ToView()));
    if (!m_files.Exists(path.ToView())) {
      Tell({.kind = FindingKind::IndexMissing, .file = file});
      return;
    }
    const auto index = qv::ReadXmlFile(path.ToView(), m_files);
    if (!index) {
      Tell({.kind = FindingKind::IndexUnreadable, .file = file});
    } else if (*index != *qv::MakeIndexDocument(*hourTypes)->Root()) {
      Tell({.kind = FindingKind::IndexStale, .file = file});
    }
  }

  void CheckIndexes() {
    const QVWideString pattern = qv::IndexPath(m_checked.directory + qv::discriminatorPattern);
    for (const std::wstring& file : m_files.Walk(pattern.ToView())) {
      const bool isUnknown = m_ofUnknownIndex.count(file.substr(0, file.size() - 1)) > 0;
      if (!isUnknown && m_indexesInUse.count(std::wstring(PathOf(file).ToView())) == 0) {
        Tell({.kind = FindingKind::IndexWithoutUse, .file = file});
      }
    }
  }

  /// Files with an id, or a name but for case, that another one has.
  void CheckTwins() {
    std::map<std::wstring, int> ids;
    std::map<std::wstring, int> names;
    for (const ReadFile& read : m_read) {
      ++ids[read.id];
      ++names[UpperCased(read.name)];
    }
    for (const ReadFile& read : m_read) {
      if (ids[read.id] > 1) {
        Tell({.kind = FindingKind::DuplicateId, .file = read.file, .value = read.id});
      }
      if (names[UpperCased(read.name)] > 1) {
        Tell({.kind = FindingKind::DuplicateName, .file = read.file, .value = read.name});
      }
    }
  }

  void CheckConfiguration() {
    if (m_checked.loaded == Loaded::Unreadable) {
      Read(configurationFile);
    } else if (m_checked.loaded == Loaded::Foreign) {
      Tell({.kind = FindingKind::ForeignConfiguration, .file = configurationFile});
    } else {
      CheckEntries();
    }
  }

  void CheckEntries() {
    if (const XmlNode* groups = m_checked.configuration.DeviceGroups()) {
      CheckLevel(*groups, qv::tag::DeviceGroups);
    }
    for (const ReadFile& read : m_read) {
      if (m_entries.count(read.id) == 0) {
        Tell({.kind = FindingKind::DiscriminatorWithoutEntry, .file = read.file});
      }
    }
  }

  /// The depth is bounded: a document is nested 512 levels deep at most.
  void CheckLevel(const XmlNode& level, const std::wstring& place) {
    for (const XmlNode& entry :
         qv::ChildrenWithTag(level.Node(qv::tag::Devices), qv::tag::Device)) {
      if (FieldOf(entry, qv::tag::Type) == qv::word::DiscriminatorDevice) {
        CheckEntry(FieldOf(entry, qv::tag::Id), place);
      }
    }
    if (const XmlNode* groups = level.Node(qv::tag::Groups)) {
      unsigned number = 0;
      for (auto group = groups->ChildsBegin(); group != groups->ChildsEnd(); ++group) {
        CheckLevel(**group, place + L"/" + NameOfGroup(**group, ++number));
      }
    }
  }

  static std::wstring NameOfGroup(const XmlNode& group, unsigned number) {
    const std::wstring name = FieldOf(group, qv::tag::Name);
    return name.empty() ? qv::Format(L"(%s %u)", {group.Tag(), number}) : name;
  }

  void CheckEntry(const std::wstring& id, const std::wstring& place) {
    if (m_ids.count(id) == 0) {
      Tell({.kind = FindingKind::EntryWithoutDiscriminator,
            .file = configurationFile,
            .place = place,
            .value = id});
    }
    if (!m_entries.insert(id).second) {
      Tell({.kind = FindingKind::DuplicateEntry,
            .file = configurationFile,
            .place = place,
            .value = id});
    }
  }

  void Tell(Finding finding) { m_findings.push_back(std::move(finding)); }

  const Checked& m_checked;
  qv::Files& m_files;
  std::vector<Finding> m_findings;
  std::vector<ReadFile> m_read;
  std::set<std::wstring> m_ids;             ///< of all files; of an unreadable one as its name says
  std::set<std::wstring> m_ofUnknownIndex;  ///< files of which nobody knows what index they need
  std::set<std::wstring> m_indexesInUse;    ///< paths
  std::set<std::wstring> m_entries;
};

}  // namespace

CheckedInstallation CheckInstallation(const Checked& checked, qv::Files& files,
                                      qv::Progress& progress) {
  return InstallationCheck(checked, files).Run(progress);
}

}  // namespace qvdisc
