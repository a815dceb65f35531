#pragma once

#include <optional>
#include <vector>

#include "toolkit/CDialog.h"
#include "tools/Colour.h"

namespace qv {

class ReportList;

/// What the dialogs with a list of coloured rows and the buttons Add, Modify and Remove share.
class ListDialog : public CDialog {
  Q_OBJECT

 public:
  ~ListDialog() override;

 protected:
  /// A row of the list: its texts, and the colour of its icon.
  struct Row {
    QStringList texts;
    Colour colour = 0;
  };

  ListDialog(Template build, CWnd* parent);

  virtual void OnAdd() = 0;
  virtual void OnModify() = 0;
  virtual void OnRemove() = 0;
  /// The room for the columns has a new width.
  virtual void ResizeColumns() = 0;

  /// Gives the list its columns, and the buttons their texts.
  void InitializeList(const QStringList& headings);
  /// Shows these rows in place of those before, and selects one of them, or none.
  void ShowRows(const std::vector<Row>& rows, std::optional<int> select);
  std::optional<int> SelectedRow() const;
  void EnableDisableButtons();

  ReportList& View() const { return *m_view; }

  // The controls that all of these dialogs have.
  static constexpr int listView = 5303;
  static constexpr int removeButton = 5347;
  static constexpr int addButton = 5348;
  static constexpr int modifyButton = 5349;

 private:
  void OnKeydown(int key);

  ReportList* m_view;
};

}  // namespace qv
