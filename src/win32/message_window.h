#pragma once
// A message or question in a window of its own: its texts, buttons and keys are the program's, not the
// system's.

#include "win32/system.h"

#include <memory>
#include <optional>
#include <vector>

#include "ui/windows.h"
#include "win32/look.h"
#include "win32/loop.h"

namespace win32 {

class MessageWindow : public Filter {
 public:
  /// Beside `of`, the place on the display that it is about, where the display has room for that.
  MessageWindow(const ui::MessageBox& box, HWND owner, text::Language language,
                std::optional<RECT> of);
  ~MessageWindow() override;
  MessageWindow(const MessageWindow&) = delete;
  MessageWindow& operator=(const MessageWindow&) = delete;

  [[nodiscard]] HWND frame() const { return frame_; }
  [[nodiscard]] const std::vector<HWND>& buttons() const { return buttons_; }
  [[nodiscard]] HWND text() const { return text_; }
  /// Shows it and returns the result of the button that was pressed.
  int ask();

  bool filter(const MSG& message) override;

 private:
  static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT on_message(UINT message, WPARAM w, LPARAM l);
  void make();
  void lay_out(std::optional<RECT> of);
  void press(std::size_t button);
  void go(int step);
  bool press_letter(WPARAM character);

  const ui::MessageBox& box_;
  Look look_;
  HWND owner_;
  HWND frame_ = nullptr;
  HWND text_ = nullptr;
  std::vector<HWND> buttons_;
  std::size_t at_ = 0;  ///< the button that has the focus, or had it last
  std::vector<char> keys_;
  std::optional<int> result_;
};

}  // namespace win32
