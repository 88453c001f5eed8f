#pragma once
// A menu bar is a tree of items.

#include <functional>
#include <vector>

#include "text/texts.h"

namespace ui {

struct MenuItem {
  text::Ref text;
  std::vector<MenuItem> children;  ///< empty for a command
  std::function<void()> on_command;
  bool enabled = true;
};

}  // namespace ui
