// The sample's program, run with somebody who presses Escape.
#define main ManagerSample
#include "docs/samples/ManagerSample.cpp"
#undef main

#include <gtest/gtest.h>

#include <QTimer>
#include <QTreeWidget>
#include <string>
#include <vector>

namespace {

int rowsSeen = -1;
QStringList told;

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

void KeepErrors(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg) {
    told += text;
  }
}

/// What the sample returns; what it tells is kept.
int RunSample(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "managersample");
  std::vector<char*> pointers;
  for (auto& argument : arguments) {
    pointers.push_back(argument.data());
  }
  pointers.push_back(nullptr);
  told.clear();
  const auto before = qInstallMessageHandler(KeepErrors);
  const int status = ManagerSample(static_cast<int>(arguments.size()), pointers.data());
  qInstallMessageHandler(before);
  return status;
}

TEST(ManagerSample, ShowsTheDiscriminatorsOfADirectory) {
  EXPECT_EQ(RunSample({EXAMPLE, IMAGES, LANGUAGE}), 0);
  EXPECT_EQ(rowsSeen, 4);
  EXPECT_EQ(told, QStringList());
}

TEST(ManagerSample, SaysInOneLineWhichArgumentIsWrong) {
  EXPECT_EQ(RunSample({"/none", IMAGES, LANGUAGE}), 1);
  EXPECT_EQ(told,
            QStringList("managersample: there is no configuration.xml that can be read in /none"));
  EXPECT_EQ(RunSample({EXAMPLE, "/none", LANGUAGE}), 1);
  EXPECT_EQ(told, QStringList("managersample: there are no pictures in /none"));
  EXPECT_EQ(RunSample({EXAMPLE, IMAGES, "/none"}), 1);
  EXPECT_EQ(told, QStringList("managersample: the language file can't be read: /none"));
}

TEST(ManagerSample, SaysInOneLineWhatItsArgumentsAre) {
  EXPECT_EQ(RunSample({EXAMPLE, IMAGES}), 1);
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].startsWith("managersample: usage: ")) << qPrintable(told[0]);
}

}  // namespace
