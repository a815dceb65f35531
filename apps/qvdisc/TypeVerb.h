#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/qvdisc/EditDiscriminator.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Containers.h"

namespace qvdisc {

/// What a user does in the dialog that lists the types of a container.
using UseTypes = std::function<qv::EditorEnd(qv::XmlNode& container, qv::HourTypes hourTypes)>;

/// What the verbs for hour types and those for day types have of their own.
struct TypeDialogs {
  TypeKind kind;
  const wchar_t* tag;
  /// Runs the dialog that lists them.
  void (*runList)(qv::DiscriminatorForm& form, const UseTypes& use);
  /// Does what the call asks for in the editor of one.
  qv::EditorEnd (*edit)(qv::XmlNode& type, qv::XmlNode& container, qv::HourTypes hourTypes,
                        const Edited& edited);
};

/// Lists, adds, modifies or removes as the call says, and saves the discriminator. The outcome
/// tells the types; none if it wasn't saved.
void TypeVerb(const TypeDialogs& dialogs, const Edited& edited);

/// What a call finds a type by.
enum class FoundBy { Name, NameOrId };

/// The place of the one type that `text` is of; a name goes before an id. Nothing, and the outcome
/// tells why, if there is none or more than one.
std::optional<int> PlaceOf(const std::vector<qv::ColouredType>& types, TypeKind kind,
                           const std::wstring& text, FoundBy by, Outcome& outcome);

/// What a type is called after the call, of one that was opened under this name.
QVWideString NameAfter(const TypeCall& call, const QVWideString& openedName);

/// How an editor ends whose form ended its save so, after telling why that was refused.
qv::EditorEnd EndOf(const qv::SaveEnd& end, bool isModified, qv::Prompter& prompter);

}  // namespace qvdisc
