#include "apps/qvdisc/FindingWords.h"

#include <array>

#include "apps/qvdisc/Meaning.h"
#include "apps/qvdisc/Words.h"
#include "hostkit/EnumTable.h"

namespace qvdisc {
namespace {

using qv::Finding;
using qv::FindingKind;

struct KindRow {
  FindingKind key;
  const char* name;
  Word word;
  Meaning meaning;
};

constexpr qv::EnumTable kinds(std::array{
    KindRow{FindingKind::Unreadable,
            "unreadable",
            Word::Unreadable,
            {"el archivo no se puede leer; con línea, columna y motivo",
             "the file can't be read; with line, column and reason"}},
    KindRow{FindingKind::HiddenType,
            "hidden-type",
            Word::HiddenType,
            {"una instalación embebida oculta el tipo CONDITIONS",
             "an embedded installation hides the type CONDITIONS"}},
    KindRow{FindingKind::FileName,
            "file-name",
            Word::FileNameForm,
            {"el nombre no es <id>.<nombre>.xdct; la lista omite el archivo",
             "the name isn't <id>.<name>.xdct; the list leaves the file out"}},
    KindRow{FindingKind::IdDiffers,
            "id-differs",
            Word::IdDiffers,
            {"el campo id no es el del nombre del archivo; la lista lo omite",
             "the field id isn't that of the file's name; the list leaves it out"}},
    KindRow{FindingKind::NameDiffers,
            "name-differs",
            Word::NameDiffers,
            {"el campo name no es el del nombre del archivo; la lista lo omite",
             "the field name isn't that of the file's name; the list leaves it out"}},
    KindRow{
        FindingKind::DeadHourType,
        "dead-hour-type",
        Word::DeadHourType,
        {"una franja de un tipo de hora que no existe", "a slot of an hour type that isn't there"}},
    KindRow{
        FindingKind::DeadDayType,
        "dead-day-type",
        Word::DeadDayType,
        {"una fecha con un tipo de día que no existe", "a date with a day type that isn't there"}},
    KindRow{
        FindingKind::IndexMissing,
        "index-missing",
        Word::IndexMissing,
        {"falta el archivo de índice; index lo crea", "the index file is missing; index makes it"}},
    KindRow{FindingKind::IndexStale,
            "index-stale",
            Word::IndexStale,
            {"el archivo de índice no corresponde a los tipos de hora; index lo rehace",
             "the index file doesn't agree with the hour types; index mends it"}},
    KindRow{FindingKind::IndexUnreadable,
            "index-unreadable",
            Word::IndexUnreadable,
            {"el archivo de índice no se puede leer; index lo rehace",
             "the index file can't be read; index mends it"}},
    KindRow{FindingKind::IndexWithoutUse,
            "index-without-use",
            Word::IndexWithoutUse,
            {"un archivo de índice sin discriminador con tipos de hora",
             "an index file to which no discriminator with hour types belongs"}},
    KindRow{FindingKind::EntryWithoutDiscriminator,
            "entry-without-discriminator",
            Word::EntryWithoutDiscriminator,
            {"una entrada de los grupos de dispositivos que no es de ningún archivo",
             "an entry in the device groups that belongs to no file"}},
    KindRow{FindingKind::DiscriminatorWithoutEntry,
            "discriminator-without-entry",
            Word::DiscriminatorWithoutEntry,
            {"un archivo sin entrada en los grupos de dispositivos",
             "a file without an entry in the device groups"}},
    KindRow{FindingKind::DuplicateEntry,
            "duplicate-entry",
            Word::DuplicateEntry,
            {"una entrada repetida en los grupos de dispositivos",
             "an entry that comes twice in the device groups"}},
    KindRow{FindingKind::DuplicateId,
            "duplicate-id",
            Word::DuplicateId,
            {"dos archivos con el mismo id", "two files with one id"}},
    KindRow{FindingKind::DuplicateName,
            "duplicate-name",
            Word::DuplicateName,
            {"dos archivos con el mismo nombre, salvo mayúsculas",
             "two files with one name but for case"}},
    KindRow{FindingKind::DuplicatePart,
            "duplicate-part",
            Word::DuplicatePart,
            {"dos partes de un archivo con el mismo id o nombre",
             "two parts of a file with one id or one name"}},
    KindRow{FindingKind::ForeignConfiguration,
            "foreign-configuration",
            Word::ForeignConfiguration,
            {"configuration.xml no es la configuración de una instalación",
             "configuration.xml isn't the configuration of an installation"}},
    KindRow{FindingKind::MalformedTime,
            "malformed-time",
            Word::MalformedTime,
            {"una hora de una franja no tiene la forma hh:mm",
             "a time of a slot isn't of the form hh:mm"}},
    KindRow{
        FindingKind::TimeOutOfRange,
        "time-out-of-range",
        Word::TimeOutOfRange,
        {"una hora de una franja no es una hora del día", "a time of a slot is no time of a day"}},
    KindRow{FindingKind::StartAfterEnd,
            "start-after-end",
            Word::StartAfterEnd,
            {"una franja empieza después de su fin", "a slot starts after its end"}},
    KindRow{FindingKind::SlotsOverlap,
            "slots-overlap",
            Word::SlotsOverlap,
            {"dos franjas de un tipo de día se solapan", "two slots of a day type overlap"}},
    KindRow{FindingKind::DayGaps,
            "day-gaps",
            Word::DayGaps,
            {"minutos de un tipo de día sin franja", "minutes of a day type without a slot"}},
    KindRow{FindingKind::WrongYear,
            "wrong-year",
            Word::WrongYear,
            {"un año que no es un número de -32768 a 32767; se lee como otro",
             "a year that is no number from -32768 to 32767; it is read as another"}},
    KindRow{FindingKind::NoSuchMonth,
            "no-such-month",
            Word::NoSuchMonth,
            {"un mes que no existe; no se lee", "a month that doesn't exist; it isn't read"}},
    KindRow{FindingKind::NoSuchDate,
            "no-such-date",
            Word::NoSuchDate,
            {"una fecha que no existe; no se lee", "a date that doesn't exist; it isn't read"}},
    KindRow{FindingKind::DatesBeyondWalk,
            "dates-beyond-walk",
            Word::DatesBeyondWalk,
            {"fechas que se pierden al aceptar el calendario",
             "dates that are lost when the calendar is confirmed"}},
    KindRow{FindingKind::ConditionMissing,
            "condition-missing",
            Word::ConditionMissing,
            {"una condición sin expresión", "a condition without an expression"}},
    KindRow{FindingKind::ConditionMalformed,
            "condition-malformed",
            Word::ConditionMalformed,
            {"una condición cuya expresión no se puede analizar",
             "a condition whose expression doesn't parse"}},
    KindRow{FindingKind::ConditionNotLogical,
            "condition-not-logical",
            Word::ConditionNotLogical,
            {"una condición que no da verdadero ni falso",
             "a condition that gives neither true nor false"}},
    KindRow{FindingKind::ConditionFails,
            "condition-fails",
            Word::ConditionFails,
            {"una condición que no se puede evaluar", "a condition that can't be evaluated"}},
    KindRow{FindingKind::ConditionsAlike,
            "conditions-alike",
            Word::ConditionsAlike,
            {"dos condiciones con la misma expresión", "two conditions with one expression"}},
    KindRow{FindingKind::ConditionTooLong,
            "condition-too-long",
            Word::ConditionTooLong,
            {"una condición de más de 64 caracteres", "a condition of more than 64 characters"}},
});

}  // namespace

const char* KindName(FindingKind kind) { return kinds[kind].name; }

const char* KindMeaning(FindingKind kind, qv::Language language) {
  return kinds[kind].meaning.In(language);
}

std::wstring Sentence(const Finding& finding, qv::Language language) {
  const Word word = kinds[finding.kind].word;
  switch (finding.kind) {
    case FindingKind::Unreadable:
      return finding.line == 0 ? Words(word, language, {finding.value.c_str()})
                               : Words(Word::UnreadableAt, language,
                                       {finding.line, finding.column, finding.value.c_str()});
    case FindingKind::IdDiffers:
    case FindingKind::NameDiffers:
    case FindingKind::WrongYear:
      return Words(word, language, {finding.value.c_str(), finding.expected.c_str()});
    case FindingKind::DuplicatePart:
      return Words(word, language,
                   {finding.expected.c_str(), finding.place.c_str(), finding.value.c_str()});
    case FindingKind::DuplicateId:
    case FindingKind::DuplicateName:
      return Words(word, language, {finding.value.c_str()});
    default:
      return Words(word, language, {finding.place.c_str(), finding.value.c_str()});
  }
}

}  // namespace qvdisc
