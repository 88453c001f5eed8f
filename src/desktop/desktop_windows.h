#pragma once
// The windows port in Qt: screens as dialogs, messages as the platform's message boxes.

#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/idle_timer.h"
#include "platform/system/system.h"
#include "ui/windows.h"

class QWidget;

namespace desktop {

class ScreenWindow;

class DesktopWindows : public ui::Windows {
 public:
  /// There must be a QApplication. The paths are for the system's folder browser.
  explicit DesktopWindows(platform::Paths paths);
  ~DesktopWindows() override;
  DesktopWindows(const DesktopWindows&) = delete;
  DesktopWindows& operator=(const DesktopWindows&) = delete;

  int show_message(const ui::MessageBox& box) override;
  int run_modal(ui::Screen& screen) override;
  void show_notice(ui::Screen& screen) override;
  void hide_notice(ui::Screen& screen) override;
  void pause(int milliseconds) override;
  bool copy_text(const std::string& text) override;
  std::optional<std::string> browse_for_folder(const std::string& caption,
                                               const std::string& initial) override;

  /// Called with each window once it is on the screen; for tests and pictures.
  std::function<void(ScreenWindow&)> on_shown;

 private:
  platform::Paths paths_;
  std::vector<ui::Screen*> open_;
  IdleTimer idle_;
  std::map<ui::Screen*, std::unique_ptr<ScreenWindow>> notices_;
};

/// Style, icon and number locale; call once after the QApplication was made (it sets the process
/// locale). From then on the look follows the system's palette.
void prepare_application();

}  // namespace desktop
