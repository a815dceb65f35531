#pragma once

#include <QDialog>
#include <optional>

#include "host/Host.h"
#include "toolkit/Types.h"

/// What all dialogs of the library share. A dialog is built from a template, whose sizes are in
/// dialog units, and run by `DoModal`.
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
  explicit CDialog(CWnd* parent);

  /// Sets the controls of a template up: `Controls` is what Qt's `uic` makes of a file in
  /// resources/. To be called once, by the constructor.
  template <class Controls>
  void Build(Controls& controls) {
    controls.setupUi(this);
    AdoptTemplate();
  }

  /// Runs before anything else; a result refuses the dialog, and `DoModal` gives it.
  virtual std::optional<int> OnCreate();
  /// Fills the controls. `EndDialog` in here ends the dialog before it is shown.
  virtual void OnInitDialog() = 0;
  /// Places the controls over the client rectangle; called by the dialog at its start, and for each
  /// new size.
  virtual void PositioningControls() = 0;
  /// The user pressed control 1, or Return anywhere but on another push button.
  virtual void OnOK() { EndDialog(IDOK); }
  /// The user pressed control 2, Escape, or the close box.
  virtual void OnCancel() { EndDialog(IDCANCEL); }
  /// Gives up what the dialog owns.
  virtual void OnDestroy() {}

  void EndDialog(int result);

  /// The host's services. Valid from `OnCreate` on.
  const qv::Host& Services() const { return *m_host; }

  /// The host's wording of a text, as it reads.
  QString Worded(Text text) const;
  /// Gives the window the host's text for its title.
  void SetTitle(Text text);
  /// Gives a control the host's text for its caption, with its mnemonic where it can have one.
  void SetText(QWidget* control, Text text);
  /// The same for the label of `control`: its mnemonic leads there, and assistive technology calls
  /// the control so.
  void SetLabel(QWidget* label, QWidget* control, Text text);
  /// The same for a button, which also gets the picture `fileName` of the host's image directory.
  void SetButton(QWidget* button, Text text, const wchar_t* fileName);
  /// Gives the controls 1 and 2 their texts and pictures.
  void SetOkCancel(Text ok = Text::Ok, Text cancel = Text::Cancel);
  /// Makes the present size the least one.
  void KeepAsLeastSize();

  void accept() final { OnOK(); }
  void reject() final { OnCancel(); }
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AdoptTemplate();
  void SetProgramIcon();

  std::optional<qv::Host> m_host;
  std::optional<int> m_result;
  bool m_initialized = false;
};
