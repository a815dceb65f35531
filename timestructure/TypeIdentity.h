#pragma once

#include <optional>

#include "host/Prompter.h"
#include "host/SaveEnd.h"
#include "tools/Colour.h"
#include "tools/XmlNode.h"

namespace qv {

/// Name and colour of an hour type or a day type while they are edited, and the rules that keep
/// them apart from those of the other types in the list.
class TypeIdentity {
 public:
  /// The number of characters that may be typed into the name.
  static constexpr int longestTypedName = 128;

  /// What differs between hour types and day types.
  struct Wording {
    const wchar_t* tag;
    Text nameMissing;
    Text nameForbidden;
  };

  /// `type` is the node that is edited, which need not lie in `list`. All but `wording` is to
  /// outlive the identity.
  TypeIdentity(const XmlNode& type, const XmlNode& list, const Wording& wording,
               Prompter& prompter);

  const QVWideString& OpenedName() const { return m_openedName; }
  /// The colour in force.
  Colour CurrentColour() const { return m_colour; }
  /// Takes over the colour that the user chose; whether it is another one than before.
  bool ChooseColour(Colour colour);
  /// Whether another colour was chosen at any time, even if it came back.
  bool IsRecoloured() const { return m_recoloured; }

  /// Nothing if the type may be called `name` and have its colour; otherwise how its save ends.
  ///
  /// The name must not be empty, has to be good for a name, and holds no double quote, backslash or
  /// comma. Another type with exactly that name is refused, another one with that colour, as
  /// it is written, is asked about; what the type had when it was opened passes both.
  std::optional<SaveEnd> Objection(const QVWideString& name) const;

 private:
  std::optional<Text> FaultOfName(const QVWideString& name) const;
  bool HasOther(const wchar_t* field, const QVWideString& value) const;

  const XmlNode& m_list;
  Wording m_wording;
  Prompter& m_prompter;
  QVWideString m_openedName;
  Colour m_openedColour;
  Colour m_colour;
  bool m_recoloured = false;
};

}  // namespace qv
