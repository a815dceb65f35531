#pragma once

#include <QDialog>
#include <optional>

#include "host/Host.h"
#include "toolkit/Types.h"

/// What all dialogs of the library share. A dialog is built from a template, whose sizes are in
/// dialog units, and run once by `DoModal`.
class CDialog : public QDialog {
  Q_OBJECT

 public:
  ~CDialog() override;

  /// Shows the dialog and returns when the user has left it: `IDOK`, `IDCANCEL`, or -1 if the host
  /// has not installed its services. `OnCreate`, `OnInitDialog`, the modal loop and `OnDestroy`, in
  /// that order.
  virtual int DoModal();

  /// The control with this number, or null.
  QWidget* Control(int id) const;

 protected:
  /// Sets up the controls of a template on a dialog: what Qt's `uic` makes of a file in resources/.
  using Template = void (*)(QDialog*);

  CDialog(Template build, CWnd* parent);

  /// Runs before anything else; a result refuses the dialog, and `DoModal` gives it.
  virtual std::optional<int> OnCreate();
  /// Fills the controls. `EndDialog` in here ends the dialog before it is shown.
  virtual void OnInitDialog() = 0;
  /// Places the controls over the client rectangle; called by the dialog at its start, and for each
  /// new size.
  virtual void PositioningControls() = 0;
  /// The user pressed control 1, or Return.
  virtual void OnOK() { EndDialog(IDOK); }
  /// The user pressed control 2, Escape, or the close box.
  virtual void OnCancel() { EndDialog(IDCANCEL); }
  /// Gives up what the dialog owns.
  virtual void OnDestroy() {}

  void EndDialog(int result);

  /// The host's services. Valid from `OnCreate` on.
  const qv::Host& Services() const { return *m_host; }

  /// The control with this number as what its template makes it.
  template <class Widget>
  Widget* Find(int id) const {
    return qobject_cast<Widget*>(Control(id));
  }

  /// Gives a control, or with 0 the window itself, the host's text.
  void SetText(int id, Text text);
  /// The same for a label, whose text becomes the name of `controlId` for assistive technology.
  void SetLabel(int labelId, int controlId, Text text);
  /// The same for a button, which also gets the picture `fileName` of the host's image directory.
  void SetButton(int id, Text text, const wchar_t* fileName);
  /// Makes the present size the least one.
  void KeepAsLeastSize();

  void accept() final { OnOK(); }
  void reject() final { OnCancel(); }
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ScaleTemplate();
  void PrepareControls();
  void SetProgramIcon();

  std::optional<qv::Host> m_host;
  std::optional<int> m_result;
  bool m_initialized = false;
};
