#include "timestructure/ui/CDlgHourTypes.h"

#include "discriminator/Fields.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "toolkit/RunDialog.h"

CDlgHourTypes::CDlgHourTypes(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* /*dayTypes*/)
    : TypeListDialog(parent, hourTypes, {qv::tag::Hour, Text::HourTypes, Text::HourTypeListTitle}) {
  BuildList(m_ui);
}

qv::EditorEnd CDlgHourTypes::EditType(qv::XmlNode& type) {
  CDlgAddModifyHourType editor(this, Types(), &type);
  return qv::RunDialog(editor);
}
