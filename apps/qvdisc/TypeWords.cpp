#include "apps/qvdisc/TypeWords.h"

#include <array>

#include "hostkit/EnumTable.h"
#include "hostkit/TextRow.h"

namespace qvdisc {
namespace {

using WordRow = qv::TextRow<TypeWord, wchar_t>;

constexpr qv::EnumTable texts(std::array{
    WordRow{TypeWord::NoTimeSlots,
            L"«%s» es un discriminador por condiciones: no tiene tipos de hora ni tipos de día",
            L"“%s” is a discriminator of conditions: it has no hour types and no day types"},
    WordRow{TypeWord::NoSuchHourType, L"No hay ningún tipo de hora «%s»",
            L"There is no hour type “%s”"},
    WordRow{TypeWord::NoSuchDayType, L"No hay ningún tipo de día «%s»",
            L"There is no day type “%s”"},
    WordRow{TypeWord::SeveralHourTypes, L"Hay más de un tipo de hora «%s»",
            L"There is more than one hour type “%s”"},
    WordRow{TypeWord::SeveralDayTypes, L"Hay más de un tipo de día «%s»",
            L"There is more than one day type “%s”"},
    WordRow{TypeWord::ValueNotOffered,
            L"El valor de un tipo de hora solo se puede elegir en una instalación embebida",
            L"The value of an hour type can be chosen on an embedded installation only"},
    WordRow{TypeWord::CannotMark,
            L"El tipo de día «%s» no puede marcar fechas: su nombre falta, es también de otro o "
            L"tiene un signo de interrogación",
            L"The day type “%s” cannot mark dates: its name is missing, shared with another, "
            L"or has a question mark"},
    WordRow{TypeWord::HourType, L"Tipo de hora", L"Hour type"},
    WordRow{TypeWord::DayType, L"Tipo de día", L"Day type"},
    WordRow{TypeWord::Made, L"%s «%s» creado", L"%s “%s” made"},
    WordRow{TypeWord::Changed, L"%s «%s» modificado", L"%s “%s” changed"},
    WordRow{TypeWord::Unchanged, L"%s «%s» sin cambios", L"%s “%s” unchanged"},
    WordRow{TypeWord::Removed, L"%s «%s» eliminado", L"%s “%s” removed"},
});

}  // namespace

std::wstring Words(TypeWord word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments) {
  return qv::Format(texts[word].In(language), arguments);
}

void Fail(Outcome& outcome, TypeWord reason, std::initializer_list<qv::FormatArgument> arguments) {
  outcome.errors.push_back(Words(reason, outcome.language, arguments));
  outcome.status = 1;
}

}  // namespace qvdisc
