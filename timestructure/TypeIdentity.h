#pragma once

#include "host/Prompter.h"
#include "tools/Colour.h"
#include "tools/XmlNode.h"

namespace qv {

/// Name and colour of an hour type or a day type while they are edited, and the rules that keep
/// them apart from those of the other types in the list.
class TypeIdentity {
 public:
  /// The number of characters that may be typed into the name.
  static constexpr int longestTypedName = 128;

  /// What differs between the two kinds of type.
  struct Kind {
    const wchar_t* tag;
    Text nameMissing;
    Text nameForbidden;
  };

  /// `type` is the node that is edited, which need not lie in `list`. All but `kind` is to outlive
  /// the identity.
  TypeIdentity(const XmlNode& list, const XmlNode& type, const Kind& kind, Prompter& prompter);

  const QVWideString& OpenedName() const { return m_openedName; }
  /// The colour in force.
  Colour CurrentColour() const { return m_colour; }
  /// Takes over what the user chose; whether that is another colour.
  bool SetColour(Colour colour);

  bool IsOtherColour() const { return m_colour != m_openedColour; }

  /// Whether the type may be called `name` and have its colour; otherwise the user has been told
  /// why, or has said No.
  ///
  /// The name must not be empty, has to be good for a name, and holds no double quote, backslash or
  /// comma. Another type with exactly that name is refused, another one with that colour, as
  /// it is written, is asked about; what the type had when it was opened passes both.
  bool IsAccepted(const QVWideString& name) const;

 private:
  bool HasOther(const wchar_t* field, const QVWideString& value) const;

  const XmlNode& m_list;
  Kind m_kind;
  Prompter& m_prompter;
  QVWideString m_openedName;
  Colour m_openedColour;
  Colour m_colour;
};

}  // namespace qv
