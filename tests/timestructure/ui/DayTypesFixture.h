#pragma once

#include <memory>

#include "tests/support/DialogTest.h"
#include "tests/support/Parsed.h"

namespace qv {

/// The day type "work", a whole day of two slots, and "feast", over the hour types "peak", red, and
/// "valley", blue; with a host.
class DayTypesFixture : public DialogTest {
 protected:
  XmlNode& Day(const wchar_t* name) { return *days->NodeV(L"day?name=%s?", name); }

  const std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>p</id><name>peak</name><color>0000FF</color></hour>"
      "<hour><id>v</id><name>valley</name><color>FF0000</color></hour></hourTypes>");
  const std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>1</id><name>work</name><color>80CCFF</color>"
      "<slot><id>p</id><from>00:00</from><to>12:00</to></slot>"
      "<slot><id>v</id><from>12:00</from><to>24:00</to></slot></day>"
      "<day><id>2</id><name>feast</name><color>00FF00</color></day></dayTypes>");
  const XmlNode hoursBefore{*hours};
  const XmlNode daysBefore{*days};
};

}  // namespace qv
