#pragma once

#include <QString>
#include <optional>

namespace configurator {

/// Copies the files of the installation in `from` into a new directory `name` in `into`, with a
/// number behind the name if it is taken, so that nothing is overwritten. The copies can be
/// written, whatever `from` allows. Gives the new directory, or nothing if that isn't possible, and
/// then nothing is left of it. A place within `from` is refused.
std::optional<QString> CopyInstallation(const QString& from, const QString& into,
                                        const QString& name);

}  // namespace configurator
