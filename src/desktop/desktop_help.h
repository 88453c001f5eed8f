#pragma once
// The help viewer: a window of the program's own, so that help needs no browser aboard.

#include <QDialog>
#include <QPointer>
#include <functional>
#include <optional>
#include <string>

#include "platform/ports.h"

namespace desktop {

class DesktopHelp : public platform::HelpViewer {
 public:
  /// File of this computer that holds the page of a help path, or nothing when there is none.
  using Page = std::function<std::optional<std::string>(const std::string& path)>;
  explicit DesktopHelp(Page page) : page_(std::move(page)) {}

  /// Opens the page beside the window in use, which stays usable; Escape closes it, and so does the
  /// next page. Without a page a notice says so in its place, and the result is false.
  bool show(const std::string& path) override;

  /// The window on the screen, null when there is none.
  [[nodiscard]] QDialog* window() const { return window_; }

 private:
  Page page_;
  QPointer<QDialog> window_;
};

}  // namespace desktop
