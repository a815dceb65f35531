#include <algorithm>
#include <optional>

#include "apps/qvdisc/ConditionWords.h"
#include "apps/qvdisc/EditDiscriminator.h"
#include "apps/qvdisc/TypeVerb.h"
#include "conditions/ConditionForm.h"
#include "conditions/ConditionList.h"
#include "conditions/ConditionTrial.h"
#include "conditions/ConditionWords.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using qv::EditorEnd;
using qv::XmlNode;

/// The list of conditions while the call works on it.
class CalledConditions {
 public:
  CalledConditions(const Edited& edited, qv::OrderedConditions conditions, ToldConditions& told)
      : m_edited(edited),
        m_node(conditions.Node()),
        m_told(told),
        m_list(conditions, edited.editing.prompter) {}

  EditorEnd Use() {
    const bool isConfirmed = Perform();
    return {isConfirmed, m_list.IsModified()};
  }

 private:
  const ConditionCall& Call() const { return m_edited.editing.call.condition; }
  const qv::ConditionRow& Row(int row) const {
    return m_list.Rows()[static_cast<std::size_t>(row)];
  }

  bool Perform() {
    if (Call().action == ConditionAction::List) {
      return List();
    }
    if (Call().action == ConditionAction::Add) {
      return m_list.OnAdd(EditorFor(ConditionFate::Made)) && TellRow(LastRow());
    }
    const auto row = Named();
    return row && PerformOn(*row);
  }

  bool PerformOn(int row) {
    switch (Call().action) {
      case ConditionAction::Modify:
        return Modify(row);
      case ConditionAction::Remove:
        return Remove(row);
      case ConditionAction::Up:
        return Move(row, m_list.OnUp(row));
      case ConditionAction::Down:
        return Move(row, m_list.OnDown(row));
      case ConditionAction::List:
      case ConditionAction::Add:
        break;
    }
    return false;
  }

  bool List() {
    for (int row = 0; row <= LastRow(); ++row) {
      TellRow(row);
    }
    return true;
  }

  /// A window ends as cancelled if nothing changed; for a call that is done as well.
  bool Modify(int row) {
    const bool isDone = m_list.OnModify(row, EditorFor(ConditionFate::Changed)) ||
                        m_told.fate == ConditionFate::Unchanged;
    return isDone && TellRow(row);
  }

  bool Remove(int row) {
    m_told.fate = ConditionFate::Removed;
    ToldCondition told = Told(row);
    told.place = 0;
    if (!m_list.OnRemove({row}).refilled) {
      return false;
    }
    m_told.conditions.push_back(std::move(told));
    return true;
  }

  bool Move(int row, const qv::ListEnd& end) {
    if (!end.refilled) {
      Fail(m_edited.outcome, ConditionWord::CannotMove, {Row(row).name});
      return false;
    }
    m_told.fate = ConditionFate::Moved;
    return TellRow(Call().action == ConditionAction::Up ? row - 1 : row + 1);
  }

  int LastRow() const { return static_cast<int>(m_list.Rows().size()) - 1; }

  /// The row of the one condition that the call names; a name goes before an id.
  std::optional<int> Named() const {
    auto found = RowsWith(qv::tag::Name);
    if (found.empty()) {
      found = RowsWith(qv::tag::Id);
    }
    if (found.size() == 1) {
      return found.front();
    }
    Fail(m_edited.outcome,
         found.empty() ? ConditionWord::NoSuchCondition : ConditionWord::SeveralConditions,
         {Call().condition.c_str()});
    return std::nullopt;
  }

  /// The rows whose field has the text by which the call names a condition.
  std::vector<int> RowsWith(const wchar_t* field) const {
    std::vector<int> found;
    for (int row = 0; row <= LastRow(); ++row) {
      if (Row(row).node->Value(field) == Call().condition) {
        found.push_back(row);
      }
    }
    return found;
  }

  qv::RunEditor EditorFor(ConditionFate fate) {
    return [this, fate](XmlNode& condition) { return Edit(condition, fate); };
  }

  EditorEnd Edit(XmlNode& condition, ConditionFate fate) {
    qv::ConditionForm form(condition, &m_node, m_edited.editing.drivers);
    const bool isNew = fate == ConditionFate::Made;
    const QVWideString name =
        isNew ? QVWideString(Call().condition) : Given(Call().name, form.Name());
    const QVWideString expression = Given(Call().expression, form.Expression());
    if (!IsKept(name) || !IsKept(expression)) {
      return {};
    }
    const qv::SaveEnd end = form.Save(name, expression);
    const bool isUnchanged = end.outcome == qv::SaveOutcome::Unchanged;
    m_told.fate = isUnchanged ? ConditionFate::Unchanged : fate;
    const EditorEnd editorEnd = EndOf(end, form.IsModified(), m_edited.editing.prompter);
    return isUnchanged ? EditorEnd{} : editorEnd;
  }

  /// Whether all of a stored text would be kept, which the call doesn't change; the outcome tells
  /// if not.
  bool IsKept(const QVWideString& text) const {
    const bool isKept = qv::ConditionForm::Kept(text) == text;
    if (!isKept) {
      Fail(m_edited.outcome, ConditionWord::WouldBeCut, {qv::ConditionForm::longestKept, text});
    }
    return isKept;
  }

  static QVWideString Given(const std::optional<std::wstring>& text, const QVWideString& opened) {
    return text ? QVWideString(*text) : opened;
  }

  bool TellRow(int row) {
    m_told.conditions.push_back(Told(row));
    return true;
  }

  ToldCondition Told(int row) const {
    const XmlNode& node = *Row(row).node;
    ToldCondition told{.id = qv::FieldOf(node, qv::tag::Id),
                       .name = qv::FieldOf(node, qv::tag::Name),
                       .expression = qv::FieldOf(node, qv::tag::Expression),
                       .place = row + 1,
                       .result = qv::TryCondition(node, m_edited.editing.drivers)};
    told.resultInWords = qv::PresentResult(told.result, m_edited.editing.host.loadString);
    return told;
  }

  const Edited& m_edited;
  XmlNode& m_node;
  ToldConditions& m_told;
  qv::ConditionList m_list;
};

/// Runs the dialog of the list in the opened discriminator; whether it was confirmed.
bool RunConditions(const Edited& edited, qv::DiscriminatorForm& form, ToldConditions& told) {
  bool isConfirmed = false;
  form.OnConditions([&](qv::OrderedConditions conditions) {
    const EditorEnd end = CalledConditions(edited, conditions, told).Use();
    isConfirmed = end.confirmed;
    return end;
  });
  return isConfirmed;
}

}  // namespace

void Conditions(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
                Outcome& outcome) {
  const Edited edited{list, rows, editing, outcome};
  ToldConditions told;
  const auto use = [&](qv::DiscriminatorForm& form) { return RunConditions(edited, form, told); };
  const bool isList = editing.call.condition.action == ConditionAction::List;
  if ((isList ? ReadParts : ModifyParts)(edited, qv::DiscriminatorType::Conditions, use)) {
    outcome.conditions = std::move(told);
  }
}

}  // namespace qvdisc
