#pragma once

#include <memory>

#include "host/SaveEnd.h"
#include "toolkit/CDialog.h"
#include "toolkit/MessageBoxes.h"

namespace qv {

/// What dialogs that edit something have whatever it is: they speak by boxes, save when they are
/// confirmed, show why a save was refused, and tell whether the user changed something.
/// `EditingDialog` is what to derive from.
class EditingFrame : public CDialog {
  Q_OBJECT

 public:
  ~EditingFrame() override;

  /// Whether the user changed anything. Stays readable after `DoModal`.
  bool m_modified = false;

 protected:
  explicit EditingFrame(CWnd* parent);

  /// Saves what the controls hold. Without anything to check, what was edited is good as it is.
  virtual SaveEnd Save() { return {SaveOutcome::Saved, {}}; }
  /// Ends the dialog after a save that is done.
  virtual void Leave(SaveOutcome /*outcome*/) { CDialog::OnOK(); }
  /// The control that a refusal can be about, or null.
  virtual QWidget* ControlOf(Field /*field*/) const { return nullptr; }

  std::optional<int> OnCreate() override;
  /// Saves; ends the dialog if that is done, and shows why if it was refused.
  void OnOK() override;
  void OnDestroy() override;

  /// Makes the row of the list that a refusal is about the current one, without selecting it.
  virtual void MakeRowCurrent(int /*row*/) {}

  /// Tells the user of a refusal, and gives the focus to the control that it is about, if any.
  void ShowRefusal(const Refusal& refusal);
  MessageBoxes& Boxes() { return *m_boxes; }

 private:
  std::unique_ptr<MessageBoxes> m_boxes;
};

}  // namespace qv
