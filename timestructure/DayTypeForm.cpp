#include "timestructure/DayTypeForm.h"

#include "discriminator/Fields.h"
#include "discriminator/NewChildNode.h"
#include "discriminator/ValueForms.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr TypeIdentity::Kind kind{tag::Day, Text::DayTypeNameMissing, Text::DayTypeNameForbidden};
constexpr wchar_t midnight[] = L"00:00";

}  // namespace

DayTypeForm::DayTypeForm(XmlNode& day, const XmlNode& dayTypes, XmlNode& hourTypes,
                         Prompter& prompter)
    : m_day(day),
      m_hourTypes(hourTypes),
      m_prompter(prompter),
      m_identity(dayTypes, day, kind, prompter),
      m_slots(day, hourTypes) {}

bool DayTypeForm::ChooseColour(Colour colour) {
  const bool isOther = m_identity.SetColour(colour);
  m_modified = m_modified || isOther;
  return isOther;
}

ListEnd DayTypeForm::OnAdd(const RunEditor& runEditor) {
  NewChildNode slot(m_day, tag::Slot, {{tag::Id, L""}, {tag::From, midnight}, {tag::To, midnight}});
  XmlDocument hourTypes(m_hourTypes);
  if (!runEditor(*hourTypes.Root(), slot.Node()).confirmed) {
    return {};
  }
  slot.Keep();
  m_modified = true;
  m_hourTypes = *hourTypes.Root();
  Fill();
  return {true, std::nullopt};
}

ListEnd DayTypeForm::OnModify(std::optional<int> row, const RunEditor& runEditor) {
  XmlNode* slot = row ? m_slots.SlotOfRow(*row) : nullptr;
  if (!slot) {
    return {};
  }
  XmlDocument copy(*slot);
  XmlDocument hourTypes(m_hourTypes);
  const EditorEnd end = runEditor(*hourTypes.Root(), *copy.Root());
  if (!end.confirmed) {
    return {};
  }
  m_modified = m_modified || end.modified;
  *slot = *copy.Root();
  m_hourTypes = *hourTypes.Root();
  Fill();
  return {true, std::nullopt};
}

ListEnd DayTypeForm::OnRemove(std::optional<int> row) {
  if (!row || !m_slots.SlotOfRow(*row)) {
    return {};
  }
  m_slots.Remove(*row);
  m_modified = true;
  return {true, RowAfterRemoval(*row, Rows().size())};
}

bool DayTypeForm::Save(const QVWideString& name) {
  if (!m_identity.IsAccepted(name)) {
    return false;
  }
  m_modified = m_modified || name != Name();
  if (!m_slots.CheckSlots(true, m_prompter)) {
    return false;
  }
  m_day.SetValue(tag::Name, name);
  m_day.SetValue(tag::Color, ColourText(CurrentColour()));
  return true;
}

}  // namespace qv
