#pragma once
// What both copy commands tell and ask.

#include <string>

#include "media/verified_copy.h"
#include "ui/services.h"

namespace mainwindow {

class CopyMessages {
 public:
  explicit CopyMessages(ui::Services& services) : services_(services) {}

  /// Yes or No.
  [[nodiscard]] bool wants(text::Id question,
                           std::initializer_list<std::string_view> arguments = {});

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
