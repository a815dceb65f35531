#include "timestructure/ui/TypeListDialog.h"

#include <QPushButton>

#include "toolkit/ColorIcons.h"
#include "toolkit/OkCancel.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/QVLayout.h"
#include "toolkit/ReportList.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

constexpr int listView = 5303;
constexpr int removeButton = 5347;
constexpr int addButton = 5348;
constexpr int modifyButton = 5349;

constexpr QSize leastSize(200, 300);

}  // namespace

TypeListDialog::TypeListDialog(CWnd* parent, XmlNode* container, const Kind& kind)
    : CDialog(kind.build, parent),
      m_kind(kind),
      m_container(container),
      m_view(Find<ReportList>(listView)) {
  const auto onClick = [this](int button, void (TypeListDialog::*run)()) {
    connect(Find<QPushButton>(button), &QPushButton::clicked, this, run);
  };
  onClick(addButton, &TypeListDialog::OnAdd);
  onClick(modifyButton, &TypeListDialog::OnModify);
  onClick(removeButton, &TypeListDialog::OnRemove);
  connect(m_view, &ReportList::DoubleClicked, this, &TypeListDialog::OnModify);
  connect(m_view, &ReportList::KeyDown, this, &TypeListDialog::OnKeydown);
  connect(m_view, &ReportList::itemSelectionChanged, this, &TypeListDialog::EnableDisableButtons);
  connect(m_view, &ReportList::RoomChanged, this, &TypeListDialog::ResizeColumn);
}

TypeListDialog::~TypeListDialog() = default;

void TypeListDialog::OnInitDialog() {
  m_types = std::make_unique<TypeList>(*m_container, m_kind.tag);
  InitializeTexts();
  CreateColumns();
  FillList(std::nullopt);
  setMinimumSize(leastSize);
  PositioningControls();
  EnableDisableButtons();
}

void TypeListDialog::InitializeTexts() {
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(modifyButton, Text::Modify, L"MODIFY-16.png");
  SetButton(removeButton, Text::Remove, L"REMOVE-16.png");
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
  SetLabel(m_kind.box, listView, m_kind.boxText);
  SetText(0, m_kind.title);
}

void TypeListDialog::CreateColumns() {
  m_view->setColumnCount(1);
  m_view->setHeaderLabels({HostText(Services().loadString, Text::Name)});
  m_view->setIconSize(SmallIconSize(m_view));
}

void TypeListDialog::ResizeColumn() { m_view->setColumnWidth(0, m_view->viewport()->width()); }

void TypeListDialog::FillList(std::optional<int> select) {
  QList<QTreeWidgetItem*> items;
  for (const TypeRow& row : m_types->Rows()) {
    auto* item = new QTreeWidgetItem({ToQString(row.name)});
    item->setIcon(0, ColorIcon(row.colour, m_view->iconSize()));
    items.append(item);
  }
  m_view->clear();
  m_view->addTopLevelItems(items);
  if (select) {
    m_view->setCurrentItem(m_view->topLevelItem(*select));
  }
}

void TypeListDialog::PositioningControls() {
  QVControlBoxButtonsLayout listLayout(this, listView, m_kind.box);
  listLayout.AddButtons21(addButton, modifyButton, removeButton);
  QVHoritzontalLayout buttons(this);
  AddOkCancel(buttons);
  QVVerticalLayout column(this);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&listLayout, 100);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&buttons, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.Layout(rect());
  ResizeColumn();
}

void TypeListDialog::EnableDisableButtons() {
  const bool selected = SelectedRow().has_value();
  Control(modifyButton)->setEnabled(selected);
  Control(removeButton)->setEnabled(selected);
}

std::optional<int> TypeListDialog::SelectedRow() const {
  const auto rows = m_view->SelectedRows();
  return rows.empty() ? std::nullopt : std::optional(rows.front());
}

TypeList::RunEditor TypeListDialog::Editor() {
  return [this](XmlNode& type) { return RunEditor(*m_container, type); };
}

void TypeListDialog::OnAdd() { Follow(m_types->OnAdd(Editor())); }

void TypeListDialog::OnModify() { Follow(m_types->OnModify(SelectedRow(), Editor())); }

void TypeListDialog::OnRemove() { Follow(m_types->OnRemove(SelectedRow())); }

void TypeListDialog::OnKeydown(int key) {
  if (key == Qt::Key_Delete) {
    OnRemove();
  } else if (key == Qt::Key_Insert) {
    OnAdd();
  }
}

void TypeListDialog::Follow(const ListEnd& end) {
  if (end.refilled) {
    FillList(end.rowToSelect);
    ResizeColumn();
  }
}

void TypeListDialog::OnDestroy() {
  m_modified = m_types->IsModified();
  m_view->clear();
  m_types.reset();
}

}  // namespace qv
