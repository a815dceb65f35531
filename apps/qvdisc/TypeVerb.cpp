#include "apps/qvdisc/TypeVerb.h"

#include <algorithm>

#include "apps/qvdisc/TypeWords.h"
#include "discriminator/Fields.h"
#include "timestructure/TypeList.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using qv::ColouredType;
using qv::EditorEnd;
using qv::XmlNode;

template <class Matches>
std::vector<int> PlacesWhere(const std::vector<ColouredType>& types, Matches matches) {
  std::vector<int> places;
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (matches(types[i])) {
      places.push_back(static_cast<int>(i));
    }
  }
  return places;
}

/// The list of one kind while the call works on it.
class CalledList {
 public:
  CalledList(const TypeDialogs& dialogs, const Edited& edited, XmlNode& container,
             qv::HourTypes hourTypes, ToldTypes& told)
      : m_dialogs(dialogs),
        m_edited(edited),
        m_container(container),
        m_hourTypes(hourTypes),
        m_told(told),
        m_types(container, dialogs.tag) {}

  EditorEnd Use() {
    const bool isConfirmed = Perform();
    return {isConfirmed, m_types.IsModified()};
  }

 private:
  const TypeCall& Call() const { return m_edited.editing.call.type; }

  bool Perform() {
    switch (Call().action) {
      case TypeAction::List:
        return List();
      case TypeAction::Add:
        return m_types.OnAdd(EditorFor(TypeFate::Made)).refilled;
      case TypeAction::Modify:
        return m_types.OnModify(Named(), EditorFor(TypeFate::Changed)).refilled;
      case TypeAction::Remove:
        return Remove(Named());
    }
    return false;
  }

  bool List() {
    for (const ColouredType& type : m_types.Rows()) {
      Tell(TypeFate::Listed, *type.node);
    }
    return true;
  }

  bool Remove(std::optional<int> row) {
    if (row) {
      Tell(TypeFate::Removed, *m_types.Rows()[static_cast<std::size_t>(*row)].node);
    }
    return m_types.OnRemove(row).refilled;
  }

  std::optional<int> Named() const {
    return PlaceOf(m_types.Rows(), m_dialogs.kind, Call().type, FoundBy::NameOrId,
                   m_edited.outcome);
  }

  qv::RunEditor EditorFor(TypeFate fate) {
    return [this, fate](XmlNode& type) { return Edit(type, fate); };
  }

  EditorEnd Edit(XmlNode& type, TypeFate fate) {
    const EditorEnd end = m_dialogs.edit(type, m_container, m_hourTypes, m_edited);
    Tell(end.modified ? fate : TypeFate::Unchanged, type);
    return end;
  }

  void Tell(TypeFate fate, XmlNode& type) {
    m_told.fate = fate;
    m_told.types.emplace_back(type);
    m_told.hourTypes = std::make_unique<XmlDocument>(m_hourTypes.Node());
  }

  const TypeDialogs& m_dialogs;
  const Edited& m_edited;
  XmlNode& m_container;
  qv::HourTypes m_hourTypes;
  ToldTypes& m_told;
  qv::TypeList m_types;
};

/// Runs the dialog of the list in the opened discriminator; whether it was confirmed.
bool RunList(const TypeDialogs& dialogs, const Edited& edited, qv::DiscriminatorForm& form,
             ToldTypes& told) {
  bool isConfirmed = false;
  dialogs.runList(form, [&](XmlNode& container, qv::HourTypes hourTypes) {
    CalledList list(dialogs, edited, container, hourTypes, told);
    const EditorEnd end = list.Use();
    isConfirmed = end.confirmed;
    return end;
  });
  return isConfirmed;
}

}  // namespace

void TypeVerb(const TypeDialogs& dialogs, const Edited& edited) {
  ToldTypes told;
  told.kind = dialogs.kind;
  const auto use = [&](qv::DiscriminatorForm& form) {
    return RunList(dialogs, edited, form, told);
  };
  const bool isList = edited.editing.call.type.action == TypeAction::List;
  if ((isList ? ReadParts : ModifyParts)(edited, qv::DiscriminatorType::Slots, use)) {
    edited.outcome.types = std::move(told);
  }
}

std::optional<int> PlaceOf(const std::vector<ColouredType>& types, TypeKind kind,
                           const std::wstring& text, FoundBy by, Outcome& outcome) {
  auto places = PlacesWhere(types, [&](const ColouredType& type) { return type.name == text; });
  if (places.empty() && by == FoundBy::NameOrId) {
    places = PlacesWhere(
        types, [&](const ColouredType& type) { return type.node->Value(qv::tag::Id) == text; });
  }
  if (places.size() == 1) {
    return places.front();
  }
  const bool isHour = kind == TypeKind::Hour;
  Fail(outcome,
       places.empty() ? (isHour ? TypeWord::NoSuchHourType : TypeWord::NoSuchDayType)
                      : (isHour ? TypeWord::SeveralHourTypes : TypeWord::SeveralDayTypes),
       {text.c_str()});
  return std::nullopt;
}

QVWideString NameAfter(const TypeCall& call, const QVWideString& openedName) {
  if (call.action == TypeAction::Add) {
    return QVWideString(call.type);
  }
  return call.name ? QVWideString(*call.name) : openedName;
}

EditorEnd EndOf(const qv::SaveEnd& end, bool isModified, qv::Prompter& prompter) {
  if (end.refusal) {
    Tell(prompter, *end.refusal);
  }
  return {end.IsDone(), isModified};
}

}  // namespace qvdisc
