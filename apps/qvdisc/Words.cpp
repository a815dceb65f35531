#include "apps/qvdisc/Words.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tools/Utf8.h"

namespace qvdisc {
namespace {

struct Row {
  Word word;
  const wchar_t* spanish;
  const wchar_t* english;
};

constexpr std::array rows = {
    Row{Word::NoSuchDiscriminator, L"No hay ningún discriminador «%s» en la lista",
        L"There is no discriminator “%s” in the list"},
    Row{Word::SeveralDiscriminators,
        L"«%s» puede ser más de un discriminador: escriba <id>.<nombre>",
        L"“%s” can be more than one discriminator: write <id>.<name>"},
    Row{Word::ConfigurationUnreadable,
        L"No se puede leer configuration.xml de «%s»: no hay permiso de lectura o está dañado",
        L"configuration.xml of “%s” cannot be read: there is no permission, or it is damaged"},
    Row{Word::ConfigurationForeign,
        L"configuration.xml de «%s» no es la configuración de una instalación",
        L"configuration.xml of “%s” is not the configuration of an installation"},
    Row{Word::ConfigurationNotSaved,
        L"No se ha podido guardar configuration.xml de «%s»: su contenido se escribe en la salida "
        L"estándar; compruebe los permisos y el espacio del disco",
        L"configuration.xml of “%s” could not be saved: its content is written to standard output; "
        L"check permissions and disk space"},
    Row{Word::LanguageFileMissing, L"No se puede leer el archivo de idioma «%s»",
        L"The language file “%s” cannot be read"},
    Row{Word::TypeNotSelectable, L"El tipo no se puede elegir en una instalación embebida",
        L"The type cannot be chosen on an embedded installation"},
    Row{Word::DiscriminatorUnreadable, L"No se puede leer el discriminador «%s»",
        L"The discriminator “%s” cannot be read"},
    Row{Word::ContentFollows, L"El contenido se escribe en la salida estándar; «paste» lo acepta",
        L"Its content is written to standard output; “paste” takes it"},
    Row{Word::IndexNotWritten, L"No se ha podido escribir el archivo de índice de «%s»",
        L"The index file of “%s” could not be written"},
    Row{Word::NothingToPaste, L"La entrada estándar no contiene discriminadores",
        L"Standard input holds no discriminators"},
    Row{Word::NotAllPasted, L"No se ha podido escribir el archivo de %d discriminadores",
        L"The files of %d discriminators could not be written"},
    Row{Word::AnswerNeeded, L"Esta pregunta necesita --yes o --no",
        L"This question needs --yes or --no"},
    Row{Word::OutputFailed, L"No se ha podido escribir toda la salida",
        L"Not all of the output could be written"},

    Row{Word::YesOrNo, L"[s/n]", L"[y/n]"},

    Row{Word::Name, L"Nombre", L"Name"},
    Row{Word::Description, L"Descripción", L"Description"},
    Row{Word::Stem, L"Archivo", L"Stem"},
    Row{Word::Id, L"Identificador", L"Id"},
    Row{Word::Type, L"Tipo", L"Type"},
    Row{Word::ZeroOutside, L"Cero fuera de franja", L"Zero outside slots"},
    Row{Word::Revision, L"Revisión", L"Revision"},
    Row{Word::HourTypes, L"Tipos de hora", L"Hour types"},
    Row{Word::DayTypes, L"Tipos de día", L"Day types"},
    Row{Word::Calendar, L"Calendario", L"Calendar"},
    Row{Word::Conditions, L"Condiciones", L"Conditions"},
    Row{Word::Yes, L"sí", L"yes"},
    Row{Word::No, L"no", L"no"},
    Row{Word::DatesOfYear, L"%s: %d fechas", L"%s: %d dates"},
    Row{Word::Answer, L"(respuesta: %s)", L"(answer: %s)"},
    Row{Word::IndexWritten, L"%s: índice escrito", L"%s: index written"},
    Row{Word::IndexNotNeeded, L"%s: sin tipos de hora, no necesita índice",
        L"%s: no hour types, needs no index"},
    Row{Word::Reading, L"Leyendo %d de %d", L"Reading %d of %d"},
    Row{Word::Listed, L"%s: aparece en la lista", L"%s: listed"},
    Row{Word::NothingFound, L"%d archivos, nada que objetar", L"%d files, nothing found"},
    Row{Word::Found, L"%d hallazgos en %d archivos", L"%d findings in %d files"},

    Row{Word::Unreadable, L"no se puede leer: %s", L"cannot be read: %s"},
    Row{Word::UnreadableAt, L"no se puede leer: línea %u, columna %u: %s",
        L"cannot be read: line %u, column %u: %s"},
    Row{Word::ForeignConfiguration, L"no es la configuración de una instalación",
        L"is not the configuration of an installation"},
    Row{Word::HiddenType,
        L"no aparece en la lista: la instalación es embebida y oculta el tipo CONDITIONS",
        L"not in the list: the installation is embedded and hides the type CONDITIONS"},
    Row{Word::FileNameForm, L"no aparece en la lista: el nombre no es <id>.<nombre>.xdct",
        L"not in the list: the name is not <id>.<name>.xdct"},
    Row{Word::IdDiffers,
        L"no aparece en la lista: el campo id es «%s», el nombre del archivo dice «%s»",
        L"not in the list: the field id is “%s”, the name of the file says “%s”"},
    Row{Word::NameDiffers,
        L"no aparece en la lista: el campo name es «%s», el nombre del archivo dice «%s»",
        L"not in the list: the field name is “%s”, the name of the file says “%s”"},
    Row{Word::DeadHourType, L"%s: no hay ningún tipo de hora con el id «%s»",
        L"%s: there is no hour type with the id “%s”"},
    Row{Word::DeadDayType, L"%s: no hay ningún tipo de día con el id «%s»",
        L"%s: there is no day type with the id “%s”"},
    Row{Word::IndexMissing, L"falta el archivo de índice", L"the index file is missing"},
    Row{Word::IndexStale, L"el archivo de índice no corresponde a los tipos de hora",
        L"the index file does not agree with the hour types"},
    Row{Word::IndexUnreadable, L"no se puede leer el archivo de índice",
        L"the index file cannot be read"},
    Row{Word::IndexWithoutUse, L"archivo de índice sin discriminador con tipos de hora",
        L"index file without a discriminator that has hour types"},
    Row{Word::EntryWithoutDiscriminator, L"%s: la entrada «%s» no es de ningún discriminador",
        L"%s: the entry “%s” belongs to no discriminator"},
    Row{Word::DiscriminatorWithoutEntry, L"no tiene entrada en los grupos de dispositivos",
        L"has no entry in the device groups"},
    Row{Word::DuplicateEntry, L"%s: la entrada «%s» está repetida",
        L"%s: the entry “%s” is a repetition"},
    Row{Word::DuplicateId, L"otro archivo tiene el mismo id «%s»",
        L"another file has the same id “%s”"},
    Row{Word::DuplicateName, L"otro archivo tiene el mismo nombre «%s»",
        L"another file has the same name “%s”"},
    Row{Word::DuplicatePart, L"%s repetido en %s: «%s»", L"repeated %s in %s: “%s”"},
    Row{Word::MalformedTime, L"%s: «%s» no tiene la forma hh:mm y se muestra como 00:00",
        L"%s: “%s” is not of the form hh:mm and shows as 00:00"},
    Row{Word::TimeOutOfRange, L"%s: «%s» no es una hora del día", L"%s: “%s” is no time of a day"},
    Row{Word::StartAfterEnd, L"%s: empieza después de su fin", L"%s: starts after its end"},
    Row{Word::SlotsOverlap, L"%s: se solapa con %s", L"%s: overlaps %s"},
    Row{Word::DayGaps, L"%s: %s minutos sin franja", L"%s: %s minutes without a slot"},
};

constexpr bool EachRowStandsAtItsWord() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].word != static_cast<Word>(i)) {
      return false;
    }
  }
  return rows.size() == static_cast<std::size_t>(Word::Count);
}
static_assert(EachRowStandsAtItsWord());

}  // namespace

std::wstring Words(Word word, qv::Language language,
                   std::initializer_list<qv::FormatArgument> arguments) {
  const Row& row = rows.at(static_cast<std::size_t>(word));
  return qv::Format(language == qv::Language::Spanish ? row.spanish : row.english, arguments);
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
