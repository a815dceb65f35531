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

  /// The types among which it has to stand out: the children of `list` with this tag.
  struct Others {
    const XmlNode& list;
    const wchar_t* tag;
  };

  /// What the user is told of a name.
  struct Messages {
    Text nameMissing;
    Text nameForbidden;
  };

  /// `type` is the node that is edited, which need not lie in the list of the others. All nodes and
  /// the prompter outlive the identity.
  TypeIdentity(const XmlNode& type, const Others& others, const Messages& messages,
               Prompter& prompter);

  const QVWideString& OpenedName() const { return m_openedName; }
  /// The colour in force.
  Colour CurrentColour() const { return m_colour; }
  /// Takes over the colour that the user chose; whether it is another one than before.
  bool ChooseColour(Colour colour);
  /// Whether another colour was chosen at any time, even if it came back.
  bool IsRecoloured() const { return m_recoloured; }

  /// Checks the name, and asks the user about a colour that another type has. Nothing if the type
  /// may be called `name` and have its colour; otherwise how its save ends.
  ///
  /// The name must not be empty, has to be good for a name, and holds no double quote, backslash or
  /// comma. Another type with exactly that name is refused, another one with that colour, as
  /// it is written, is asked about; what the type had when it was opened passes both.
  [[nodiscard]] std::optional<SaveEnd> SeekApproval(const QVWideString& name) const;

 private:
  std::optional<Text> FaultOfName(const QVWideString& name) const;
  bool HasOther(const wchar_t* field, const QVWideString& value) const;

  Others m_others;
  Messages m_messages;
  Prompter& m_prompter;
  QVWideString m_openedName;
  Colour m_openedColour;
  Colour m_colour;
  bool m_recoloured = false;
};

}  // namespace qv
