#pragma once

#include "timestructure/TypeIdentity.h"
#include "tools/Colour.h"

namespace qv {

/// One hour type while it is edited. Nothing is written into its node but by `Save`.
class HourTypeForm {
 public:
  /// `hour` is the node to edit, which may lie outside `hourTypes`, in which other hour types of
  /// the same name or colour are looked for.
  HourTypeForm(const XmlNode& hourTypes, XmlNode& hour, Prompter& prompter);

  const QVWideString& Name() const { return m_identity.OpenedName(); }
  const QVWideString& Value() const { return m_openedValue; }
  Colour CurrentColour() const { return m_identity.CurrentColour(); }

  /// Takes over the colour that the user chose; whether it is another one than before.
  bool ChooseColour(Colour colour);

  /// Writes name, value and colour if they are accepted. The value may be any text.
  bool Save(const QVWideString& name, const QVWideString& value);

  /// Whether a colour was chosen, or what was saved differs from what was opened.
  bool IsModified() const { return m_modified; }

 private:
  XmlNode& m_hour;
  TypeIdentity m_identity;
  QVWideString m_openedValue;
  bool m_modified = false;
};

}  // namespace qv
