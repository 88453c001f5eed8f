#include "platform/system/code_page_932.h"

#include <algorithm>

namespace platform {

namespace {

bool is_ascii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

std::string CodePage932::decode(std::string_view bytes) const {
  std::string text;
  while (!bytes.empty()) {
    std::size_t used = 1;
    std::optional<std::string> one;
    if (is_ascii(bytes.front())) {
      one = bytes.substr(0, 1);
    } else {
      // One byte first: half-width kana are single bytes above ASCII.
      one = to_text(bytes.substr(0, 1));
      if (!one && bytes.size() > 1) {
        one = to_text(bytes.substr(0, 2));
        used = one ? 2 : 1;
      }
    }
    text += one ? std::string_view(*one) : kNoCharacter;
    bytes.remove_prefix(used);
  }
  return text;
}

std::optional<std::string> CodePage932::encode(std::string_view character) const {
  if (character.empty()) return std::nullopt;
  if (is_ascii(character.front()))
    return character.size() == 1 ? std::optional<std::string>(character) : std::nullopt;
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
  if (!std::all_of(character.begin() + 1, character.end(), continues)) return std::nullopt;
  auto bytes = to_bytes(character);
  // The conversion would give a yen sign the backslash's byte and an overline the tilde's.
  if (bytes && (bytes->empty() || is_ascii(bytes->front()))) return std::nullopt;
  return bytes;
}

}  // namespace platform
