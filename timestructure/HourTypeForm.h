#pragma once

#include "discriminator/Containers.h"
#include "timestructure/TypeIdentity.h"

namespace qv {

/// One hour type while it is edited. Nothing is written into its node but by `Save`.
class HourTypeForm {
 public:
  /// `hour` is the node to edit, which may lie outside `hourTypes`, in which other hour types of
  /// the same name or colour are looked for.
  HourTypeForm(XmlNode& hour, HourTypes hourTypes, Prompter& prompter);

  /// Name and colour.
  TypeIdentity& Identity() { return m_identity; }
  const QVWideString& Value() const { return m_openedValue; }

  /// Writes name, value and colour if they are accepted. The value may be any text.
  SaveEnd Save(const QVWideString& name, const QVWideString& value);

  /// Whether a colour was chosen, or what was saved differs from what was opened.
  bool IsModified() const { return m_modified || m_identity.IsRecoloured(); }

 private:
  XmlNode& m_hour;
  TypeIdentity m_identity;
  QVWideString m_openedValue;
  bool m_modified = false;
};

}  // namespace qv
