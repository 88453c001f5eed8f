#pragma once
// What a front end does when the program asks for it: it shows messages and runs screens.

#include <optional>
#include <string>
#include <vector>

#include "text/texts.h"

namespace ui {

class Screen;

// Results of the message boxes, and of screens.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

struct BoxButton {
  std::string label;  ///< with its access key: "はい(&Y)"
  std::string name;   ///< what a script answers: "yes", "no", "cancel", "ok"
  int result = 0;
};

/// What a message is, seen before it is read.
enum class Sign {
  kWarning,      ///< something was refused, failed, or is to be looked after
  kInformation,  ///< something went well, or is only told
  kQuestion,
};

/// A message or question as the person will see it.
struct MessageBox {
  std::string title;
  std::string text;
  std::vector<BoxButton> buttons;
  int close_result = 0;  ///< result of the close box and of Escape
  text::Id text_id;      ///< in the string table, none for a literal text; for tests
  Sign sign = Sign::kWarning;
};

/// Everything that opens a window. Each call returns when the window is closed.
class Windows {
 public:
  virtual ~Windows() = default;
  virtual int show_message(const MessageBox& box) = 0;
  /// Runs the screen until it has a result and returns that.
  virtual int run_modal(ui::Screen& screen) = 0;
  /// A notice that stays while something longer runs; the program goes on.
  virtual void show_notice(ui::Screen& screen) = 0;
  virtual void hide_notice(ui::Screen& screen) = 0;
  virtual void pause(int milliseconds) = 0;
  /// Puts the text on the clipboard, as it is. False when another program does not let go of that; what
  /// lies there then is not this text.
  [[nodiscard]] virtual bool copy_text(const std::string& text) = 0;
  /// Folder chosen in the system's own folder browser, or nothing when it was cancelled.
  virtual std::optional<std::string> browse_for_folder(const std::string& caption,
                                                       const std::string& initial) = 0;
};

}  // namespace ui
