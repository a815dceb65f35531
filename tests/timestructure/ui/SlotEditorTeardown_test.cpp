// What happens when a window is destroyed while its editor of a slot is up.
#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "tools/XmlDocument.h"

namespace {

constexpr int fromHoursEdit = 5313;

TEST(SlotEditorTeardown, AFieldThatHasTheFocusIsLeftInPeace) {
  const qv::InstalledFakeHost host;
  XmlDocument hours;
  ASSERT_TRUE(hours.Parse("<hourTypes><hour><id>p</id></hour></hourTypes>"));
  qv::XmlNode slot(L"slot");
  auto* parent = new QWidget;
  auto* editor = new CDlgAddModifyTimeSlot(parent, hours.Root(), &slot, 0xFFFFFF);
  EXPECT_EQ(qv::Drive([=] { return editor->DoModal(); },
                      [=] {
                        qv::TopControl(fromHoursEdit)->setFocus();
                        delete parent;
                      }),
            IDCANCEL);
}

}  // namespace
