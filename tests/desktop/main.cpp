// The desktop's tests run on the offscreen platform unless another is asked for.

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop_windows.h"

#if defined(__SANITIZE_ADDRESS__)
// The toolkit loads its reader of JPEG pictures while it runs. The sanitizer's account of such a
// library's thread-local storage makes its own search for leaks crash at the end.
extern "C" const char* __asan_default_options();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __asan_default_options() {
  return "intercept_tls_get_addr=0";
}
#endif

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  // A text cursor that blinks would make two pictures of one window differ by when they are taken.
  QApplication::setCursorFlashTime(0);
  desktop::prepare_application();
  return RUN_ALL_TESTS();
}
