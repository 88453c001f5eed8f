// The desktop's tests run on the offscreen platform unless another is asked for.

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop_windows.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  desktop::prepare_application();
  return RUN_ALL_TESTS();
}
