#include "timestructure/ui/TypeListDialog.h"

#include <QPushButton>

#include "toolkit/ColorIcons.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/QVLayout.h"
#include "toolkit/ReportList.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

constexpr int list = 5303;
constexpr int removeButton = 5347;
constexpr int addButton = 5348;
constexpr int modifyButton = 5349;

constexpr QSize leastSize(200, 300);

}  // namespace

TypeListDialog::TypeListDialog(CWnd* parent, XmlNode* container, const Kind& kind)
    : CDialog(kind.build, parent),
      m_kind(kind),
      m_container(container),
      m_listTypes(Find<ReportList>(list)) {
  m_listTypes->setSelectionMode(QAbstractItemView::SingleSelection);
  const auto onClick = [this](int button, void (TypeListDialog::*run)()) {
    connect(Find<QPushButton>(button), &QPushButton::clicked, this, run);
  };
  onClick(addButton, &TypeListDialog::OnAdd);
  onClick(modifyButton, &TypeListDialog::OnModify);
  onClick(removeButton, &TypeListDialog::OnRemove);
  connect(m_listTypes, &ReportList::DoubleClicked, this, &TypeListDialog::OnModify);
  connect(m_listTypes, &ReportList::KeyDown, this, &TypeListDialog::OnKeydown);
  connect(m_listTypes, &ReportList::itemSelectionChanged, this,
          &TypeListDialog::EnableDisableButtons);
  connect(m_listTypes, &ReportList::RoomChanged, this, &TypeListDialog::ResizeColumn);
}

TypeListDialog::~TypeListDialog() = default;

void TypeListDialog::OnInitDialog() {
  m_list = std::make_unique<TypeList>(*m_container, m_kind.tag);
  m_list->Fill();
  InitializeTexts();
  CreateColumns();
  FillList(std::nullopt);
  setMinimumSize(leastSize);
  PositioningControls();
}

void TypeListDialog::InitializeTexts() {
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(modifyButton, Text::Modify, L"MODIFY-16.png");
  SetButton(removeButton, Text::Remove, L"REMOVE-16.png");
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
  SetLabel(m_kind.box, list, m_kind.boxText);
  SetText(0, m_kind.title);
}

void TypeListDialog::CreateColumns() {
  m_listTypes->setColumnCount(1);
  m_listTypes->setHeaderLabels({HostText(Services().loadString, Text::Name)});
  m_listTypes->setIconSize(SmallIconSize(m_listTypes));
}

void TypeListDialog::ResizeColumn() {
  m_listTypes->setColumnWidth(0, m_listTypes->viewport()->width());
}

void TypeListDialog::FillList(std::optional<int> select) {
  QList<QTreeWidgetItem*> items;
  for (const TypeRow& row : m_list->Rows()) {
    auto* item = new QTreeWidgetItem({ToQString(row.name)});
    item->setIcon(0, ColorIcon(row.colour, m_listTypes->iconSize()));
    items.append(item);
  }
  m_listTypes->clear();
  m_listTypes->addTopLevelItems(items);
  if (select) {
    m_listTypes->setCurrentItem(m_listTypes->topLevelItem(*select));
  }
  EnableDisableButtons();
}

void TypeListDialog::PositioningControls() {
  QVControlBoxButtonsLayout listLayout(this, list, m_kind.box);
  listLayout.AddButtons21(addButton, modifyButton, removeButton);
  QVHoritzontalLayout buttons(this);
  buttons.AddControl(IDOK, 50);
  buttons.AddGap(LayoutSizeStandard);
  buttons.AddControl(IDCANCEL, 50);
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
  const auto rows = m_listTypes->SelectedRows();
  return rows.empty() ? std::nullopt : std::optional(rows.front());
}

void TypeListDialog::OnAdd() {
  Follow(m_list->OnAdd([this](XmlNode& type) { return RunEditor(type); }));
}

void TypeListDialog::OnModify() {
  Follow(m_list->OnModify(SelectedRow(), [this](XmlNode& type) { return RunEditor(type); }));
}

void TypeListDialog::OnRemove() { Follow(m_list->OnRemove(SelectedRow())); }

void TypeListDialog::OnKeydown(int key) {
  if (key == Qt::Key_Delete) {
    OnRemove();
  } else if (key == Qt::Key_Insert) {
    OnAdd();
  }
}

void TypeListDialog::Follow(const TypeListEnd& end) {
  m_modified = m_list->IsModified();
  if (end.refilled) {
    FillList(end.rowToSelect);
    ResizeColumn();
  }
}

void TypeListDialog::OnDestroy() {
  m_listTypes->clear();
  m_list.reset();
}

}  // namespace qv
