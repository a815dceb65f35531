#pragma once

#include <QAccessible>

namespace qv {

class DateCells;
class YearView;

/// The weeks of a year as the rows of a table for assistive technology.
class WeekRows : public QAccessibleTableInterface {
 public:
  /// Both outlive the rows.
  WeekRows(YearView& view, DateCells& cells) : m_view(view), m_cells(cells) {}

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int rowCount() const override;
  int columnCount() const override;
  QString rowDescription(int row) const override;
  QString columnDescription(int column) const override;

  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  int selectedRowCount() const override { return 0; }
  int selectedColumnCount() const override { return 0; }
  QList<int> selectedRows() const override { return {}; }
  QList<int> selectedColumns() const override { return {}; }
  bool isRowSelected(int /*row*/) const override { return false; }
  bool isColumnSelected(int /*column*/) const override { return false; }
  bool selectRow(int /*row*/) override { return false; }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectRow(int /*row*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }

  void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
  YearView& m_view;
  DateCells& m_cells;
};

}  // namespace qv
