#pragma once
// A code page 932 that tests can read: ASCII, the half-width forms, the kana, and the kanji of some
// ports.

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace fakes {

class FakeCodePage : public platform::CodePage {
 public:
  [[nodiscard]] std::string decode(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> encode(std::string_view character) const override;
};

}  // namespace fakes
