#pragma once
// The windows port on the plain system: screens as windows, messages as boxes with the program's texts.

#include "win32/system.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/system/system.h"
#include "text/texts.h"
#include "ui/windows.h"
#include "win32/idle.h"

namespace win32 {

class MessageWindow;
class ScreenWindow;

class WindowsPort : public ui::Windows {
 public:
  /// The paths are for the system's folder browser.
  explicit WindowsPort(platform::Paths paths);
  ~WindowsPort() override;
  WindowsPort(const WindowsPort&) = delete;
  WindowsPort& operator=(const WindowsPort&) = delete;

  int show_message(const ui::MessageBox& box) override;
  int run_modal(ui::Screen& screen) override;
  void show_notice(ui::Screen& screen) override;
  void hide_notice(ui::Screen& screen) override;
  void pause(int milliseconds) override;
  bool copy_text(const std::string& text) override;
  std::optional<std::string> browse_for_folder(const std::string& caption,
                                               const std::string& initial) override;

  /// A message that is no text of the table: of a start that failed, of a help page. There is no
  /// standard output that anybody sees.
  void tell(const std::string& title, const std::string& words);

  /// The language of messages that come before there is a window.
  void set_language(std::function<text::Language()> language) { language_ = std::move(language); }

  /// Called with each window once it is on the display; for tests and pictures.
  std::function<void(ScreenWindow&)> on_shown;
  std::function<void(MessageWindow&)> on_asked;

 private:
  [[nodiscard]] ScreenWindow* top() const { return open_.empty() ? nullptr : open_.back(); }
  [[nodiscard]] HWND owner() const;
  void tell_idle();

  platform::Paths paths_;
  std::vector<ScreenWindow*> open_;
  std::map<ui::Screen*, std::unique_ptr<ScreenWindow>> notices_;
  std::function<text::Language()> language_;
  Idle idle_;
};

}  // namespace win32
