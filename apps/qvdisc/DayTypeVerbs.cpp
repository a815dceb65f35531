#include <string>
#include <tuple>

#include "apps/qvdisc/TypeVerb.h"
#include "apps/qvdisc/TypeWords.h"
#include "discriminator/Fields.h"
#include "timestructure/DayTypeForm.h"
#include "timestructure/TimeSlotForm.h"

namespace qvdisc {
namespace {

using qv::EditorEnd;
using qv::SlotEdge;

void RunDayTypes(qv::DiscriminatorForm& form, const UseTypes& use) {
  form.OnDayTypes([&](qv::DayTypes dayTypes, qv::Calendar /*calendar*/, qv::HourTypes hourTypes) {
    return use(dayTypes.Node(), hourTypes);
  });
}

/// Types hours and then minutes, since hours that are typed free minutes that were locked. Leaves
/// the fields alone if the document has `time` already.
void TypeTime(qv::SlotTimes& times, SlotEdge edge, qv::TimeOfDay time,
              const QVWideString& written) {
  if (written == qv::TimeText(time)) {
    return;
  }
  for (const bool isHours : {true, false}) {
    times.Type({edge, isHours}, std::to_wstring(isHours ? time.hours : time.minutes));
    times.LeaveField({edge, isHours});
  }
}

EditorEnd EditSlot(qv::XmlNode& slot, qv::HourTypes hourTypes, const CalledSlot& called,
                   const Edited& edited) {
  qv::TimeSlotForm form(slot, hourTypes);
  // Without any hour type the form says so itself.
  if (form.HasInputs()) {
    const auto place =
        PlaceOf(form.Choices(), TypeKind::Hour, called.hourType, FoundBy::Name, edited.outcome);
    if (!place) {
      return {};
    }
    form.SelectHourType(*place);
  }
  TypeTime(form.Times(), SlotEdge::From, called.from, slot.Value(qv::tag::From));
  TypeTime(form.Times(), SlotEdge::To, called.to, slot.Value(qv::tag::To));
  const qv::SaveEnd end = form.Save();
  if (!end.IsDone() && !end.refusal) {
    Fail(edited.outcome, TypeWord::NoSuchHourType, {called.hourType.c_str()});
  }
  return EndOf(end, form.IsModified(), edited.editing.prompter);
}

/// Makes the slots those of the call: as many as there are already are changed, the others added
/// or removed, so that slots which stay as they are count as no change.
bool TakeSlots(qv::DayTypeForm& form, const std::vector<CalledSlot>& called, const Edited& edited) {
  for (std::size_t i = 0; i < called.size(); ++i) {
    const auto edit = [&](qv::XmlNode& slot, qv::HourTypes hourTypes) {
      return EditSlot(slot, hourTypes, called[i], edited);
    };
    const bool isThere = i < form.Rows().size();
    const qv::ListEnd end = isThere ? form.OnModify(static_cast<int>(i), edit) : form.OnAdd(edit);
    if (!end.refilled) {
      return false;
    }
  }
  for (std::size_t count = form.Rows().size(); count > called.size(); --count) {
    std::ignore = form.OnRemove(static_cast<int>(count) - 1);
  }
  return true;
}

EditorEnd EditDayType(qv::XmlNode& day, qv::XmlNode& dayTypes, qv::HourTypes hourTypes,
                      const Edited& edited) {
  const TypeCall& call = edited.editing.call.type;
  qv::Prompter& prompter = edited.editing.prompter;
  qv::DayTypeForm form(day, qv::DayTypes(dayTypes), hourTypes, prompter);
  form.Fill();
  if (const auto fault = form.FaultOfSlots()) {
    Tell(prompter, *fault);
  }
  if (call.colour) {
    form.Identity().ChooseColour(*call.colour);
  }
  if (call.slots && !TakeSlots(form, *call.slots, edited)) {
    return {};
  }
  const qv::SaveEnd end = form.Save(NameAfter(call, form.Identity().OpenedName()));
  return EndOf(end, form.IsModified(), prompter);
}

constexpr TypeDialogs dialogs{TypeKind::Day, qv::tag::Day, RunDayTypes, EditDayType};

}  // namespace

void DayTypes(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
              Outcome& outcome) {
  TypeVerb(dialogs, {list, rows, editing, outcome});
}

}  // namespace qvdisc
