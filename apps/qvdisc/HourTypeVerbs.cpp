#include "apps/qvdisc/TypeVerb.h"
#include "apps/qvdisc/TypeWords.h"
#include "discriminator/Fields.h"
#include "host/Installation.h"
#include "timestructure/HourTypeForm.h"

namespace qvdisc {
namespace {

void RunHourTypes(qv::DiscriminatorForm& form, const UseTypes& use) {
  form.OnHourTypes([&](qv::HourTypes hourTypes, qv::DayTypes /*dayTypes*/) {
    return use(hourTypes.Node(), hourTypes);
  });
}

qv::EditorEnd EditHourType(qv::XmlNode& hour, qv::XmlNode& /*container*/, qv::HourTypes hourTypes,
                           const Edited& edited) {
  const TypeCall& call = edited.editing.call.type;
  qv::HourTypeForm form(hour, hourTypes, edited.editing.prompter);
  if (call.colour) {
    form.Identity().ChooseColour(*call.colour);
  }
  const QVWideString name = NameAfter(call, form.Identity().OpenedName());
  const qv::SaveEnd end = form.Save(name, call.value ? QVWideString(*call.value) : form.Value());
  return EndOf(end, form.IsModified(), edited.editing.prompter);
}

constexpr TypeDialogs dialogs{TypeKind::Hour, qv::tag::Hour, RunHourTypes, EditHourType};

}  // namespace

void HourTypes(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
               Outcome& outcome) {
  // The dialog has no field for the value elsewhere.
  if (editing.call.type.value && !qv::IsEmbedded(editing.host.mainCfg)) {
    return Fail(outcome, TypeWord::ValueNotOffered);
  }
  TypeVerb(dialogs, {list, rows, editing, outcome});
}

}  // namespace qvdisc
