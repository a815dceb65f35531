#pragma once

#include "timestructure/ui/TypeListDialog.h"
#include "ui_1307.h"

/// The day types of a discriminator. Works on the nodes that it is given: the caller hands over
/// copies, and takes them back after `IDOK`.
class CDlgDayTypes : public qv::TypeListDialog {
  Q_OBJECT

 public:
  /// `calendar` is left alone: dates of a day type that is removed stay as they are. `hourTypes`
  /// may gain what the user adds in the editor of a slot.
  CDlgDayTypes(CWnd* parent, qv::XmlNode* dayTypes, qv::XmlNode* calendar, qv::XmlNode* hourTypes);

 protected:
  qv::EditorEnd EditType(qv::XmlNode& type) override;

 private:
  Ui::Template1307 m_ui;
  qv::XmlNode* m_hourTypes;
};
