#include "apps/configurator/OwnTexts.h"

#include <array>

#include "hostkit/EnumTable.h"
#include "hostkit/TextRow.h"

namespace configurator {
namespace {

using OwnTextRow = qv::TextRow<OwnText, char>;

constexpr qv::EnumTable texts(std::array{
    OwnTextRow{OwnText::ProgramName, "Configurador", "Configurator"},
    OwnTextRow{OwnText::FileMenu, "&Archivo", "&File"},
    OwnTextRow{OwnText::OpenInstallation, "&Abrir instalación…", "&Open installation…"},
    OwnTextRow{OwnText::Save, "&Guardar", "&Save"},
    OwnTextRow{OwnText::Quit, "&Salir", "&Quit"},
    OwnTextRow{OwnText::EditMenu, "&Editar", "&Edit"},
    OwnTextRow{OwnText::Undo, "&Deshacer", "&Undo"},
    OwnTextRow{OwnText::UndoEdit, "&Deshacer: %1", "&Undo: %1"},
    OwnTextRow{OwnText::Redo, "&Rehacer", "&Redo"},
    OwnTextRow{OwnText::RedoEdit, "&Rehacer: %1", "&Redo: %1"},
    OwnTextRow{OwnText::NewGroup, "&Nuevo grupo", "New &group"},
    OwnTextRow{OwnText::NewGroupName, "Nuevo grupo", "New group"},
    OwnTextRow{OwnText::RenameGroup, "&Cambiar nombre del grupo", "Re&name group"},
    OwnTextRow{OwnText::RemoveGroup, "&Eliminar grupo", "Remo&ve group"},
    OwnTextRow{OwnText::MoveUp, "&Subir", "Move u&p"},
    OwnTextRow{OwnText::MoveDown, "&Bajar", "Move &down"},
    OwnTextRow{OwnText::MoveToMenu, "&Mover a", "&Move to"},
    OwnTextRow{OwnText::TopLevel, "(fuera de los grupos)", "(outside the groups)"},
    OwnTextRow{OwnText::TakeOutEntry, "&Quitar entrada rota", "&Take out broken entry"},
    OwnTextRow{OwnText::PutInMenu, "&Añadir entrada de", "&Add entry for"},
    OwnTextRow{OwnText::PutInAll, "(todos ellos)", "(all of them)"},
    OwnTextRow{OwnText::ManageDiscriminators, "&Gestionar discriminadores…",
               "Manage dis&criminators…"},
    OwnTextRow{OwnText::SettingsMenu, "&Configuración", "&Settings"},
    OwnTextRow{OwnText::LanguageMenu, "&Idioma", "&Language"},
    OwnTextRow{OwnText::EmbeddedInstallation, "Instalación &embebida", "&Embedded installation"},
    OwnTextRow{OwnText::HelpMenu, "A&yuda", "&Help"},
    OwnTextRow{OwnText::About, "&Acerca de", "&About"},
    OwnTextRow{
        OwnText::AboutProgram,
        "Configurador %1\n\nMuestra los grupos de dispositivos de una instalación y gestiona sus "
        "discriminadores.",
        "Configurator %1\n\nShows the device groups of an installation and manages its "
        "discriminators."},
    OwnTextRow{OwnText::Toolbar, "Herramientas", "Tools"},
    OwnTextRow{OwnText::Discriminators, "&Discriminadores…", "&Discriminators…"},

    OwnTextRow{OwnText::StartQuestion, "¿Con qué instalación quiere trabajar?",
               "Which installation do you want to work on?"},
    OwnTextRow{OwnText::OpenHint, "Un directorio en el que ya hay una configuración",
               "A directory that has a configuration already"},
    OwnTextRow{OwnText::MakeInstallation, "&Nueva instalación…", "&New installation…"},
    OwnTextRow{OwnText::MakeHint, "Una configuración vacía en el directorio que elija",
               "An empty configuration in the directory that you choose"},
    OwnTextRow{OwnText::MakeWhere, "Directorio de la nueva instalación",
               "Directory of the new installation"},
    OwnTextRow{OwnText::TakeExample, "&Copiar el ejemplo…", "&Take the example…"},
    OwnTextRow{OwnText::ExampleHint,
               "Tarifas 2.0TD, 3.0TD y 6.1TD de 2026, en una copia que puede modificar",
               "Tariffs 2.0TD, 3.0TD and 6.1TD for 2026, in a copy that you may change"},
    OwnTextRow{OwnText::ExampleWhere, "Directorio en el que se guarda la copia del ejemplo",
               "Directory to put the copy of the example into"},
    OwnTextRow{OwnText::ExampleName, "Instalación de ejemplo", "Example installation"},

    OwnTextRow{OwnText::GroupMade, "nuevo grupo", "new group"},
    OwnTextRow{OwnText::GroupRenamed, "cambio de nombre", "renaming"},
    OwnTextRow{OwnText::GroupRemoved, "eliminación de grupo", "removal of a group"},
    OwnTextRow{OwnText::LinesMoved, "movimiento", "move"},
    OwnTextRow{OwnText::EntriesTakenOut, "entrada quitada", "entry taken out"},
    OwnTextRow{OwnText::EntriesPutIn, "entrada añadida", "entry added"},

    OwnTextRow{OwnText::Tree, "Grupos y dispositivos", "Groups and devices"},
    OwnTextRow{OwnText::TreeType, "Tipo", "Type"},
    OwnTextRow{OwnText::TreeHint,
               "Los grupos de dispositivos de la instalación. Intro sobre un discriminador abre la "
               "gestión de discriminadores.",
               "The device groups of the installation. Return on a discriminator opens the manager "
               "of discriminators."},
    OwnTextRow{OwnText::UnnamedGroup, "(grupo sin nombre)", "(group without a name)"},
    OwnTextRow{OwnText::UnnamedDevice, "(entrada sin identificador)", "(entry without an id)"},
    OwnTextRow{OwnText::DeviceNotFound, "la instalación no tiene este dispositivo",
               "the installation has no such device"},
    OwnTextRow{OwnText::DiscriminatorNotFound, "no hay ningún archivo de este discriminador",
               "there is no file of this discriminator"},

    OwnTextRow{OwnText::Ready, "Listo", "Ready"},
    OwnTextRow{OwnText::ConfigurationIsNew, "Configuración nueva: su archivo se crea al guardar",
               "New configuration: Save creates its file"},
    OwnTextRow{OwnText::ConfigurationSaved, "Configuración guardada", "Configuration saved"},
    OwnTextRow{OwnText::DiscriminatorFilesChanged,
               "Han cambiado los archivos de discriminadores (8)",
               "Discriminator files changed (8)"},
    OwnTextRow{OwnText::DeviceGroupsChanged, "Han cambiado los grupos de dispositivos (5)",
               "Device groups changed (5)"},
    OwnTextRow{OwnText::PartChanged, "Ha cambiado una parte de la configuración (%1)",
               "A part of the configuration changed (%1)"},

    OwnTextRow{OwnText::SaveChangesQuestion,
               "La configuración de «%1» tiene cambios sin guardar. ¿Guardarlos?",
               "The configuration of “%1” has changes that are not saved. Save them?"},

    OwnTextRow{
        OwnText::ConfigurationUnreadable,
        "No se puede leer la configuración «%1». %2 No se ha modificado. Repárela o muévala a otro "
        "lugar y abra la instalación de nuevo.",
        "The configuration “%1” cannot be read. %2 It has not been changed. Repair it or move it "
        "elsewhere, and open the installation again."},
    OwnTextRow{
        OwnText::ConfigurationForeign,
        "El archivo «%1» no es la configuración de una instalación. No se ha modificado. Elija el "
        "directorio de una instalación o mueva ese archivo a otro lugar.",
        "The file “%1” is not the configuration of an installation. It has not been changed. "
        "Choose the directory of an installation, or move that file elsewhere."},
    OwnTextRow{
        OwnText::ConfigurationNotSaved,
        "No se ha podido guardar la configuración «%1». No cierre el programa: compruebe los "
        "permisos y el espacio del disco, y elija después Archivo > Guardar.",
        "The configuration “%1” could not be saved. Do not close the program: check permissions "
        "and disk space, and then choose File > Save."},
    OwnTextRow{OwnText::DirectoryMissing,
               "El directorio «%1» no existe. Elija el directorio de una instalación.",
               "The directory “%1” does not exist. Choose the directory of an installation."},
    OwnTextRow{OwnText::InstallationThere,
               "En el directorio «%1» ya hay una instalación. No se ha modificado. Elija otro "
               "directorio o abra esa instalación.",
               "There is an installation in the directory “%1” already. It has not been changed. "
               "Choose another directory, or open that installation."},
    OwnTextRow{OwnText::ExampleNotCopied,
               "No se ha podido copiar el ejemplo al directorio «%1». Compruebe los permisos y el "
               "espacio del disco o elija otro directorio.",
               "The example could not be copied into the directory “%1”. Check permissions and "
               "disk space, or choose another directory."},
    OwnTextRow{
        OwnText::LanguageFileMissing,
        "No se puede leer el archivo de idioma «%1». Vuelva a instalar el programa o elija otro "
        "idioma.",
        "The language file “%1” cannot be read. Install the program again, or choose another "
        "language."},
    OwnTextRow{
        OwnText::PictureNotSaved,
        "No se ha podido guardar la imagen «%1». Compruebe que su directorio existe y que se puede "
        "escribir en él.",
        "The picture “%1” could not be saved. Check that its directory exists and can be written "
        "to."},
    OwnTextRow{OwnText::WindowNotShown, "La ventana no ha llegado a mostrarse.",
               "The window was never shown."},
    OwnTextRow{OwnText::NoDiscriminatorOfSlots,
               "La instalación no tiene ningún discriminador así de franjas horarias.",
               "The installation has no such discriminator of time slots."},
});

}  // namespace

QString Words(OwnText text, qv::Language language) {
  return QString::fromUtf8(texts[text].In(language));
}

QString TitleOf(QString menuText) {
  return menuText.remove(QLatin1Char('&')).remove(QChar(0x2026));
}

}  // namespace configurator
