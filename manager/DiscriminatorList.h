#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "discriminator/DiscriminatorDirectory.h"
#include "host/EditorEnd.h"
#include "host/Host.h"
#include "host/Progress.h"
#include "host/Prompter.h"
#include "host/Refusal.h"
#include "manager/DiscriminatorListView.h"
#include "tools/Files.h"

namespace qv {

/// A row of the list.
struct STagDiscriminatorRow {
  int ordinal = -1;  ///< place in the order in which the files were found, from 0
  DiscriminatorSummary shown;
};

/// How a removal ended.
enum class RemovalOutcome {
  NothingSelected,
  Declined,  ///< the user said No
  Stopped,   ///< a file could not be deleted
  Done
};

struct [[nodiscard]] RemovalEnd {
  RemovalOutcome outcome = RemovalOutcome::NothingSelected;
  std::optional<int> rowToSelect{};  ///< after `Done`, unless no row is left
  std::optional<Refusal> refusal{};  ///< after `Stopped`: what the user has still to be told
};

/// The discriminators of the configuration directory, as the manager dialog lists them. The files
/// are read at each refresh; between two of them the rows are a snapshot.
class DiscriminatorList {
 public:
  /// `deviceGroups` is the host's node, or null; it isn't owned. All that is referred to outlives
  /// the list.
  DiscriminatorList(const Host& host, Files& files, Prompter& prompter, DiscriminatorListView& view,
                    XmlNode* deviceGroups);

  /// Looks up once whether discriminators of type CONDITIONS are listed: not on embedded
  /// installations.
  void ReadInstallation();

  /// Rebuilds the rows from the files, sorted by name without regard to case, and shows them.
  /// False, with no rows, if `progress` asked to stop.
  [[nodiscard]] bool Refresh(Progress& progress);

  /// The same under the progress of the view.
  void Refresh();

  const std::vector<STagDiscriminatorRow>& Rows() const { return m_rows; }

  /// What the editor is run with: the root of a copy of the device groups (null if the host has no
  /// place for any), and the path of the file, or null for a new discriminator.
  using RunEditor = std::function<EditorEnd(XmlNode* deviceGroups, const QVWideString* filePath)>;

  /// Runs the editor for a new discriminator. If it was saved: notice, refresh, the copy of the
  /// device groups becomes the host's, notice. Gives how the editor ended.
  EditorEnd OnAdd(const RunEditor& runEditor);

  /// Runs the editor for the first of the selected rows, if there is one. If it was saved: a notice
  /// if the content has changed, and a refresh. The device groups stay as they are. Gives how the
  /// editor ended; without a row, as if it had been cancelled.
  EditorEnd OnModify(const std::vector<int>& selectedRows, const RunEditor& runEditor);

  /// Asks, naming some of them, and removes the discriminators of the selected rows (in ascending
  /// order): files, index files, entries in the device groups, rows, with two notices for each; the
  /// row goes from the view between them. It stops at the first file that can't be deleted, and
  /// leaves that row and those after it.
  RemovalEnd OnRemove(const std::vector<int>& selectedRows);

  /// Takes a new discriminator, whose document has this root, into the host's configuration: an
  /// entry in the device groups, and two notices. Its row comes with the next refresh.
  void Announce(const XmlNode& root);

  /// The path of the file of this row, one of `Rows`.
  QVWideString PathOf(int row) const;

  /// Whether something was saved, removed or pasted since the dialog was made, so that the host has
  /// to save its configuration.
  bool Changed() const { return m_changed; }

 private:
  bool Read(Progress& progress);
  void EnsureDeviceGroups();
  std::unique_ptr<XmlDocument> CopyOfDeviceGroups() const;
  bool AskToRemove(const std::vector<int>& rows) const;
  bool RemoveRow(int row);
  DiscriminatorDirectory Directory() const;

  Host m_host;
  Files& m_files;
  Prompter& m_prompter;
  DiscriminatorListView& m_view;
  XmlNode* m_deviceGroups;
  ShowConditions m_showConditions = ShowConditions::Yes;
  bool m_changed = false;
  std::vector<STagDiscriminatorRow> m_rows;
};

}  // namespace qv
