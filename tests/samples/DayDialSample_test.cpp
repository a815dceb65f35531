// The sample's program, run with somebody who closes its window.
#define main DayDialSample
#include "docs/samples/DayDialSample.cpp"
#undef main

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <QTimer>
#include <string>
#include <vector>

namespace {

int windowsClosed = 0;

void CloseTheWindow() {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      windowsClosed += window->isVisible() && window->close() ? 1 : 0;
    }
  });
  poll->start(0);
}
Q_COREAPP_STARTUP_FUNCTION(CloseTheWindow)

int RunSample(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "daydialsample");
  std::vector<char*> pointers;
  for (auto& argument : arguments) {
    pointers.push_back(argument.data());
  }
  pointers.push_back(nullptr);
  return DayDialSample(static_cast<int>(arguments.size()), pointers.data());
}

/// The picture of a day type that the sample saves.
QImage PictureOf(const char* day) {
  const QTemporaryDir directory;
  const QString file = directory.filePath(QStringLiteral("dial.png"));
  EXPECT_EQ(RunSample({EXAMPLE_DISCRIMINATOR, day, file.toStdString()}), 0);
  return QImage(file).convertToFormat(QImage::Format_RGB32);
}

bool Has(const QImage& picture, const QColor& colour) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == colour) {
        return true;
      }
    }
  }
  return false;
}

const QColor peak(0xE0, 0x5A, 0x4E);
const QColor low(0x5D, 0xB0, 0x75);

TEST(DayDialSample, SavesThePictureOfADayInTheColoursOfItsHourTypes) {
  const QImage picture = PictureOf("Working day");
  EXPECT_TRUE(Has(picture, peak));
  EXPECT_TRUE(Has(picture, low));
  EXPECT_FALSE(Has(picture, Qt::white)) << "slots cover all of the day";
}

TEST(DayDialSample, OfADayThatThereIsNotShowsBareFaces) {
  const QImage picture = PictureOf("Someday");
  EXPECT_FALSE(Has(picture, peak));
  EXPECT_TRUE(Has(picture, Qt::white));
}

TEST(DayDialSample, ShowsItsWindowUntilItIsClosed) {
  EXPECT_EQ(RunSample({EXAMPLE_DISCRIMINATOR, "Working day"}), 0);
  EXPECT_EQ(windowsClosed, 1);
}

TEST(DayDialSample, FailsWithoutAFile) {
  EXPECT_EQ(RunSample({"no such file", "Working day"}), 1);
  EXPECT_EQ(RunSample({}), 1);
}

}  // namespace
