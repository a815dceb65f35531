#pragma once

#include <optional>
#include <string>
#include <vector>

#include "discriminator/ValueForms.h"
#include "tools/Colour.h"

namespace qvdisc {

/// The two kinds of types that a discriminator of time slots has.
enum class TypeKind { Hour, Day };

/// What a call does with the types of one kind.
enum class TypeAction { List, Add, Modify, Remove };

/// A slot as a call writes it.
struct CalledSlot {
  qv::TimeOfDay from;
  qv::TimeOfDay to;
  std::wstring hourType;  ///< name

  friend bool operator==(const CalledSlot&, const CalledSlot&) = default;
};

/// What a call asks for of hour types or day types; nothing where something stays as it is.
struct TypeCall {
  TypeAction action = TypeAction::List;
  std::wstring type;  ///< which one, by name or id, or what a new one is called
  std::optional<std::wstring> name;
  std::optional<qv::Colour> colour;
  std::optional<std::wstring> value;             ///< of an hour type
  std::optional<std::vector<CalledSlot>> slots;  ///< of a day type: those that it is to have

  friend bool operator==(const TypeCall&, const TypeCall&) = default;
};

}  // namespace qvdisc
