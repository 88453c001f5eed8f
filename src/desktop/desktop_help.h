#pragma once
// The help viewer: a window of the program's own, so that help needs no browser aboard.

#include <QDialog>
#include <QPointer>
#include <QRect>
#include <functional>
#include <optional>
#include <string>

#include "platform/ports.h"

namespace desktop {

/// Where the help window goes, and the window that asked for it: frames on the display.
struct HelpPlace {
  QRect help;
  QRect asking;
};

/// The help stands beside the window that asked, so that both can be read: on its right, on its
/// left, below or above it, as large as wanted where there is room and never smaller than `least`.
/// Where no side has that room, a window that may move gives way: to the left edge where that is
/// enough, else to the lower left corner. What is hidden then is the corner where it is least.
[[nodiscard]] HelpPlace place_help(const QRect& asking, bool may_move, const QRect& display,
                                   QSize wanted, QSize least);

class DesktopHelp : public platform::HelpViewer {
 public:
  /// File of this computer that holds the page of a help path, or nothing when there is none.
  using Page = std::function<std::optional<std::string>(const std::string& path)>;
  explicit DesktopHelp(Page page) : page_(std::move(page)) {}

  /// Opens the page beside the window in use, which stays usable; Escape closes it and leads back to
  /// the field that had the focus. A dialog that gave way goes back to its place. The next page takes its window's place. Without a page a notice
  /// says so in its place, and the result is false.
  bool show(const std::string& path) override;

  /// The window on the screen, null when there is none.
  [[nodiscard]] QDialog* window() const { return window_; }

 private:
  void place(QWidget* asking);

  Page page_;
  QPointer<QDialog> window_;
};

}  // namespace desktop
