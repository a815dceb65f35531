#include "timestructure/ui/CDlgHourTypes.h"

#include "discriminator/Fields.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "toolkit/RunDialog.h"
#include "ui_1306.h"

namespace {

constexpr int box = 5317;

void BuildTemplate(QDialog* dialog) { Ui::Template1306().setupUi(dialog); }

}  // namespace

CDlgHourTypes::CDlgHourTypes(CWnd* parent, qv::XmlNode* hourTypes, qv::XmlNode* /*dayTypes*/)
    : TypeListDialog(
          parent, hourTypes,
          {BuildTemplate, qv::tag::Hour, box, Text::HourTypes, Text::HourTypeListTitle}) {}

qv::EditorEnd CDlgHourTypes::EditType(qv::XmlNode& type, qv::XmlNode& container) {
  CDlgAddModifyHourType editor(this, &container, &type);
  return qv::RunDialog<qv::EditorEnd>(editor);
}
