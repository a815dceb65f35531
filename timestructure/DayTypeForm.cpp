#include "timestructure/DayTypeForm.h"

#include <utility>

#include "discriminator/EditedCopies.h"
#include "discriminator/Fields.h"
#include "discriminator/NewChildNode.h"
#include "discriminator/ValueForms.h"

namespace qv {
namespace {

constexpr TypeIdentity::Messages messages{Text::DayTypeNameMissing, Text::DayTypeNameForbidden};
constexpr wchar_t midnight[] = L"00:00";

AddedLine Told(const SlotRow& row) {
  return {Text::SlotTold,
          {std::wstring(row.hourType.ToView()), std::wstring(row.from.ToView()),
           std::wstring(row.to.ToView())}};
}

Addition Told(const std::vector<MinuteRange>& gaps) {
  Addition lines;
  for (const MinuteRange& gap : gaps) {
    lines.push_back(
        {Text::GapTold,
         {std::wstring(TimeText(gap.from).ToView()), std::wstring(TimeText(gap.to).ToView())}});
  }
  return Shortened(std::move(lines));
}

}  // namespace

DayTypeForm::DayTypeForm(XmlNode& day, DayTypes dayTypes, HourTypes hourTypes, Prompter& prompter)
    : m_day(day),
      m_hourTypes(hourTypes),
      m_prompter(prompter),
      m_identity(day, {dayTypes.Node(), tag::Day}, messages, prompter),
      m_slots(day, hourTypes) {}

std::optional<Refusal> DayTypeForm::FaultOfSlots() const {
  const auto fault = m_slots.FirstFault();
  if (!fault) {
    return std::nullopt;
  }
  Refusal refusal = Refused(fault->text);
  refusal.row = static_cast<int>(fault->slot);
  if (fault->overlapped) {
    refusal.addition.push_back(Told(Rows()[*fault->overlapped]));
  }
  refusal.addition.push_back(Told(Rows()[fault->slot]));
  return refusal;
}

ListEnd DayTypeForm::OnAdd(const RunSlotEditor& runEditor) {
  NewChildNode slot(m_day, tag::Slot, {{tag::Id, L""}, {tag::From, midnight}, {tag::To, midnight}});
  EditedCopies copies({&m_hourTypes.Node()});
  const EditorEnd end = runEditor(slot.Node(), HourTypes(copies.Of(m_hourTypes.Node())));
  if (!copies.TakeBack(end, m_modified)) {
    return {};
  }
  slot.Keep();
  m_modified = true;
  Fill();
  const auto last = static_cast<int>(Rows().size());
  return {true, std::nullopt, NearestRow(last, Rows().size())};
}

ListEnd DayTypeForm::OnModify(std::optional<int> row, const RunSlotEditor& runEditor) {
  XmlNode* slot = row ? m_slots.SlotOfRow(*row) : nullptr;
  if (!slot) {
    return {};
  }
  EditedCopies copies({slot, &m_hourTypes.Node()});
  const EditorEnd end = runEditor(copies.Of(*slot), HourTypes(copies.Of(m_hourTypes.Node())));
  if (!copies.TakeBack(end, m_modified)) {
    return {};
  }
  Fill();
  return {true, std::nullopt, NearestRow(*row, Rows().size())};
}

ListEnd DayTypeForm::OnRemove(std::optional<int> row) {
  if (!row || !m_slots.SlotOfRow(*row)) {
    return {};
  }
  m_slots.Remove(*row);
  m_modified = true;
  return {true, NearestRow(*row, Rows().size())};
}

SaveEnd DayTypeForm::Save(const QVWideString& name) {
  if (auto objection = m_identity.SeekApproval(name)) {
    return *std::move(objection);
  }
  m_modified = m_modified || name != m_identity.OpenedName();
  if (auto fault = FaultOfSlots()) {
    return {SaveOutcome::Refused, std::move(fault)};
  }
  if (!m_slots.IsCovered() &&
      !m_prompter.Ask(Text::DayNotCoveredQuestion, {}, Told(m_slots.Gaps()))) {
    return {SaveOutcome::Refused};
  }
  m_day.SetValue(tag::Name, name);
  m_day.SetValue(tag::Color, ColourText(m_identity.CurrentColour()));
  return SavedOrUnchanged(IsModified());
}

}  // namespace qv
