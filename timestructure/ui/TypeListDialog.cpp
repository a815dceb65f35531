#include "timestructure/ui/TypeListDialog.h"

#include "toolkit/OkCancel.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/QVLayout.h"
#include "toolkit/ReportList.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

constexpr QSize leastSize(200, 300);

}  // namespace

TypeListDialog::TypeListDialog(CWnd* parent, XmlNode* container, const Kind& kind)
    : ListDialog(kind.build, parent), m_kind(kind), m_container(container) {}

TypeListDialog::~TypeListDialog() = default;

void TypeListDialog::OnInitDialog() {
  m_types = std::make_unique<TypeList>(*m_container, m_kind.tag);
  InitializeTexts();
  InitializeList({HostText(Services().loadString, Text::Name)});
  FillList(std::nullopt);
  setMinimumSize(leastSize);
  PositioningControls();
  EnableDisableButtons();
}

void TypeListDialog::InitializeTexts() {
  SetButton(IDOK, Text::Ok, L"OK-16.png");
  SetButton(IDCANCEL, Text::Cancel, L"CANCEL-16.png");
  SetLabel(m_kind.box, listView, m_kind.boxText);
  SetText(0, m_kind.title);
}

void TypeListDialog::ResizeColumns() { View().setColumnWidth(0, View().viewport()->width()); }

void TypeListDialog::FillList(std::optional<int> select) {
  std::vector<Row> rows;
  for (const ColouredType& type : m_types->Rows()) {
    rows.push_back({{ToQString(type.name)}, type.colour});
  }
  ShowRows(rows, select);
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
  ResizeColumns();
}

RunEditor TypeListDialog::Editor() {
  return [this](XmlNode& type) { return EditType(type, *m_container); };
}

void TypeListDialog::OnAdd() { Follow(m_types->OnAdd(Editor())); }

void TypeListDialog::OnModify() { Follow(m_types->OnModify(SelectedRow(), Editor())); }

void TypeListDialog::OnRemove() { Follow(m_types->OnRemove(SelectedRow())); }

void TypeListDialog::Follow(const ListEnd& end) {
  if (end.refilled) {
    FillList(end.rowToSelect);
    ResizeColumns();
  }
}

void TypeListDialog::OnDestroy() {
  m_modified = m_types->IsModified();
  View().clear();
  m_types.reset();
}

}  // namespace qv
