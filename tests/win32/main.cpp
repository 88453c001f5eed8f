// The tests of the front end run the system's own controls, on whatever display there is.

#include "win32/system.h"

#include <commctrl.h>
#include <gtest/gtest.h>
#include <objbase.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  INITCOMMONCONTROLSEX all{sizeof all,
                           ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&all);
  return RUN_ALL_TESTS();
}
