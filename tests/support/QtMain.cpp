#include <gtest/gtest.h>

#include <QApplication>

// The tests of windows run without a screen unless the caller names a platform, and in one style,
// so that a result doesn't depend on the desktop.
int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  ::testing::InitGoogleTest(&argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
