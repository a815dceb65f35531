#include "timestructure/ui/ListDialog.h"

#include <QPushButton>

#include "toolkit/ColourIcons.h"
#include "toolkit/ReportList.h"

namespace qv {

ListDialog::ListDialog(Template build, CWnd* parent)
    : CDialog(build, parent), m_view(Find<ReportList>(listView)) {
  const auto onClick = [this](int button, void (ListDialog::*run)()) {
    connect(Find<QPushButton>(button), &QPushButton::clicked, this, run);
  };
  onClick(addButton, &ListDialog::OnAdd);
  onClick(modifyButton, &ListDialog::OnModify);
  onClick(removeButton, &ListDialog::OnRemove);
  connect(m_view, &ReportList::DoubleClicked, this, &ListDialog::OnModify);
  connect(m_view, &ReportList::KeyDown, this, &ListDialog::OnKeydown);
  connect(m_view, &ReportList::itemSelectionChanged, this, &ListDialog::EnableDisableButtons);
  connect(m_view, &ReportList::RoomChanged, this, &ListDialog::ResizeColumns);
}

ListDialog::~ListDialog() = default;

void ListDialog::InitializeList(const QStringList& headings) {
  m_view->setColumnCount(static_cast<int>(headings.size()));
  m_view->setHeaderLabels(headings);
  m_view->setIconSize(SmallIconSize(m_view));
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(modifyButton, Text::Modify, L"MODIFY-16.png");
  SetButton(removeButton, Text::Remove, L"REMOVE-16.png");
}

void ListDialog::ShowRows(const std::vector<Row>& rows, std::optional<int> select) {
  QList<QTreeWidgetItem*> items;
  for (const Row& row : rows) {
    auto* item = new QTreeWidgetItem(row.texts);
    item->setIcon(0, ColourIcon(row.colour, m_view->iconSize()));
    items.append(item);
  }
  m_view->clear();
  m_view->addTopLevelItems(items);
  if (select) {
    m_view->setCurrentItem(m_view->topLevelItem(*select));
  }
}

std::optional<int> ListDialog::SelectedRow() const {
  const auto rows = m_view->SelectedRows();
  return rows.empty() ? std::nullopt : std::optional(rows.front());
}

void ListDialog::EnableDisableButtons() {
  const bool selected = SelectedRow().has_value();
  Control(modifyButton)->setEnabled(selected);
  Control(removeButton)->setEnabled(selected);
}

void ListDialog::OnKeydown(int key) {
  if (key == Qt::Key_Delete) {
    OnRemove();
  } else if (key == Qt::Key_Insert) {
    OnAdd();
  }
}

}  // namespace qv
