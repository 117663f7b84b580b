#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Not only in CTest, which asks for the names of the tests without their environment.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  application.setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
