#include "apps/qvdisc/Check.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"
#include "tools/Names.h"
#include "tools/XmlReader.h"

namespace qvdisc {
namespace {

using qv::XmlNode;

/// What is kept of a file that could be read.
struct ReadFile {
  std::wstring file;
  std::wstring id;
  std::wstring name;
};

class InstallationCheck {
 public:
  InstallationCheck(const QVWideString& directory, const qv::Configuration& configuration,
                    qv::Files& files)
      : m_directory(directory), m_configuration(configuration), m_files(files) {}

  CheckedInstallation Run() {
    CheckedInstallation checked;
    checked.files = m_files.Walk((m_directory + qv::discriminatorPattern).ToView());
    for (const std::wstring& file : checked.files) {
      CheckFile(file);
    }
    CheckIndexes();
    CheckTwins();
    CheckEntries();
    checked.findings = std::move(m_findings);
    std::stable_sort(checked.findings.begin(), checked.findings.end(), ComesBefore);
    return checked;
  }

 private:
  /// By file; what belongs to no file comes last.
  static bool ComesBefore(const Finding& a, const Finding& b) {
    return a.file.empty() || b.file.empty() ? !a.file.empty() && b.file.empty() : a.file < b.file;
  }

  std::wstring PathOf(const std::wstring& file) const {
    return std::wstring(m_directory.ToView()) + file;
  }

  void CheckFile(const std::wstring& file) {
    qv::XmlError error;
    const auto root = qv::ReadXmlFile(PathOf(file), m_files, &error);
    if (!root) {
      m_findings.push_back({.kind = Word::Unreadable,
                            .file = file,
                            .place = {},
                            .value = std::wstring(error.reason.begin(), error.reason.end()),
                            .expected = {},
                            .line = static_cast<unsigned>(error.line),
                            .column = static_cast<unsigned>(error.column)});
      m_ids.insert(IdInFileName(file));
      m_unclear.insert(file);
      return;
    }
    const ReadFile read{file, Field(*root, qv::tag::Id), Field(*root, qv::tag::Name)};
    CheckType(*root, file);
    if (AgreesWithFileName(read)) {
      CheckIndex(*root, file);
    } else {
      m_unclear.insert(file);
    }
    const auto inside = CheckDocument(*root, file);
    m_findings.insert(m_findings.end(), inside.begin(), inside.end());
    m_ids.insert(read.id);
    m_read.push_back(read);
  }

  static std::wstring Field(const XmlNode& root, const wchar_t* tag) {
    return std::wstring(root.Value(tag, L"").ToView());
  }

  static std::wstring IdInFileName(const std::wstring& file) {
    return std::wstring(qv::IdOfStem(QVWideString(std::wstring_view(file))).ToView());
  }

  void CheckType(const XmlNode& root, const std::wstring& file) {
    if (m_configuration.IsEmbedded() && Field(root, qv::tag::Type) == qv::word::Conditions) {
      Tell({.kind = Word::HiddenType, .file = file});
    }
  }

  bool AgreesWithFileName(const ReadFile& read) {
    const std::wstring_view stem = *qv::WithoutExtension(read.file);
    if (stem == read.id + L"." + read.name) {
      return true;
    }
    const auto name = qv::NameOfStem(stem);
    if (!name) {
      Tell({.kind = Word::FileNameForm, .file = read.file});
      return false;
    }
    const std::wstring id = IdInFileName(read.file);
    if (id != read.id) {
      Tell({.kind = Word::IdDiffers, .file = read.file, .value = read.id, .expected = id});
    }
    if (*name != read.name) {
      Tell({.kind = Word::NameDiffers,
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
    const std::wstring indexFile = file + L"I";
    m_indexesInUse.insert(indexFile);
    if (!m_files.OpenForReading(PathOf(indexFile))) {
      Tell({.kind = Word::IndexMissing, .file = file});
      return;
    }
    const auto index = qv::ReadXmlFile(PathOf(indexFile), m_files);
    if (!index) {
      Tell({.kind = Word::IndexUnreadable, .file = file});
    } else if (*index != *qv::MakeIndexDocument(*hourTypes)->Root()) {
      Tell({.kind = Word::IndexStale, .file = file});
    }
  }

  void CheckIndexes() {
    const std::wstring pattern =
        std::wstring(m_directory.ToView()) + qv::discriminatorPattern + L"I";
    for (const std::wstring& file : m_files.Walk(pattern)) {
      const bool unclear = m_unclear.count(file.substr(0, file.size() - 1)) > 0;
      if (m_indexesInUse.count(file) == 0 && !unclear) {
        Tell({.kind = Word::IndexWithoutUse, .file = file});
      }
    }
  }

  /// Files with an id, or a name but for case, that another one has.
  void CheckTwins() {
    auto files = m_read;
    std::sort(files.begin(), files.end(),
              [](const ReadFile& a, const ReadFile& b) { return a.id < b.id; });
    TellTwins(files, Word::DuplicateId, &ReadFile::id,
              [](const ReadFile& a, const ReadFile& b) { return a.id == b.id; });
    std::sort(files.begin(), files.end(), [](const ReadFile& a, const ReadFile& b) {
      return qv::CompareLowered(a.name, b.name) < 0;
    });
    TellTwins(
        files, Word::DuplicateName, &ReadFile::name,
        [](const ReadFile& a, const ReadFile& b) { return qv::EqualUppered(a.name, b.name); });
  }

  template <class Equal>
  void TellTwins(const std::vector<ReadFile>& files, Word kind, std::wstring ReadFile::*field,
                 Equal equal) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      const bool before = i > 0 && equal(files[i - 1], files[i]);
      const bool behind = i + 1 < files.size() && equal(files[i], files[i + 1]);
      if (before || behind) {
        Tell({.kind = kind, .file = files[i].file, .value = files[i].*field});
      }
    }
  }

  void CheckEntries() {
    if (const XmlNode* groups = m_configuration.DeviceGroups()) {
      CheckLevel(*groups, qv::tag::DeviceGroups);
    }
    for (const ReadFile& read : m_read) {
      if (m_entries.count(read.id) == 0) {
        Tell({.kind = Word::DiscriminatorWithoutEntry, .file = read.file});
      }
    }
  }

  /// The depth is bounded: a document is nested 512 levels deep at most.
  void CheckLevel(const XmlNode& level, const std::wstring& place) {
    if (const XmlNode* devices = level.Node(qv::tag::Devices)) {
      for (auto entry = devices->ChildsBegin(); entry != devices->ChildsEnd(); ++entry) {
        if (Field(**entry, qv::tag::Type) == qv::word::DiscriminatorDevice) {
          CheckEntry(Field(**entry, qv::tag::Id), place);
        }
      }
    }
    if (const XmlNode* groups = level.Node(qv::tag::Groups)) {
      for (auto group = groups->ChildsBegin(); group != groups->ChildsEnd(); ++group) {
        CheckLevel(**group, place + L"/" + Field(**group, qv::tag::Name));
      }
    }
  }

  void CheckEntry(const std::wstring& id, const std::wstring& place) {
    if (m_ids.count(id) == 0) {
      Tell({.kind = Word::EntryWithoutDiscriminator, .place = place, .value = id});
    }
    if (!m_entries.insert(id).second) {
      Tell({.kind = Word::DuplicateEntry, .place = place, .value = id});
    }
  }

  void Tell(Finding finding) { m_findings.push_back(std::move(finding)); }

  const QVWideString& m_directory;
  const qv::Configuration& m_configuration;
  qv::Files& m_files;
  std::vector<Finding> m_findings;
  std::vector<ReadFile> m_read;
  std::set<std::wstring> m_ids;      ///< of all files; of one that can't be read, as its name says
  std::set<std::wstring> m_unclear;  ///< files of which nobody knows what index they need
  std::set<std::wstring> m_indexesInUse;
  std::set<std::wstring> m_entries;
};

}  // namespace

CheckedInstallation CheckInstallation(const QVWideString& directory,
                                      const qv::Configuration& configuration, qv::Files& files) {
  return InstallationCheck(directory, configuration, files).Run();
}

}  // namespace qvdisc
