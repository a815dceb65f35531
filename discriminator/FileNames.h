#pragma once

#include <optional>
#include <string_view>

#include "tools/QVBasicString.h"

/// The one place that composes and cuts the names of a discriminator's files: the discriminator
/// file `<id>.<name>.xdct` and its index file `<id>.<name>.xdctI`.
namespace qv {

inline constexpr wchar_t discriminatorExtension[] = L".xdct";
inline constexpr wchar_t discriminatorPattern[] = L"*.xdct";

/// `<id>.<name>`, the file name without extension.
QVWideString FileStem(const QVWideString& id, const QVWideString& name);

/// The full path of the discriminator file; `directory` ends in its separator.
QVWideString DiscriminatorPath(const QVWideString& directory, const QVWideString& fileStem);

/// The full path of the index file that belongs to the discriminator file `path`.
QVWideString IndexPath(const QVWideString& path);

/// `fileName` without the extension of discriminator files; nothing if it has another or none.
std::optional<std::wstring_view> WithoutExtension(std::wstring_view fileName);

/// What stands before the first dot of a stem; the whole stem if there is none.
QVWideString IdOfStem(const QVWideString& fileStem);

/// What stands behind the first dot of a stem, further dots included; nothing if there is none.
std::optional<std::wstring_view> NameOfStem(std::wstring_view fileStem);

/// The text between the first and the second dot of a file name, which is what a new name is
/// compared with; nothing if there are fewer than two dots.
std::optional<std::wstring_view> NameBetweenDots(std::wstring_view fileName);

/// Whether the names of both files of `fileStem` are short enough for the file system.
bool FitsFileName(const QVWideString& fileStem);

/// Whether `fileStem` can name a file of the directory: what could lead to another place is
/// refused.
bool IsFileStem(const QVWideString& fileStem);

}  // namespace qv
