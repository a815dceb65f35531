#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <QObject>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "host/Host.h"
#include "toolkit/ReportList.h"
#include "tools/Colour.h"

namespace qv {

class EmptyHint;

/// A row of a list: its texts, and the icon before the first one, or none.
struct ListRow {
  QStringList texts;
  QIcon icon{};
};

/// A list with the buttons Add, Modify and Remove, or without them, as a dialog holds it. It shows
/// rows and says which are selected; what the verbs do is up to the dialog.
class ListPart : public QObject {
 public:
  /// The controls of a template; a list may lack any of the buttons.
  struct Controls {
    ReportList* view;
    QAbstractButton* add = nullptr;
    QAbstractButton* modify = nullptr;
    QAbstractButton* remove = nullptr;
  };

  /// What the buttons do, and with them the keys: Insert adds, Delete removes, and a double click
  /// anywhere in the list modifies. A list may lack any of them.
  struct Verbs {
    std::function<void()> add{};
    std::function<void()> modify{};
    std::function<void()> remove{};
  };

  /// The controls outlive the part.
  ListPart(const Controls& controls, Verbs verbs);

  const Controls& Parts() const { return m_controls; }

  /// Gives the buttons their texts and pictures and tells their keys; an empty list says how to
  /// begin.
  void InitializeButtons(const Host& host);
  /// Says in grey, while the list is empty, what there is to say.
  void SetEmptyHint(const QString& hint);
  /// Gives the list its columns, which share its width.
  void CreateColumns(const QVLoadString& loadString, const std::vector<Text>& headings);

  /// A row with the icon of a colour before it.
  ListRow ColouredRow(const QStringList& texts, Colour colour) const;
  /// Shows these rows in place of those before, and selects one of them, or none. The selected row
  /// is the current one, from which the arrow keys go on; without one `current` is, if any.
  void Show(const std::vector<ListRow>& rows, std::optional<int> select,
            std::optional<int> current = std::nullopt);
  /// Adds a row at the end; what is selected stays so.
  void AppendRow(const ListRow& row);
  /// Gives a row these texts.
  void SetTexts(int row, const QStringList& texts);
  /// Takes a row away. The buttons follow with the next selection, or `EnableDisableButtons`.
  void RemoveRow(int row);
  void Select(int row);
  /// Makes a row the current one, to be seen, and leaves the selection as it is.
  void MakeCurrent(int row);
  void Clear() { m_controls.view->clear(); }

  /// The numbers of the selected rows, from the top.
  std::vector<int> SelectedRows() const { return m_controls.view->SelectedRows(); }
  /// The first of them, if any.
  std::optional<int> SelectedRow() const;

  /// The row from which the arrow keys go on, if any.
  std::optional<int> CurrentRow() const;

  /// Gives each column the same whole number of pixels, and the last one what is left.
  void ResizeColumns();
  /// Modify needs one selected row, Remove at least one. The list takes the focus of a button that
  /// gets disabled.
  void EnableDisableButtons();
  /// Enables or disables one more button of the dialog, or none for null; the list takes the focus
  /// of one that gets disabled.
  void Enable(QAbstractButton* button, bool enabled);

 private:
  void OnKeydown(int key);

  Controls m_controls;
  EmptyHint* m_emptyHint;
  Verbs m_verbs;
};

}  // namespace qv
