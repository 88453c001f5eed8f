#include "ship/data/ship_text.h"

#include <limits>

#include "text/strings.h"

namespace {

constexpr std::string_view kUnknownAsByte = "?";

bool is_ascii(std::string_view text) {
  for (const char c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

// Takes the first character off a text that is not empty.
std::string_view take_one(std::string_view& text) {
  const std::string_view one = text::first(text, 1);
  text.remove_prefix(one.size());
  return one;
}

// Signs, letters, kana and the kanji of the first level lie in front of this byte.
bool is_everyday(std::string_view character, const platform::CodePage& code_page) {
  constexpr unsigned char kSecondLevel = 0x99;
  if (is_ascii(character)) return true;
  const auto bytes = code_page.encode(character);
  return bytes && bytes->size() == 2 && static_cast<unsigned char>(bytes->front()) < kSecondLevel;
}

int unusual(std::string_view text, const platform::CodePage& code_page) {
  int count = 0;
  while (!text.empty()) count += is_everyday(take_one(text), code_page) ? 0 : 1;
  return count;
}

// Well-formed, and every character beside ASCII three bytes long and one of the code page.
bool may_be_utf8(std::string_view bytes, const platform::CodePage& code_page) {
  while (!bytes.empty()) {
    const std::string_view one = take_one(bytes);
    if (is_ascii(one)) continue;
    if (one.size() != 3 || !code_page.encode(one)) return false;
  }
  return true;
}

// A letter or sign that would be the second byte of a character in code page 932.
bool has_letter_behind_japanese(std::string_view bytes) {
  bool japanese = false;
  for (; !bytes.empty();) {
    const std::string_view one = take_one(bytes);
    if (japanese && one.front() >= 0x40 && one.front() <= 0x7E) return true;
    japanese = !is_ascii(one);
  }
  return false;
}

bool is_utf8(std::string_view bytes, const std::string& as_code_page,
             const platform::CodePage& code_page) {
  if (!may_be_utf8(bytes, code_page)) return false;
  if (as_code_page.find(platform::kNoCharacter) != std::string::npos) return true;
  return !has_letter_behind_japanese(bytes) &&
         unusual(bytes, code_page) < unusual(as_code_page, code_page);
}

}  // namespace

std::string from_ship_bytes(std::string_view bytes, const platform::CodePage& code_page) {
  if (is_ascii(bytes)) return std::string(bytes);
  std::string text = code_page.decode(bytes);
  if (is_utf8(bytes, text, code_page)) return std::string(bytes);
  return text;
}

std::string to_ship_bytes(std::string_view text, std::size_t width,
                          const platform::CodePage& code_page) {
  if (is_ascii(text)) return std::string(text.substr(0, width));
  std::string result;
  while (!text.empty()) {
    const std::string_view one = take_one(text);
    const std::string bytes = is_ascii(one)
                                  ? std::string(one)
                                  : code_page.encode(one).value_or(std::string(kUnknownAsByte));
    // Half a character would take the byte behind it for its other half.
    if (result.size() + bytes.size() > width) break;
    result += bytes;
  }
  return result;
}

std::size_t ship_bytes(std::string_view text, const platform::CodePage& code_page) {
  return to_ship_bytes(text, std::numeric_limits<std::size_t>::max(), code_page).size();
}

std::optional<std::string> first_unknown(std::string_view text,
                                         const platform::CodePage& code_page) {
  while (!text.empty()) {
    const std::string_view one = take_one(text);
    if (code_page.encode(one)) continue;
    // A lead without all of its bytes, or a byte that leads nothing, is no character to be named.
    const auto lead = static_cast<unsigned char>(one.front());
    const std::size_t whole = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    return std::string(one.size() == whole ? one : platform::kNoCharacter);
  }
  return std::nullopt;
}

std::string as_kept(std::string_view text, const platform::CodePage& code_page) {
  std::string result;
  while (!text.empty()) {
    const std::string_view one = take_one(text);
    const auto bytes = code_page.encode(one);
    result += bytes ? code_page.decode(*bytes) : std::string(one);
  }
  return result;
}
