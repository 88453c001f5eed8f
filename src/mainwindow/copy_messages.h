#pragma once
// What both copy commands tell and ask.

#include <initializer_list>
#include <string>
#include <string_view>

#include "explain/log/logbook_check.h"
#include "media/verified_copy.h"
#include "ui/services.h"

namespace mainwindow {

/// The answer to a question about several files at once.
enum class ForAll { kYes, kNo, kEach };

class CopyMessages {
 public:
  explicit CopyMessages(ui::Services& services) : services_(services) {}

  /// Yes or No.
  [[nodiscard]] bool wants(text::Id question,
                           std::initializer_list<std::string_view> arguments = {});

  /// Yes, No, or Cancel, which ends the whole command: kOk, kNo or kCancel.
  [[nodiscard]] int wants_or_end(text::Id question,
                                 std::initializer_list<std::string_view> arguments);
  /// The buttons are `yes`, "Keep all" and "Ask for each"; the close box is the last of them, for
  /// each of those questions has its own way out.
  [[nodiscard]] ForAll ask_for_all(const std::string& question, text::Id question_id, text::Id yes);

  /// What the check of the logbook found, and whether to show it (kOk), to copy all the same (kNo)
  /// or to end the command (kCancel).
  [[nodiscard]] int ask_about_faults(const explain::Summary& found);

  /// The message, and below it the file and the cause.
  void told(text::Id message, const std::string& path, text::Id reason);
  void told(text::Id message, const std::string& path, platform::FileError why);
  /// The message, and below it what failed, and why.
  void failed(text::Id message, const media::CopyResult& result);
  void not_removed(const std::string& source, const std::string& reason);
  /// Nothing for a file that was removed.
  void not_removed(const std::string& source, const media::CopyResult& result);

 private:
  ui::Services& services_;
};

}  // namespace mainwindow
