#pragma once

#include <memory>

#include "tests/support/DialogTest.h"
#include "tests/support/Parsed.h"

namespace qv {

/// The conditions A to C with the expressions a to c, which are good ones, over a host.
class ConditionsFixture : public DialogTest {
 protected:
  ConditionsFixture() {
    for (const wchar_t* good : {L"a", L"b", L"c", L"d"}) {
      host->driverSupport.script[good] = {};
    }
  }

  XmlNode& Condition(const wchar_t* name) {
    return *conditions->NodeV(L"condition?name=%s?", name);
  }

  std::unique_ptr<XmlNode> conditions = Parsed(
      "<conditions><condition><id>1</id><name>A</name><exp>a</exp></condition><other/>"
      "<condition><id>2</id><name>B</name><exp>b</exp></condition>"
      "<condition><id>3</id><name>C</name><exp>c</exp></condition></conditions>");
  const XmlNode before{*conditions};
};

}  // namespace qv
