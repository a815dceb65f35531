#pragma once

#include <memory>
#include <optional>

#include "toolkit/EditingFrame.h"

namespace qv {

/// A window over one rule class, the form or the list of what it edits. `Form` tells by its
/// `IsModified` whether the user changed something. The form is made for each run and dies with it.
template <class Form>
class EditingDialog : public EditingFrame {
 protected:
  using EditingFrame::EditingFrame;

  /// Makes the form. Without one, since what is to be edited can't be had, the dialog ends as if it
  /// had been cancelled, before it is shown.
  virtual std::unique_ptr<Form> MakeForm() = 0;

  std::optional<int> OnCreate() override {
    if (const auto refused = EditingFrame::OnCreate()) {
      return refused;
    }
    m_form = MakeForm();
    if (m_form) {
      return std::nullopt;
    }
    EditingFrame::OnDestroy();
    return IDCANCEL;
  }

  void OnDestroy() override {
    m_modified = m_form->IsModified();
    m_form.reset();
    EditingFrame::OnDestroy();
  }

  std::unique_ptr<Form> m_form;
};

}  // namespace qv
