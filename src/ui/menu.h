#pragma once
// A menu bar is a tree of items.

#include <functional>
#include <string_view>
#include <vector>

#include "text/texts.h"

namespace ui {

struct MenuItem {
  text::Ref text;
  std::vector<MenuItem> children;  ///< empty for a command
  std::function<void()> on_command;
  bool enabled = true;
  /// Keys that run the command whatever field has the focus ("Ctrl+S"); empty for none. The text
  /// outlives the item.
  std::string_view shortcut = {};
};

}  // namespace ui
