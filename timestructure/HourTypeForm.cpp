#include "timestructure/HourTypeForm.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"

namespace qv {
namespace {

constexpr TypeIdentity::Kind kind{tag::Hour, Text::HourTypeNameMissing,
                                  Text::HourTypeNameForbidden};

}  // namespace

HourTypeForm::HourTypeForm(const XmlNode& hourTypes, XmlNode& hour, Prompter& prompter)
    : m_hour(hour),
      m_identity(hourTypes, hour, kind, prompter),
      m_openedValue(hour.Value(tag::Value)) {}

bool HourTypeForm::ChooseColour(Colour colour) {
  const bool isOther = m_identity.SetColour(colour);
  m_modified = m_modified || isOther;
  return isOther;
}

bool HourTypeForm::Save(const QVWideString& name, const QVWideString& value) {
  if (!m_identity.IsAccepted(name)) {
    return false;
  }
  m_modified = m_modified || name != Name() || m_identity.IsOtherColour() || value != m_openedValue;
  m_hour.SetValue(tag::Name, name);
  m_hour.SetValue(tag::Value, value);
  m_hour.SetValue(tag::Color, ColourText(CurrentColour()));
  return true;
}

}  // namespace qv
