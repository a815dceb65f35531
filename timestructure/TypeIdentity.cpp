#include "timestructure/TypeIdentity.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Names.h"

namespace qv {

TypeIdentity::TypeIdentity(const XmlNode& type, const Others& others, const Messages& messages,
                           Prompter& prompter)
    : m_others(others),
      m_messages(messages),
      m_prompter(prompter),
      m_openedName(type.Value(tag::Name)),
      m_openedColour(ColourOfText(type.Value(tag::Color))),
      m_colour(m_openedColour) {}

bool TypeIdentity::ChooseColour(Colour colour) {
  const bool isOther = colour != m_colour;
  m_colour = colour;
  m_recoloured = m_recoloured || isOther;
  return isOther;
}

std::optional<SaveEnd> TypeIdentity::SeekApproval(const QVWideString& name) const {
  if (const auto fault = FaultOfName(name)) {
    return SaveEnd{SaveOutcome::Refused, Refused(*fault)};
  }
  const bool isTaken = m_colour != m_openedColour && HasOther(tag::Color, ColourText(m_colour));
  if (isTaken && !m_prompter.Ask(Text::TypeColourTaken)) {
    return SaveEnd{SaveOutcome::Refused};
  }
  return std::nullopt;
}

std::optional<Text> TypeIdentity::FaultOfName(const QVWideString& name) const {
  if (name.Empty()) {
    return m_messages.nameMissing;
  }
  if (!IsValidId(name, true)) {
    return Text::NameNotAllowed;
  }
  if (name.ToView().find_first_of(L"\"\\,") != std::wstring_view::npos) {
    return m_messages.nameForbidden;
  }
  const bool isTaken = name != m_openedName && HasOther(tag::Name, name);
  return isTaken ? std::optional(Text::TypeNameTaken) : std::nullopt;
}

bool TypeIdentity::HasOther(const wchar_t* field, const QVWideString& value) const {
  return m_others.list.NodeV(L"%s?%s=%s?", m_others.tag, field, value) != nullptr;
}

}  // namespace qv
