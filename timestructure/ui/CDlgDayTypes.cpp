#include "timestructure/ui/CDlgDayTypes.h"

#include "discriminator/Fields.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "toolkit/RunDialog.h"

CDlgDayTypes::CDlgDayTypes(CWnd* parent, qv::XmlNode* dayTypes, qv::XmlNode* /*calendar*/,
                           qv::XmlNode* hourTypes)
    : TypeListDialog(parent, dayTypes, {qv::tag::Day, Text::DayTypes, Text::DayTypeListTitle}),
      m_hourTypes(hourTypes) {
  BuildList(m_ui);
}

qv::EditorEnd CDlgDayTypes::EditType(qv::XmlNode& type) {
  CDlgAddModifyDayType editor(this, &type, Types(), m_hourTypes);
  return qv::RunDialog(editor);
}
