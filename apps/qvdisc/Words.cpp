#include "apps/qvdisc/Words.h"

#include <algorithm>
#include <array>

#include "hostkit/EnumTable.h"
#include "hostkit/TextRow.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

using WordRow = qv::TextRow<Word, wchar_t>;

constexpr qv::EnumTable texts(std::array{
    WordRow{Word::NoSuchDiscriminator, L"No hay ningún discriminador «%s» en la lista",
            L"There is no discriminator “%s” in the list"},
    WordRow{Word::SeveralDiscriminators,
            L"«%s» puede ser más de un discriminador: escriba <id>.<nombre>",
            L"“%s” can be more than one discriminator: write <id>.<name>"},
    WordRow{Word::ConfigurationUnreadable,
            L"No se puede leer configuration.xml de «%s»: no hay permiso de lectura o está dañado",
            L"configuration.xml of “%s” cannot be read: there is no permission, or it is damaged"},
    WordRow{Word::ConfigurationForeign,
            L"configuration.xml de «%s» no es la configuración de una instalación",
            L"configuration.xml of “%s” is not the configuration of an installation"},
    WordRow{
        Word::ConfigurationNotSaved,
        L"No se ha podido guardar configuration.xml de «%s»: su contenido se escribe en la salida "
        L"estándar; compruebe los permisos y el espacio del disco",
        L"configuration.xml of “%s” could not be saved: its content is written to standard output; "
        L"check permissions and disk space"},
    WordRow{Word::LanguageFileMissing, L"No se puede leer el archivo de idioma «%s»",
            L"The language file “%s” cannot be read"},
    WordRow{Word::TypeNotSelectable, L"El tipo no se puede elegir en una instalación embebida",
            L"The type cannot be chosen on an embedded installation"},
    WordRow{Word::DiscriminatorUnreadable, L"No se puede leer el discriminador «%s»",
            L"The discriminator “%s” cannot be read"},
    WordRow{Word::ContentFollows,
            L"El contenido se escribe en la salida estándar; «paste» lo acepta",
            L"Its content is written to standard output; “paste” takes it"},
    WordRow{Word::IndexNotWritten, L"No se ha podido escribir el archivo de índice de «%s»",
            L"The index file of “%s” could not be written"},
    WordRow{Word::NothingToPaste, L"La entrada estándar no contiene discriminadores",
            L"Standard input holds no discriminators"},
    WordRow{Word::NotAllPasted, L"No se ha podido escribir el archivo de %d discriminadores",
            L"The files of %d discriminators could not be written"},
    WordRow{Word::AnswerNeeded, L"Esta pregunta necesita --yes o --no",
            L"This question needs --yes or --no"},
    WordRow{Word::OutputFailed, L"No se ha podido escribir toda la salida",
            L"Not all of the output could be written"},
    WordRow{Word::LeftOutBeyondWalk,
            L"Sin guardar: %s; el primer día marcado es mayor que el último",
            L"Left out: %s; the day of the month of the first marked date is greater than that of "
            L"the last"},
    WordRow{Word::LeftOutWithoutType, L"Sin guardar: %s; su tipo de día ya no existe",
            L"Left out: %s; their day type is not there any more"},

    WordRow{Word::YesOrNo, L"[s/n]", L"[y/n]"},

    WordRow{Word::Name, L"Nombre", L"Name"},
    WordRow{Word::Description, L"Descripción", L"Description"},
    WordRow{Word::Stem, L"Archivo", L"Stem"},
    WordRow{Word::Id, L"Identificador", L"Id"},
    WordRow{Word::Type, L"Tipo", L"Type"},
    WordRow{Word::ZeroOutside, L"Cero fuera de franja", L"Zero outside slots"},
    WordRow{Word::Revision, L"Revisión", L"Revision"},
    WordRow{Word::HourTypes, L"Tipos de hora", L"Hour types"},
    WordRow{Word::DayTypes, L"Tipos de día", L"Day types"},
    WordRow{Word::Calendar, L"Calendario", L"Calendar"},
    WordRow{Word::Conditions, L"Condiciones", L"Conditions"},
    WordRow{Word::Yes, L"sí", L"yes"},
    WordRow{Word::No, L"no", L"no"},
    WordRow{Word::OneDate, L"1 fecha", L"1 date"},
    WordRow{Word::Dates, L"%d fechas", L"%d dates"},
    WordRow{Word::DatesFromTo, L"%s a %s", L"%s to %s"},
    WordRow{Word::NoKnownDayType, L"(sin tipo de día conocido)", L"(no known day type)"},
    WordRow{Word::MarkedAs, L"%s con el tipo de día «%s»", L"%s marked as “%s”"},
    WordRow{Word::Unmarked, L"%s sin tipo de día", L"%s unmarked"},
    WordRow{Word::Answer, L"(respuesta: %s)", L"(answer: %s)"},
    WordRow{Word::Made, L"%s: creado", L"%s: made"},
    WordRow{Word::WouldWrite, L"se escribiría: %s", L"would write: %s"},
    WordRow{Word::WouldRemove, L"se eliminaría: %s", L"would remove: %s"},
    WordRow{Word::WouldDoNothing, L"no se escribiría ni eliminaría nada",
            L"would write and remove nothing"},
    WordRow{Word::IndexWritten, L"%s: índice escrito", L"%s: index written"},
    WordRow{Word::IndexNotNeeded, L"%s: sin tipos de hora, no necesita índice",
            L"%s: no hour types, needs no index"},
    WordRow{Word::Reading, L"Leyendo %d de %d", L"Reading %d of %d"},
    WordRow{Word::Listed, L"%s: aparece en la lista", L"%s: listed"},
    WordRow{Word::OneFile, L"1 archivo", L"1 file"},
    WordRow{Word::Files, L"%d archivos", L"%d files"},
    WordRow{Word::OneFault, L"1 fallo", L"1 fault"},
    WordRow{Word::Faults, L"%d fallos", L"%d faults"},
    WordRow{Word::OneNote, L"1 nota", L"1 note"},
    WordRow{Word::Notes, L"%d notas", L"%d notes"},
    WordRow{Word::Note, L"nota: %s", L"note: %s"},
    WordRow{Word::NothingFound, L"%s, sin incidencias", L"%s, nothing found"},
    WordRow{Word::Found, L"%s en %s", L"%s in %s"},
    WordRow{Word::FaultsAndNotes, L"%s y %s en %s", L"%s and %s in %s"},

    WordRow{Word::Unreadable, L"no se puede leer: %s", L"cannot be read: %s"},
    WordRow{Word::UnreadableAt, L"no se puede leer: línea %u, columna %u: %s",
            L"cannot be read: line %u, column %u: %s"},
    WordRow{Word::ForeignConfiguration, L"no es la configuración de una instalación",
            L"is not the configuration of an installation"},
    WordRow{Word::HiddenType,
            L"no aparece en la lista: la instalación es embebida y oculta el tipo CONDITIONS",
            L"not in the list: the installation is embedded and hides the type CONDITIONS"},
    WordRow{Word::FileNameForm, L"no aparece en la lista: el nombre no es <id>.<nombre>.xdct",
            L"not in the list: the name is not <id>.<name>.xdct"},
    WordRow{Word::IdDiffers,
            L"no aparece en la lista: el campo id es «%s», el nombre del archivo dice «%s»",
            L"not in the list: the field id is “%s”, the name of the file says “%s”"},
    WordRow{Word::NameDiffers,
            L"no aparece en la lista: el campo name es «%s», el nombre del archivo dice «%s»",
            L"not in the list: the field name is “%s”, the name of the file says “%s”"},
    WordRow{Word::DeadHourType, L"%s: no hay ningún tipo de hora con el id «%s»",
            L"%s: there is no hour type with the id “%s”"},
    WordRow{Word::DeadDayType, L"%s: no hay ningún tipo de día con el id «%s»",
            L"%s: there is no day type with the id “%s”"},
    WordRow{Word::IndexMissing, L"falta el archivo de índice", L"the index file is missing"},
    WordRow{Word::IndexStale, L"el archivo de índice no corresponde a los tipos de hora",
            L"the index file does not agree with the hour types"},
    WordRow{Word::IndexUnreadable, L"no se puede leer el archivo de índice",
            L"the index file cannot be read"},
    WordRow{Word::IndexWithoutUse, L"archivo de índice sin discriminador con tipos de hora",
            L"index file without a discriminator that has hour types"},
    WordRow{Word::EntryWithoutDiscriminator, L"%s: la entrada «%s» no es de ningún discriminador",
            L"%s: the entry “%s” belongs to no discriminator"},
    WordRow{Word::DiscriminatorWithoutEntry, L"no tiene entrada en los grupos de dispositivos",
            L"has no entry in the device groups"},
    WordRow{Word::DuplicateEntry, L"%s: la entrada «%s» está repetida",
            L"%s: the entry “%s” is a repetition"},
    WordRow{Word::DuplicateId, L"otro archivo tiene el mismo id «%s»",
            L"another file has the same id “%s”"},
    WordRow{Word::DuplicateName, L"otro archivo tiene el mismo nombre «%s»",
            L"another file has the same name “%s”"},
    WordRow{Word::DuplicatePart, L"%s repetido en %s: «%s»", L"repeated %s in %s: “%s”"},
    WordRow{Word::MalformedTime, L"%s: «%s» no tiene la forma hh:mm y se muestra como 00:00",
            L"%s: “%s” is not of the form hh:mm and shows as 00:00"},
    WordRow{Word::TimeOutOfRange, L"%s: «%s» no es una hora del día",
            L"%s: “%s” is no time of a day"},
    WordRow{Word::StartAfterEnd, L"%s: empieza después de su fin", L"%s: starts after its end"},
    WordRow{Word::SlotsOverlap, L"%s: se solapa con %s", L"%s: overlaps %s"},
    WordRow{Word::DayGaps, L"%s: %s minutos sin franja", L"%s: %s minutes without a slot"},
    WordRow{Word::WrongYear, L"calendar: el año «%s» se lee como %s",
            L"calendar: the year “%s” is read as %s"},
    WordRow{Word::NoSuchMonth, L"%s: no existe el mes %s", L"%s: there is no month %s"},
    WordRow{Word::NoSuchDate, L"%s: no existe el día %s", L"%s: there is no day %s"},
    WordRow{Word::DatesBeyondWalk,
            L"%s: se pierden %s fechas al aceptar el calendario: el primer día marcado es mayor "
            L"que el último",
            L"%s: %s dates are lost when the calendar is confirmed: the day of the month of the "
            L"first marked date is greater than that of the last"},
    WordRow{Word::ConditionMissing, L"%s: no tiene expresión", L"%s: has no expression"},
    WordRow{Word::ConditionMalformed, L"%s: la expresión no se puede analizar: %s",
            L"%s: the expression does not parse: %s"},
    WordRow{Word::ConditionNotLogical, L"%s: la expresión no da verdadero ni falso",
            L"%s: the expression gives neither true nor false"},
    WordRow{Word::ConditionFails, L"%s: la expresión no se puede evaluar: %s",
            L"%s: the expression cannot be evaluated: %s"},
    WordRow{Word::ConditionsAlike, L"%s: misma expresión que «%s», que va antes",
            L"%s: same expression as “%s”, which comes before"},
    WordRow{Word::ConditionTooLong,
            L"%s: %s caracteres; al aceptarla en su ventana se conservan los primeros 64",
            L"%s: %s characters; its window keeps the first 64 when it is confirmed"},
});

}  // namespace

std::wstring Words(Word word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments) {
  return qv::Format(texts[word].In(language), arguments);
}

std::string NarrowWords(Word word, qv::Language language,
                        std::initializer_list<qv::FormatArgument> arguments) {
  return Utf8(Words(word, language, arguments));
}

std::wstring OneLine(std::wstring text) {
  constexpr wchar_t firstPrintable = L' ';
  constexpr wchar_t deletion = 0x7F;
  constexpr wchar_t lastControl = 0x9F;
  std::replace_if(
      text.begin(), text.end(),
      [](wchar_t letter) {
        return letter < firstPrintable || (letter >= deletion && letter <= lastControl);
      },
      L' ');
  return text;
}

std::string Utf8(std::wstring_view text) {
  if (auto utf8 = qv::ToUtf8(text)) {
    return *std::move(utf8);
  }
  std::string parts;
  for (const wchar_t letter : text) {
    parts += qv::ToUtf8(std::wstring_view(&letter, 1)).value_or("\xEF\xBF\xBD");
  }
  return parts;
}

}  // namespace qvdisc
