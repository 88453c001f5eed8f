#pragma once
// Code page 932, one character at a time: it is short text, and so a wrong byte is told from its
// neighbours. The characters themselves are the computer's knowledge.

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace platform {

class CodePage932 : public CodePage {
 public:
  [[nodiscard]] std::string decode(std::string_view bytes) const final;
  [[nodiscard]] std::optional<std::string> encode(std::string_view character) const final;

 private:
  /// The character of one or two bytes that are no ASCII, nothing when they are none or more.
  [[nodiscard]] virtual std::optional<std::string> to_text(std::string_view bytes) const = 0;
  /// What becomes of one character that is not ASCII, nothing when it is ill-formed or the code page
  /// does not have it. An ASCII byte is refused by who asks.
  [[nodiscard]] virtual std::optional<std::string> to_bytes(std::string_view character) const = 0;
};

}  // namespace platform
