#pragma once
// Code page 932 by the system's table, which asks no locale.

#include "platform/system/code_page_932.h"

namespace platform::win32 {

class Win32CodePage : public CodePage932 {
 public:
  /// False when this computer does not have the table; then only ASCII is had.
  [[nodiscard]] static bool is_installed();

 private:
  [[nodiscard]] std::optional<std::string> to_text(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> to_bytes(std::string_view character) const override;
};

}  // namespace platform::win32
