// The sample's program, run with somebody who presses Escape.
#define main ManagerSample
#include "docs/samples/ManagerSample.cpp"
#undef main

#include <gtest/gtest.h>

#include <QTimer>
#include <QTreeWidget>

namespace {

int rowsSeen = -1;

void LeaveTheDialog() {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [poll] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog) {
      poll->stop();
      rowsSeen = dialog->findChild<QTreeWidget*>()->topLevelItemCount();
      dialog->close();
    }
  });
  poll->start(0);
}
Q_COREAPP_STARTUP_FUNCTION(LeaveTheDialog)

TEST(ManagerSample, ShowsTheDiscriminatorsOfADirectory) {
  char program[] = "managersample";
  char directory[] = EXAMPLE;
  char images[] = IMAGES;
  char language[] = LANGUAGE;
  char* arguments[] = {program, directory, images, language, nullptr};
  EXPECT_EQ(ManagerSample(4, arguments), 0);
  EXPECT_EQ(rowsSeen, 4);
}

}  // namespace
