#pragma once
// The menu bar of a window: the system's own, made of the screen's menu.

#include "win32/system.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/texts.h"
#include "ui/menu.h"

namespace win32 {

class MenuBar {
 public:
  explicit MenuBar(HWND window) : window_(window) {}
  ~MenuBar();
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;

  /// In place of what it showed before.
  void show(std::span<const ui::MenuItem> items, text::Language language);
  [[nodiscard]] bool is_empty() const { return menu_ == nullptr; }
  /// The item of a WM_COMMAND; a copy, for the command may make a new menu. Nothing for another id.
  [[nodiscard]] std::optional<ui::MenuItem> item(unsigned id) const;
  /// The enabled item that these keys run.
  [[nodiscard]] std::optional<ui::MenuItem> run_by(std::string_view keys) const;
  /// As ui::menu_lines() writes them, read back from the system's menu; for tests.
  [[nodiscard]] std::vector<std::string> lines() const;

 private:
  HMENU made_of(std::span<const ui::MenuItem> items, text::Language language, bool bar);

  HWND window_;
  HMENU menu_ = nullptr;
  std::vector<ui::MenuItem> commands_;
};

}  // namespace win32
