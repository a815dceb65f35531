#include "timestructure/TimeSlotForm.h"

#include <algorithm>

#include "discriminator/Fields.h"

namespace qv {

TimeSlotForm::TimeSlotForm(XmlNode& slot, HourTypes hourTypes)
    : m_hourTypes(hourTypes), m_slot(slot), m_times(slot.Value(tag::From), slot.Value(tag::To)) {
  FillHourTypes(std::nullopt);
}

bool TimeSlotForm::IsNew() const { return m_slot.Value(tag::Id).Empty(); }

void TimeSlotForm::FillHourTypes(std::optional<int> select) {
  m_choices = ReadColouredTypes(&m_hourTypes.Node(), tag::Hour);
  m_selected = m_choices.empty() ? std::nullopt : std::optional(select.value_or(OwnHourType()));
}

int TimeSlotForm::OwnHourType() const {
  const QVWideString slotId = m_slot.Value(tag::Id);
  // Of several hour types with one id the last is taken.
  const auto match = std::find_if(
      m_choices.rbegin(), m_choices.rend(),
      [&](const ColouredType& choice) { return choice.node->Value(tag::Id) == slotId; });
  return match == m_choices.rend() ? 0 : static_cast<int>(m_choices.rend() - match) - 1;
}

void TimeSlotForm::SelectHourType(int index) {
  if (index != m_selected) {
    m_selected = index;
    m_times.TakeChange();
  }
}

std::optional<Colour> TimeSlotForm::SelectedColour() const {
  return m_selected ? std::optional(m_choices[static_cast<std::size_t>(*m_selected)].colour)
                    : std::nullopt;
}

void TimeSlotForm::OnAddHourType(const RunEditor& runEditor) {
  NewChildNode hour = NewWhiteType(m_hourTypes.Node(), tag::Hour);
  const EditorEnd end = runEditor(hour.Node());
  if (end.confirmed) {
    hour.Keep();
    m_modified = m_modified || end.modified;
    FillHourTypes(m_selected);
    m_times.EnableSpins();
  }
}

std::optional<Refusal> TimeSlotForm::Fault() const {
  if (!m_times.IsOrdered()) {
    return Refused(Text::SlotStartAfterEnd);
  }
  return m_choices.empty() ? std::optional(Refused(Text::NoHourType)) : std::nullopt;
}

SaveEnd TimeSlotForm::Save() {
  if (auto fault = Fault()) {
    return {SaveOutcome::Refused, std::move(fault)};
  }
  const QVWideString& name = m_choices[static_cast<std::size_t>(*m_selected)].name;
  const XmlNode* hour = m_hourTypes.Node().NodeV(L"/hour?name=%s?", name);
  if (!hour) {
    return {SaveOutcome::Refused};
  }
  m_slot.SetValue(tag::Id, hour->Value(tag::Id));
  m_slot.SetValue(tag::From, m_times.TextOf(SlotEdge::From));
  m_slot.SetValue(tag::To, m_times.TextOf(SlotEdge::To));
  return SavedOrUnchanged(IsModified());
}

}  // namespace qv
