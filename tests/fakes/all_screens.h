#pragma once
// Every screen of the program with sample values, for what must hold for all of them: layouts, tab
// order, access keys, pictures, widgets that show what the controls hold. A new screen adds a row
// in its room's section of all_screens.cpp; a test fails on a layout whose screen has none.

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "ui/screen.h"
#include "ui/services.h"

namespace fakes {

struct ScreenCase {
  std::string_view class_name;
  /// A new screen, not yet opened; `services` must outlive it.
  std::function<std::unique_ptr<ui::Screen>(ui::Services&)> make;
};

[[nodiscard]] const std::vector<ScreenCase>& all_screens();

}  // namespace fakes
