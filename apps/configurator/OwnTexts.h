#pragma once

#include <QString>

#include "hostkit/Language.h"

namespace configurator {

/// The texts of this program itself. Those of the library's dialogs are in the language files.
enum class OwnText {
  ProgramName,
  FileMenu,
  OpenInstallation,
  Save,
  Quit,
  EditMenu,
  Undo,
  UndoEdit,  ///< %1 is what the edit did
  Redo,
  RedoEdit,  ///< %1 likewise
  NewGroup,
  NewGroupName,
  RenameGroup,
  RemoveGroup,
  MoveUp,
  MoveDown,
  MoveToMenu,
  TopLevel,
  TakeOutEntry,
  PutInMenu,
  PutInAll,
  ManageDiscriminators,
  SettingsMenu,
  LanguageMenu,
  EmbeddedInstallation,
  HelpMenu,
  About,
  AboutProgram,  ///< %1 is the version
  Toolbar,
  Discriminators,

  // The window of a start without an installation
  StartQuestion,
  OpenHint,
  MakeInstallation,
  MakeHint,
  MakeWhere,
  TakeExample,
  ExampleHint,
  ExampleWhere,
  ExampleName,  ///< of a directory

  // What an edit did, as the undo menu tells it
  GroupMade,
  GroupRenamed,
  GroupRemoved,
  LinesMoved,
  EntriesTakenOut,
  EntriesPutIn,

  Tree,      ///< heading of the names in the tree of devices and groups
  TreeType,  ///< heading of the types
  TreeHint,  ///< accessible description of the tree
  UnnamedGroup,
  UnnamedDevice,          ///< the entry has no id
  DeviceNotFound,         ///< behind the type
  DiscriminatorNotFound,  ///< behind the type

  Ready,
  ConfigurationIsNew,
  ConfigurationSaved,
  DiscriminatorFilesChanged,
  DeviceGroupsChanged,
  PartChanged,  ///< %1 is the number of the part

  SaveChangesQuestion,  ///< %1 is the directory

  // What went wrong, and what to do; %1 is the file or directory
  ConfigurationUnreadable,  ///< %2 is why
  ConfigurationForeign,
  ConfigurationNotSaved,
  DirectoryMissing,
  InstallationThere,
  ExampleNotCopied,
  LanguageFileMissing,
  PictureNotSaved,
  WindowNotShown,
  NoDiscriminatorOfSlots,

  Count
};

/// The text in this language. A letter that follows "&" is the key that selects it.
QString Words(OwnText text, qv::Language language);

/// The title of the window that a menu's entry of this text opens: without the mark of its key, and
/// without the ellipsis that announces a window.
QString TitleOf(QString menuText);

}  // namespace configurator
