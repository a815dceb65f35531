#include "timestructure/ui/TypeListDialog.h"

#include "toolkit/DialogColumn.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr QSize leastSize(200, 300);

}  // namespace

TypeListDialog::TypeListDialog(CWnd* parent, XmlNode* container, const Wording& wording)
    : EditingDialog(parent), m_wording(wording), m_container(container) {}

TypeListDialog::~TypeListDialog() = default;

std::unique_ptr<TypeList> TypeListDialog::MakeForm() {
  return std::make_unique<TypeList>(*m_container, m_wording.tag);
}

void TypeListDialog::OnInitDialog() {
  SetOkCancel();
  SetLabel(m_box, m_list->Parts().view, m_wording.box);
  SetTitle(m_wording.title);
  m_list->CreateColumns(Services().loadString, {Text::Name});
  m_list->InitializeButtons(Services());
  FillList();
  setMinimumSize(leastSize);
  PositioningControls();
  m_list->EnableDisableButtons();
}

void TypeListDialog::FillList(const ListEnd& end) {
  std::vector<ListRow> rows;
  for (const ColouredType& type : m_form->Rows()) {
    rows.push_back(m_list->ColouredRow({ToQString(type.name)}, type.colour));
  }
  m_list->Show(rows, end.rowToSelect, end.currentRow);
}

void TypeListDialog::PositioningControls() {
  const ListPart::Controls& parts = m_list->Parts();
  QVControlBoxButtonsLayout list(this, parts.view, m_box);
  list.AddButtons21(parts.add, parts.modify, parts.remove);
  OkCancelRow buttons(this, OkCancelWidth::Whole);
  DialogColumn column(this);
  column.Add(&list, 100);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout(rect());
  m_list->ResizeColumns();
}

RunEditor TypeListDialog::Editor() {
  return [this](XmlNode& type) { return EditType(type); };
}

void TypeListDialog::OnAdd() { Follow(m_form->OnAdd(Editor())); }

void TypeListDialog::OnModify() { Follow(m_form->OnModify(m_list->SelectedRow(), Editor())); }

void TypeListDialog::OnRemove() { Follow(m_form->OnRemove(m_list->SelectedRow())); }

void TypeListDialog::Follow(const ListEnd& end) {
  if (end.refilled) {
    FillList(end);
    m_list->ResizeColumns();
  }
}

void TypeListDialog::OnDestroy() {
  m_list->Clear();
  EditingDialog::OnDestroy();
}

}  // namespace qv
