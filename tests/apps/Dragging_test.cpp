// A line of the tree is dragged with a real mouse, which the offscreen platform doesn't have.
#include <gmock/gmock.h>

#include <QTest>

#include "tests/apps/ExampleCopy.h"
#include "tests/support/VirtualDisplay.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

/// The ids of the devices in the first group of the saved configuration.
std::vector<std::wstring> DevicesOfFirstGroup(const ExampleCopy& installation) {
  XmlDocument document;
  EXPECT_TRUE(document.Load(installation.File("configuration.xml").wstring().c_str()));
  const qv::XmlNode& groups = *document.Root()->Node(L"deviceGroups")->Node(L"groups");
  const qv::XmlNode& devices = *(*groups.ChildsBegin())->Node(L"devices");
  std::vector<std::wstring> ids;
  for (auto device = devices.ChildsBegin(); device != devices.ChildsEnd(); ++device) {
    ids.emplace_back((*device)->Value(L"id").ToView());
  }
  return ids;
}

TEST(Dragging, ALineGoesIntoAGroupAndNoneIsLost) {
  const qv::VirtualDisplay display;
  const ExampleCopy installation;
  const qv::TemporaryDirectory directory;
  const auto settings = QString::fromStdString((directory.Path() / "a.ini").string());
  QProcess process;
  display.Start(process, CONFIGURATOR_FILE,
                {"--installation", installation.Directory(), "--settings", settings});
  display.Focus(process);
  const std::string before = installation.ConfigurationBytes();
  // From the tenth line, a device at the top, to the first one, a group. The places are those of
  // the window at its first size; what counts is that a drag from device to group happens.
  display.Drag(process, {120, 257}, {120, 95});
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        display.Press("ctrl+s");
        return QTest::qWaitFor([&] { return installation.ConfigurationBytes() != before; }, 1000);
      },
      qv::patience));
  const auto devices = DevicesOfFirstGroup(installation);
  ASSERT_EQ(devices.size(), 4U);
  EXPECT_EQ(devices.back(), L"73831dc0-bb6b-43da-9b25-0728e950cccc");
  qv::VirtualDisplay::End(process);
}

}  // namespace
}  // namespace configurator
