#include "timestructure/TypeIdentity.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Names.h"

namespace qv {

TypeIdentity::TypeIdentity(const XmlNode& list, const XmlNode& type, const Kind& kind,
                           Prompter& prompter)
    : m_list(list),
      m_kind(kind),
      m_prompter(prompter),
      m_openedName(type.Value(tag::Name)),
      m_openedColour(ColourOfText(type.Value(tag::Color))),
      m_colour(m_openedColour) {}

bool TypeIdentity::SetColour(Colour colour) {
  const bool isOther = colour != m_colour;
  m_colour = colour;
  return isOther;
}

bool TypeIdentity::IsAccepted(const QVWideString& name) const {
  if (name.Empty()) {
    m_prompter.Show(m_kind.nameMissing);
  } else if (!IsValidId(name, true)) {
    m_prompter.Show(Text::NameNotAllowed);
  } else if (name.ToView().find_first_of(L"\"\\,") != std::wstring_view::npos) {
    m_prompter.Show(m_kind.nameForbidden);
  } else if (name != m_openedName && HasOther(tag::Name, name)) {
    m_prompter.Show(Text::TypeNameTaken);
  } else {
    return !IsOtherColour() || !HasOther(tag::Color, ColourText(m_colour)) ||
           m_prompter.Ask(Text::TypeColourTaken);
  }
  return false;
}

bool TypeIdentity::HasOther(const wchar_t* field, const QVWideString& value) const {
  return m_list.NodeV(L"%s?%s=%s?", m_kind.tag, field, value) != nullptr;
}

}  // namespace qv
