#include "apps/configurator/HostTexts.h"

#include <array>

namespace configurator {
namespace {

struct Row {
  HostText text;
  const char* spanish;
  const char* english;
};

constexpr std::array rows = {
    Row{HostText::ProgramName, "Configurador", "Configurator"},
    Row{HostText::FileMenu, "&Archivo", "&File"},
    Row{HostText::OpenInstallation, "&Abrir instalación…", "&Open installation…"},
    Row{HostText::Save, "&Guardar", "&Save"},
    Row{HostText::Quit, "&Salir", "&Quit"},
    Row{HostText::SettingsMenu, "A&justes", "&Settings"},
    Row{HostText::LanguageMenu, "&Idioma", "&Language"},
    Row{HostText::EmbeddedInstallation, "Instalación &embebida", "&Embedded installation"},
    Row{HostText::HelpMenu, "A&yuda", "&Help"},
    Row{HostText::About, "&Acerca de…", "&About…"},
    Row{HostText::AboutProgram,
        "Configurador %1\n\nMuestra los grupos de dispositivos de una instalación y gestiona sus "
        "discriminadores.",
        "Configurator %1\n\nShows the device groups of an installation and manages its "
        "discriminators."},
    Row{HostText::Toolbar, "Herramientas", "Tools"},
    Row{HostText::Discriminators, "&Discriminadores…", "&Discriminators…"},

    Row{HostText::Tree, "Grupos y dispositivos", "Groups and devices"},
    Row{HostText::TreeType, "Tipo", "Type"},
    Row{HostText::TreeHint, "Los grupos de dispositivos de la instalación",
        "The device groups of the installation"},
    Row{HostText::UnnamedGroup, "(grupo sin nombre)", "(group without a name)"},
    Row{HostText::UnnamedDevice, "(entrada sin identificador)", "(entry without an id)"},
    Row{HostText::DeviceNotFound, "la instalación no tiene este dispositivo",
        "the installation has no such device"},
    Row{HostText::DiscriminatorNotFound, "no hay ningún archivo de este discriminador",
        "there is no file of this discriminator"},

    Row{HostText::Ready, "Listo", "Ready"},
    Row{HostText::ConfigurationIsNew, "Configuración nueva: Guardar crea su archivo",
        "New configuration: Save makes its file"},
    Row{HostText::ConfigurationSaved, "Configuración guardada", "Configuration saved"},
    Row{HostText::DiscriminatorFilesChanged, "Han cambiado los archivos de discriminadores (8)",
        "Discriminator files changed (8)"},
    Row{HostText::DeviceGroupsChanged, "Han cambiado los grupos de dispositivos (5)",
        "Device groups changed (5)"},
    Row{HostText::PartChanged, "Ha cambiado una parte de la configuración (%1)",
        "A part of the configuration changed (%1)"},

    Row{HostText::ConfigurationUnreadable,
        "No se puede leer la configuración «%1»: falta el permiso o el archivo está dañado. No se "
        "ha modificado. Repárelo o retírelo de ahí y abra la instalación de nuevo.",
        "The configuration “%1” can't be read: there is no permission, or the file is damaged. It "
        "has not been changed. Repair it or move it away, and open the installation again."},
    Row{HostText::ConfigurationForeign,
        "El archivo «%1» no es la configuración de una instalación. No se ha modificado. Elija el "
        "directorio de una instalación o retire de ahí ese archivo.",
        "The file “%1” is not the configuration of an installation. It has not been changed. "
        "Choose the directory of an installation, or move that file away."},
    Row{HostText::ConfigurationNotSaved,
        "No se ha podido guardar la configuración «%1». No cierre el programa: compruebe los "
        "permisos y el espacio del disco, y elija después Archivo > Guardar.",
        "The configuration “%1” could not be saved. Don't close the program: check permissions "
        "and disk space, and then choose File > Save."},
    Row{HostText::DirectoryMissing,
        "El directorio «%1» no existe. Elija el directorio de una instalación.",
        "The directory “%1” does not exist. Choose the directory of an installation."},
    Row{HostText::LanguageFileMissing,
        "No se puede leer el archivo de idioma «%1». Vuelva a instalar el programa o elija otro "
        "idioma.",
        "The language file “%1” can't be read. Install the program again, or choose another "
        "language."},
    Row{HostText::PictureNotSaved,
        "No se ha podido guardar la imagen «%1». Compruebe que su directorio existe y que se puede "
        "escribir en él.",
        "The picture “%1” could not be saved. Check that its directory exists and can be written "
        "to."},
    Row{HostText::WindowNotShown, "La ventana no ha llegado a mostrarse.",
        "The window was never shown."},
};

constexpr bool EachRowStandsAtItsText() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].text != static_cast<HostText>(i)) {
      return false;
    }
  }
  return rows.size() == static_cast<std::size_t>(HostText::Count);
}
static_assert(EachRowStandsAtItsText());

}  // namespace

QString Words(HostText text, Language language) {
  const Row& row = rows.at(static_cast<std::size_t>(text));
  return QString::fromUtf8(language == Language::Spanish ? row.spanish : row.english);
}

}  // namespace configurator
