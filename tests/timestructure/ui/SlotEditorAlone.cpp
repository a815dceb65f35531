// The editor of a slot as a process of its own: prints "<result> <from>-<to>" when it is left.
#include <QApplication>
#include <cstdio>

#include "tests/support/FakeHost.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "toolkit/Strings.h"
#include "tools/XmlDocument.h"

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const qv::InstalledFakeHost host;
  XmlDocument hours;
  hours.Parse("<hourTypes><hour><id>p</id><name>peak</name></hour></hourTypes>");
  qv::XmlNode slot(L"slot");
  slot.SetValue(L"id", L"p");
  CDlgAddModifyTimeSlot editor(nullptr, hours.Root(), &slot, 0xFFFFFF);
  const int result = editor.DoModal();
  std::printf("%d %s-%s\n", result, qPrintable(qv::ToQString(slot.Value(L"from"))),
              qPrintable(qv::ToQString(slot.Value(L"to"))));
  return 0;
}
