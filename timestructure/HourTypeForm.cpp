#include "timestructure/HourTypeForm.h"

#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"

namespace qv {
namespace {

constexpr TypeIdentity::Messages messages{Text::HourTypeNameMissing, Text::HourTypeNameForbidden};

}  // namespace

HourTypeForm::HourTypeForm(XmlNode& hour, HourTypes hourTypes, Prompter& prompter)
    : m_hour(hour),
      m_identity(hour, {hourTypes.Node(), tag::Hour}, messages, prompter),
      m_openedValue(hour.Value(tag::Value)) {}

SaveEnd HourTypeForm::Save(const QVWideString& name, const QVWideString& value) {
  if (auto objection = m_identity.SeekApproval(name)) {
    return *std::move(objection);
  }
  m_modified = m_modified || name != m_identity.OpenedName() || value != m_openedValue;
  m_hour.SetValue(tag::Name, name);
  m_hour.SetValue(tag::Value, value);
  m_hour.SetValue(tag::Color, ColourText(m_identity.CurrentColour()));
  return SavedOrUnchanged(IsModified());
}

}  // namespace qv
