// A host that shows a day type of a discriminator in a window of its own. It installs no service.
#include <QApplication>
#include <QHBoxLayout>

#include "library/QVDiscriminator.h"

namespace {

/// Says in one line why the program can't go on.
int Fail(const QString& reason) {
  qCritical("daydialsample: %s", qPrintable(reason));
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3 && argc != 4) {
    return Fail("usage: daydialsample DISCRIMINATOR-FILE DAY-TYPE [PICTURE]");
  }
  const QStringList arguments = QApplication::arguments();
  XmlDocument discriminator;
  if (!discriminator.Load(arguments[1].toStdWString().c_str())) {
    return Fail("the discriminator can't be read: " + arguments[1]);
  }
  const XmlDocument::XmlNode* dayTypes = discriminator.Root()->Node(L"dayTypes");
  const XmlDocument::XmlNode* day =
      dayTypes ? dayTypes->NodeV(L"/day?name=%s?", arguments[2].toStdWString()) : nullptr;

  QWidget window;
  auto* dial = new QVDayCtrl(&window);
  dial->SetBkColor(0xFFFFFF);  // what no slot covers
  dial->SetColor(0xD8D8D8);    // the ring around it,
  dial->Setup(BYTE{1});        // which is shown
  dial->Setup(day, discriminator.Root()->Node(L"hourTypes"));
  auto* layout = new QHBoxLayout(&window);
  layout->addWidget(dial);
  window.resize(440, 220);

  if (argc == 4) {
    return window.grab().save(arguments[3]) ? 0 : Fail("can't write " + arguments[3]);
  }
  window.show();
  return QApplication::exec();
}
