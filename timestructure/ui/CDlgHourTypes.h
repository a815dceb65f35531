#pragma once

#include "timestructure/ui/TypeListDialog.h"
#include "ui_1306.h"

/// The hour types of a discriminator. Works on the nodes that it is given: the caller hands over
/// copies, and takes them back after `IDOK`.
class CDlgHourTypes : public qv::TypeListDialog {
  Q_OBJECT

 public:
  /// `dayTypes` is left alone: slots of an hour type that is removed stay as they are.
  CDlgHourTypes(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* dayTypes);

 protected:
  qv::EditorEnd EditType(qv::XmlNode& type) override;

 private:
  Ui::Template1306 m_ui;
};
