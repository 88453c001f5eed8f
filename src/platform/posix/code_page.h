#pragma once
// Code page 932 by the system's character conversion, which asks no locale.

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/system/code_page_932.h"

namespace platform::posix {

/// One object serves one thread: the system's conversion has a state while it works.
class PosixCodePage : public CodePage932 {
 public:
  PosixCodePage();
  ~PosixCodePage() override;
  PosixCodePage(const PosixCodePage&) = delete;
  PosixCodePage& operator=(const PosixCodePage&) = delete;

  /// False when this computer's conversion does not know code page 932; then only ASCII is had.
  [[nodiscard]] bool is_installed() const;

 private:
  [[nodiscard]] std::optional<std::string> to_text(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> to_bytes(std::string_view character) const override;

  class Conversion;
  std::unique_ptr<const Conversion> to_text_;
  std::unique_ptr<const Conversion> to_bytes_;
};

}  // namespace platform::posix
