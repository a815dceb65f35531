#pragma once

#include <memory>

#include "tests/support/DialogTest.h"
#include "tests/support/Parsed.h"
#include "toolkit/ColourSwatch.h"

namespace qv {

/// The hour types "day", red, and "night", blue, with a host.
class HourTypesFixture : public DialogTest {
 protected:
  XmlNode& Hour(const wchar_t* name) { return *hours->NodeV(L"hour?name=%s?", name); }

  static ColourSwatch* Swatch() { return TopControl<ColourSwatch>(hourSwatch); }

  const std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>1</id><name>night</name><color>FF0000</color></hour>"
      "<other/><hour><id>2</id><name>day</name><color>0000FF</color>"
      "<value>7</value></hour></hourTypes>");
  const XmlNode before{*hours};
};

}  // namespace qv
