#pragma once

#include <optional>
#include <string_view>

#include "tools/Files.h"
#include "tools/QVBasicString.h"
#include "tools/XmlDocument.h"

namespace qv {

/// Loads the file `fileName` of `directory` into `document`. False if it can't be read, or if its
/// name isn't `<id>.<name>.xdct` of its own fields to the letter: such a file is nobody's
/// discriminator.
bool LoadDiscriminator(XmlDocument& document, const QVWideString& directory,
                       std::wstring_view fileName, Files& files);

/// The path of the file in `directory` that the document with this root is saved under, by its own
/// `id` and `name`; nothing if these would lead to another place.
std::optional<QVWideString> PathOfDocument(const XmlNode& root, const QVWideString& directory);

/// What the list shows of a discriminator file.
struct DiscriminatorSummary {
  QVWideString fileStem;  ///< `<id>.<name>`
  QVWideString name;
  QVWideString description;  ///< may be empty
};

/// Whether discriminators of type CONDITIONS belong to the list.
enum class ShowConditions { No, Yes };

/// Reads the file `fileName` of `directory` and tells what the list shows of it, or nothing if the
/// list leaves it out: it can't be read, is of the hidden type, or its name isn't
/// `<id>.<name>.xdct` of its own fields to the letter.
std::optional<DiscriminatorSummary> GetDiscriminatorIdNameDescription(const QVWideString& directory,
                                                                      std::wstring_view fileName,
                                                                      ShowConditions showConditions,
                                                                      Files& files);

}  // namespace qv
