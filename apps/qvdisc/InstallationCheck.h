#pragma once

#include <string>
#include <vector>

#include "apps/qvdisc/Finding.h"
#include "host/Progress.h"
#include "hostkit/Configuration.h"
#include "tools/Files.h"
#include "tools/QVBasicString.h"

namespace qvdisc {

/// What a check has found.
struct CheckedInstallation {
  std::vector<std::wstring> files;  ///< the names of all discriminator files
  std::vector<Finding> findings;    ///< by file, those of the configuration last
};

/// What a check looks at.
struct Checked {
  const QVWideString& directory;
  const qv::Configuration& configuration;
  qv::Configuration::Loaded loaded;  ///< how the reading of the configuration ended
};

/// Looks at every discriminator file of the directory, at their index files, and at the entries of
/// discriminators in the device groups, unless the configuration can't be read.
///
/// Told is which files the list leaves out and why, slots and dates that lead nowhere, parts, ids
/// and names that come twice, index files that are missing, out of date or of no use, and entries
/// that don't fit the files. Nothing is changed. `progress` watches the reading.
CheckedInstallation CheckInstallation(const Checked& checked, qv::Files& files,
                                      qv::Progress& progress);

/// What is wrong within the document of a discriminator: links that lead nowhere, and parts that
/// come twice.
std::vector<Finding> CheckDocument(const qv::XmlNode& root, const std::wstring& file);

}  // namespace qvdisc
