#include "apps/qvdisc/ConditionWords.h"

#include <array>

#include "hostkit/EnumTable.h"
#include "hostkit/TextRow.h"

namespace qvdisc {
namespace {

using WordRow = qv::TextRow<ConditionWord, wchar_t>;

constexpr qv::EnumTable texts(std::array{
    WordRow{ConditionWord::NoConditions,
            L"«%s» es un discriminador por franjas horarias: no tiene condiciones",
            L"“%s” is a discriminator of time slots: it has no conditions"},
    WordRow{ConditionWord::NoSuchCondition, L"No hay ninguna condición «%s»",
            L"There is no condition “%s”"},
    WordRow{ConditionWord::SeveralConditions, L"Hay más de una condición «%s»",
            L"There is more than one condition “%s”"},
    WordRow{ConditionWord::NotEvaluatedAt, L"En el carácter %d: %s", L"At character %d: %s"},
    WordRow{ConditionWord::WouldBeCut,
            L"Solo se conservarían los primeros %d caracteres de «%s»: dé un texto más corto",
            L"Only the first %d characters of “%s” would be kept: give a shorter text"},
    WordRow{ConditionWord::Made, L"Condición «%s» creada", L"Condition “%s” made"},
    WordRow{ConditionWord::Changed, L"Condición «%s» modificada", L"Condition “%s” changed"},
    WordRow{ConditionWord::Unchanged, L"Condición «%s» sin cambios", L"Condition “%s” unchanged"},
    WordRow{ConditionWord::Removed, L"Condición «%s» eliminada", L"Condition “%s” removed"},
    WordRow{ConditionWord::Moved, L"Condición «%s» movida al puesto %d",
            L"Condition “%s” moved to place %d"},
    WordRow{ConditionWord::CannotMove, L"La condición «%s» ya está en ese extremo de la lista",
            L"The condition “%s” already stands at that end of the list"},
    WordRow{ConditionWord::ListedFirst, L"Se cumple primero: «%s»", L"True first: “%s”"},
    WordRow{ConditionWord::NoneIsTrue, L"No se cumple ninguna", L"None is true"},
    WordRow{ConditionWord::True, L"verdadero", L"true"},
    WordRow{ConditionWord::False, L"falso", L"false"},
});

}  // namespace

std::wstring Words(ConditionWord word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments) {
  return qv::Format(texts[word].In(language), arguments);
}

void Fail(Outcome& outcome, ConditionWord reason,
          std::initializer_list<qv::FormatArgument> arguments) {
  outcome.errors.push_back(Words(reason, outcome.language, arguments));
  outcome.status = 1;
}

}  // namespace qvdisc
