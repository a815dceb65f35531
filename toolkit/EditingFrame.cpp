#include "toolkit/EditingFrame.h"

#include <QLineEdit>

namespace qv {

EditingFrame::EditingFrame(CWnd* parent) : CDialog(parent) {}

EditingFrame::~EditingFrame() = default;

std::optional<int> EditingFrame::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<MessageBoxes>(this, Services());
  return std::nullopt;
}

void EditingFrame::OnOK() {
  const SaveEnd end = Save();
  if (end.refusal) {
    ShowRefusal(*end.refusal);
  }
  if (end.IsDone()) {
    Leave(end.outcome);
  }
}

void EditingFrame::OnDestroy() { m_boxes.reset(); }

void EditingFrame::ShowRefusal(const Refusal& refusal) {
  Tell(*m_boxes, refusal);
  if (refusal.row) {
    MakeRowCurrent(*refusal.row);
  }
  QWidget* control = refusal.field ? ControlOf(*refusal.field) : nullptr;
  if (!control) {
    return;
  }
  control->setFocus();
  if (auto* edit = qobject_cast<QLineEdit*>(control); edit && refusal.selectsAll) {
    edit->selectAll();
  }
}

}  // namespace qv
