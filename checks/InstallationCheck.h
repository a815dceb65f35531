#pragma once

#include <string>
#include <vector>

#include "checks/Finding.h"
#include "host/Progress.h"
#include "host/QVDriverSupport.h"
#include "tools/Files.h"
#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

namespace qv {

/// How the main configuration of an installation was loaded.
enum class ConfigurationState {
  Good,        ///< from its file, or as a new one
  Unreadable,  ///< there is a file, but it can't be read
  Foreign      ///< the file is of something else
};

/// What a check looks at.
struct InstallationToCheck {
  const QVWideString& directory;  ///< of all files; ends in its separator
  Files& files;
  ConfigurationState configuration = ConfigurationState::Good;
  bool isEmbedded = false;                ///< whether discriminators of type CONDITIONS are hidden
  const XmlNode* deviceGroups = nullptr;  ///< of the main configuration; null if there are none
  const QVDriverSupport* drivers = nullptr;  ///< evaluates conditions; without it none is tried
};

/// What a check has found.
struct CheckedInstallation {
  std::vector<std::wstring> files;  ///< the names of all discriminator files
  Findings findings;                ///< by file, those of the configuration last

  /// Whether nothing was found that makes the list leave the file out.
  bool IsListed(const std::wstring& file) const;
  /// How many of the findings have to be mended.
  std::size_t Faults() const;
  /// How many only explain something.
  std::size_t Notes() const { return findings.size() - Faults(); }
};

/// Looks at every discriminator file of the directory, at their index files, and at the entries of
/// discriminators in the device groups, unless the configuration isn't good.
///
/// Told is which files the list leaves out and why, slots and dates that lead nowhere, conditions
/// that are none, parts, ids and names that come twice, index files that are missing, out of date
/// or of no use, and entries that don't fit the files. Nothing is changed. `progress` watches the
/// reading; it can't stop it.
[[nodiscard]] CheckedInstallation CheckInstallation(const InstallationToCheck& installation,
                                                    Progress& progress);

}  // namespace qv
