#include "checks/InstallationCheck.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include "checks/DocumentCheck.h"
#include "checks/EntryCheck.h"
#include "checks/FileNameCheck.h"
#include "checks/IndexCheck.h"
#include "checks/SeenFile.h"
#include "checks/TwinCheck.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"
#include "tools/XmlReader.h"

namespace qv {
namespace {

constexpr wchar_t configurationFile[] = L"configuration.xml";

bool ComesBefore(const Finding& a, const Finding& b) {
  const auto rank = [](const Finding& finding) {
    return std::pair(finding.file == configurationFile, std::wstring_view{finding.file});
  };
  return rank(a) < rank(b);
}

class InstallationCheck {
 public:
  explicit InstallationCheck(const InstallationToCheck& installation)
      : m_installation(installation),
        m_directory(installation.directory, installation.files),
        m_indexes(m_directory, installation.files) {}

  CheckedInstallation Run(Progress& progress) {
    CheckedInstallation result;
    result.files = m_directory.FileNames();
    for (std::size_t i = 0; i < result.files.size(); ++i) {
      progress.Advance(i, result.files.size());
      m_seen.push_back(CheckFile(result.files[i]));
    }
    m_indexes.CheckOthers(m_findings);
    CheckTwins(m_seen, m_findings);
    CheckConfiguration();
    result.findings = std::move(m_findings);
    std::stable_sort(result.findings.begin(), result.findings.end(), ComesBefore);
    return result;
  }

 private:
  SeenFile CheckFile(const std::wstring& file) {
    const auto root = Read(file);
    if (!root) {
      m_indexes.LeaveAlone(file);
      return {file, false, IdInFileName(file)};
    }
    SeenFile seen{file, true, FieldOf(*root, tag::Id), FieldOf(*root, tag::Name)};
    CheckType(*root, file);
    if (CheckFileName(seen, m_findings)) {
      m_indexes.Check(file, *root, m_findings);
    } else {
      m_indexes.LeaveAlone(file);
    }
    for (Finding& finding : CheckDocument(*root, m_installation.drivers)) {
      finding.file = file;
      m_findings.push_back(std::move(finding));
    }
    return seen;
  }

  /// The root of a file, or null once it has been told why it can't be read.
  std::unique_ptr<XmlNode> Read(const std::wstring& file) {
    XmlError error;
    auto root = ReadXmlFile(m_directory.PathOf(file).ToView(), m_installation.files, &error);
    if (!root) {
      m_findings.push_back({.kind = FindingKind::Unreadable,
                            .file = file,
                            .value = std::wstring(error.reason.begin(), error.reason.end()),
                            .line = static_cast<unsigned>(error.line),
                            .column = static_cast<unsigned>(error.column)});
    }
    return root;
  }

  void CheckType(const XmlNode& root, const std::wstring& file) {
    if (m_installation.isEmbedded && FieldOf(root, tag::Type) == word::Conditions) {
      m_findings.push_back({.kind = FindingKind::HiddenType, .file = file});
    }
  }

  void CheckConfiguration() {
    switch (m_installation.configuration) {
      case ConfigurationState::Unreadable:
        Read(configurationFile);
        break;
      case ConfigurationState::Foreign:
        m_findings.push_back(
            {.kind = FindingKind::ForeignConfiguration, .file = configurationFile});
        break;
      case ConfigurationState::Good:
        CheckEntries(m_installation.deviceGroups, m_seen, configurationFile, m_findings);
        break;
    }
  }

  const InstallationToCheck& m_installation;
  const DiscriminatorDirectory m_directory;
  IndexCheck m_indexes;
  SeenFiles m_seen;
  Findings m_findings;
};

}  // namespace

bool CheckedInstallation::IsListed(const std::wstring& file) const {
  return std::none_of(findings.begin(), findings.end(), [&](const Finding& finding) {
    return finding.file == file && finding.LeavesOut();
  });
}

std::size_t CheckedInstallation::Faults() const {
  const auto faults = std::count_if(findings.begin(), findings.end(),
                                    [](const Finding& finding) { return finding.IsFault(); });
  return static_cast<std::size_t>(faults);
}

CheckedInstallation CheckInstallation(const InstallationToCheck& installation, Progress& progress) {
  return InstallationCheck(installation).Run(progress);
}

}  // namespace qv
