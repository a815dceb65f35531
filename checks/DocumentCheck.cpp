#include "checks/DocumentCheck.h"

#include "checks/CalendarCheck.h"
#include "checks/ConditionCheck.h"
#include "checks/PartCheck.h"
#include "checks/SlotCheck.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qv {

Findings CheckDocument(const XmlNode& root, const QVDriverSupport* drivers) {
  Findings findings;
  const PartIds hourTypes = CheckParts(root, tag::HourTypes, tag::Hour, findings);
  const PartIds dayTypes = CheckParts(root, tag::DayTypes, tag::Day, findings);
  CheckParts(root, tag::Conditions, tag::Condition, findings);
  for (const XmlNode& day : ChildrenWithTag(root.Node(tag::DayTypes), tag::Day)) {
    CheckSlots(day, hourTypes, findings);
  }
  CheckCalendar(root.Node(tag::Calendar), dayTypes, findings);
  if (drivers) {
    CheckConditions(root.Node(tag::Conditions), *drivers, findings);
  }
  return findings;
}

}  // namespace qv
