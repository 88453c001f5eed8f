#pragma once
// Code page 932 by the system's character conversion, which asks no locale.

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace platform::posix {

/// One object serves one thread: the system's conversion has a state while it works.
class PosixCodePage : public CodePage {
 public:
  PosixCodePage();
  ~PosixCodePage() override;
  PosixCodePage(const PosixCodePage&) = delete;
  PosixCodePage& operator=(const PosixCodePage&) = delete;

  /// False when this computer's conversion does not know code page 932; then only ASCII is had.
  [[nodiscard]] bool is_installed() const;

  [[nodiscard]] std::string decode(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> encode(std::string_view character) const override;

 private:
  class Conversion;
  std::unique_ptr<const Conversion> to_text_;
  std::unique_ptr<const Conversion> to_bytes_;
};

}  // namespace platform::posix
