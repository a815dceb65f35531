#include "timestructure/ui/CDlgDayTypes.h"

#include "discriminator/Fields.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "toolkit/RunDialog.h"
#include "ui_1307.h"

namespace {

constexpr int box = 5319;

void BuildTemplate(QDialog* dialog) { Ui::Template1307().setupUi(dialog); }

}  // namespace

CDlgDayTypes::CDlgDayTypes(CWnd* parent, qv::XmlNode* dayTypes, qv::XmlNode* /*calendar*/,
                           qv::XmlNode* hourTypes)
    : TypeListDialog(parent, dayTypes,
                     {BuildTemplate, qv::tag::Day, box, Text::DayTypes, Text::DayTypeListTitle}),
      m_hourTypes(hourTypes) {}

qv::EditorEnd CDlgDayTypes::EditType(qv::XmlNode& type, qv::XmlNode& container) {
  CDlgAddModifyDayType editor(this, &type, &container, m_hourTypes);
  return qv::RunDialog<qv::EditorEnd>(editor);
}
