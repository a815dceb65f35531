#include "apps/configurator/OwnTexts.h"

#include <array>

namespace configurator {
namespace {

struct Row {
  OwnText text;
  const char* spanish;
  const char* english;
};

constexpr std::array rows = {
    Row{OwnText::ProgramName, "Configurador", "Configurator"},
    Row{OwnText::FileMenu, "&Archivo", "&File"},
    Row{OwnText::OpenInstallation, "&Abrir instalación…", "&Open installation…"},
    Row{OwnText::Save, "&Guardar", "&Save"},
    Row{OwnText::Quit, "&Salir", "&Quit"},
    Row{OwnText::EditMenu, "&Editar", "&Edit"},
    Row{OwnText::Undo, "&Deshacer", "&Undo"},
    Row{OwnText::UndoEdit, "&Deshacer: %1", "&Undo: %1"},
    Row{OwnText::Redo, "&Rehacer", "&Redo"},
    Row{OwnText::RedoEdit, "&Rehacer: %1", "&Redo: %1"},
    Row{OwnText::NewGroup, "&Nuevo grupo", "New &group"},
    Row{OwnText::NewGroupName, "Nuevo grupo", "New group"},
    Row{OwnText::RenameGroup, "&Cambiar nombre del grupo", "Re&name group"},
    Row{OwnText::RemoveGroup, "&Eliminar grupo", "Remo&ve group"},
    Row{OwnText::MoveUp, "&Subir", "Move u&p"},
    Row{OwnText::MoveDown, "&Bajar", "Move &down"},
    Row{OwnText::MoveToMenu, "&Mover a", "&Move to"},
    Row{OwnText::TopLevel, "(fuera de los grupos)", "(outside the groups)"},
    Row{OwnText::SettingsMenu, "&Configuración", "&Settings"},
    Row{OwnText::LanguageMenu, "&Idioma", "&Language"},
    Row{OwnText::EmbeddedInstallation, "Instalación &embebida", "&Embedded installation"},
    Row{OwnText::HelpMenu, "A&yuda", "&Help"},
    Row{OwnText::About, "&Acerca de", "&About"},
    Row{OwnText::AboutProgram,
        "Configurador %1\n\nMuestra los grupos de dispositivos de una instalación y gestiona sus "
        "discriminadores.",
        "Configurator %1\n\nShows the device groups of an installation and manages its "
        "discriminators."},
    Row{OwnText::Toolbar, "Herramientas", "Tools"},
    Row{OwnText::Discriminators, "&Discriminadores…", "&Discriminators…"},

    Row{OwnText::GroupMade, "nuevo grupo", "new group"},
    Row{OwnText::GroupRenamed, "cambio de nombre", "renaming"},
    Row{OwnText::GroupRemoved, "eliminación de grupo", "removal of a group"},
    Row{OwnText::LinesMoved, "movimiento", "move"},

    Row{OwnText::Tree, "Grupos y dispositivos", "Groups and devices"},
    Row{OwnText::TreeType, "Tipo", "Type"},
    Row{OwnText::TreeHint, "Los grupos de dispositivos de la instalación",
        "The device groups of the installation"},
    Row{OwnText::UnnamedGroup, "(grupo sin nombre)", "(group without a name)"},
    Row{OwnText::UnnamedDevice, "(entrada sin identificador)", "(entry without an id)"},
    Row{OwnText::DeviceNotFound, "la instalación no tiene este dispositivo",
        "the installation has no such device"},
    Row{OwnText::DiscriminatorNotFound, "no hay ningún archivo de este discriminador",
        "there is no file of this discriminator"},

    Row{OwnText::Ready, "Listo", "Ready"},
    Row{OwnText::ConfigurationIsNew, "Configuración nueva: su archivo se crea al guardar",
        "New configuration: Save creates its file"},
    Row{OwnText::ConfigurationSaved, "Configuración guardada", "Configuration saved"},
    Row{OwnText::DiscriminatorFilesChanged, "Han cambiado los archivos de discriminadores (8)",
        "Discriminator files changed (8)"},
    Row{OwnText::DeviceGroupsChanged, "Han cambiado los grupos de dispositivos (5)",
        "Device groups changed (5)"},
    Row{OwnText::PartChanged, "Ha cambiado una parte de la configuración (%1)",
        "A part of the configuration changed (%1)"},

    Row{OwnText::SaveChangesQuestion,
        "La configuración de «%1» tiene cambios sin guardar. ¿Guardarlos?",
        "The configuration of “%1” has changes that are not saved. Save them?"},

    Row{OwnText::ConfigurationUnreadable,
        "No se puede leer la configuración «%1»: no hay permiso de lectura o el archivo está "
        "dañado. No se ha modificado. Repárelo o muévalo a otro lugar y abra la instalación de "
        "nuevo.",
        "The configuration “%1” cannot be read: there is no permission, or the file is damaged. It "
        "has not been changed. Repair it or move it elsewhere, and open the installation again."},
    Row{OwnText::ConfigurationForeign,
        "El archivo «%1» no es la configuración de una instalación. No se ha modificado. Elija el "
        "directorio de una instalación o mueva ese archivo a otro lugar.",
        "The file “%1” is not the configuration of an installation. It has not been changed. "
        "Choose the directory of an installation, or move that file elsewhere."},
    Row{OwnText::ConfigurationNotSaved,
        "No se ha podido guardar la configuración «%1». No cierre el programa: compruebe los "
        "permisos y el espacio del disco, y elija después Archivo > Guardar.",
        "The configuration “%1” could not be saved. Do not close the program: check permissions "
        "and disk space, and then choose File > Save."},
    Row{OwnText::DirectoryMissing,
        "El directorio «%1» no existe. Elija el directorio de una instalación.",
        "The directory “%1” does not exist. Choose the directory of an installation."},
    Row{OwnText::LanguageFileMissing,
        "No se puede leer el archivo de idioma «%1». Vuelva a instalar el programa o elija otro "
        "idioma.",
        "The language file “%1” cannot be read. Install the program again, or choose another "
        "language."},
    Row{OwnText::PictureNotSaved,
        "No se ha podido guardar la imagen «%1». Compruebe que su directorio existe y que se puede "
        "escribir en él.",
        "The picture “%1” could not be saved. Check that its directory exists and can be written "
        "to."},
    Row{OwnText::WindowNotShown, "La ventana no ha llegado a mostrarse.",
        "The window was never shown."},
};

constexpr bool EachRowStandsAtItsText() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].text != static_cast<OwnText>(i)) {
      return false;
    }
  }
  return rows.size() == static_cast<std::size_t>(OwnText::Count);
}
static_assert(EachRowStandsAtItsText());

}  // namespace

QString Words(OwnText text, qv::Language language) {
  const Row& row = rows.at(static_cast<std::size_t>(text));
  return QString::fromUtf8(language == qv::Language::Spanish ? row.spanish : row.english);
}

}  // namespace configurator
