#pragma once
// What changed on a screen since a person last looked.

#include <string>
#include <vector>

#include "ui/dump.h"

namespace headless {

class ScreenWatch {
 public:
  explicit ScreenWatch(const ui::Screen& screen) : screen_(screen) { look(); }

  /// Takes the screen as it is now for seen.
  void look();
  /// The person is about to make the control show this text; only another outcome is a change.
  void expect_text(const ui::Control& control, std::string_view text);
  /// The person is about to tick the line of a list, or to take its tick away.
  void expect_tick(const ui::Control& list, int line, bool on);
  /// The person is about to move the focus there; nullptr is nowhere.
  void expect_focus(const ui::Control* control);
  /// One line for each change since the last look, and looks. In a language switch the texts of
  /// captions are left out. While an event is still being handled the focus is not settled, so it
  /// is looked at only when asked for.
  [[nodiscard]] std::vector<std::string> changes(bool with_focus);

 private:
  struct Seen {
    std::string title;
    text::Language language = text::Language::kEnglish;
    std::vector<std::string> menu;
    const ui::Control* focused = nullptr;
    std::vector<ui::ControlView> views;
  };
  const ui::Screen& screen_;
  Seen seen_;
};

}  // namespace headless
