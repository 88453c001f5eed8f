#include "fakes/fake_code_page.h"

#include <unordered_map>

namespace fakes {

namespace {

// Characters and their bytes, beside those that follow a formula. 0x5C is the second byte of the
// kanji of Noshiro, 0x5F of the katakana DA: what takes them for characters of their own breaks
// such a name.
constexpr struct {
  const char* character;
  const char* bytes;
} kListed[] = {
    {"\u3000", "\x81\x40"},  // full-width space
    {"、", "\x81\x41"},     {"。", "\x81\x42"}, {"ー", "\x81\x5B"}, {"～", "\x81\x60"},
    {"横", "\x89\xA1"},     {"浜", "\x95\x6C"}, {"神", "\x90\x5F"}, {"戸", "\x8C\xCB"},
    {"大", "\x91\xE5"},     {"阪", "\x8D\xE3"}, {"港", "\x8D\x60"}, {"東", "\x93\x8C"},
    {"京", "\x8B\x9E"},     {"名", "\x96\xBC"}, {"古", "\x8C\xC3"}, {"屋", "\x89\xAE"},
    {"函", "\x94\x9F"},     {"館", "\x8A\xD9"}, {"能", "\x94\x5C"}, {"代", "\x91\xE3"},
    {"長", "\x92\xB7"},     {"崎", "\x8D\xE8"}, {"沖", "\x89\xAB"}, {"縄", "\x93\xEA"},
    {"新", "\x90\x56"},     {"潟", "\x8A\x83"}, {"清", "\x90\xB4"}, {"水", "\x90\x85"},
    {"川", "\x90\xEC"},     {"島", "\x93\x87"}, {"津", "\x92\xC3"}, {"根", "\x8D\xAA"},
    {"室", "\x8E\xBA"},     {"釧", "\x8B\xFA"}, {"路", "\x98\x48"}, {"広", "\x8D\x4C"},
    {"舞", "\x95\x91"},     {"鶴", "\x92\xDF"}, {"門", "\x96\xE5"}, {"司", "\x8E\x69"},
    {"下", "\x89\xBA"},     {"関", "\x8A\xD6"}, {"小", "\x8F\xAC"}, {"樽", "\x92\x4D"},
    {"千", "\x90\xE7"},     {"葉", "\x97\x74"}, {"鹿", "\x8E\xAD"}, {"児", "\x8E\x99"},
};

std::string utf8(unsigned code) {
  return {static_cast<char>(0xE0U | (code >> 12U)),
          static_cast<char>(0x80U | ((code >> 6U) & 0x3FU)),
          static_cast<char>(0x80U | (code & 0x3FU))};
}

std::string two_bytes(unsigned first, unsigned second) {
  return {static_cast<char>(first), static_cast<char>(second)};
}

// Bytes to character.
using Table = std::unordered_map<std::string, std::string>;

const Table& table() {
  static const auto built = [] {
    Table result;
    for (unsigned byte = 0; byte < 0x80; ++byte)
      result[std::string(1, static_cast<char>(byte))] = std::string(1, static_cast<char>(byte));
    for (unsigned byte = 0xA1; byte <= 0xDF; ++byte)
      result[std::string(1, static_cast<char>(byte))] = utf8(0xFF61 + byte - 0xA1);
    for (unsigned i = 0; i < 83; ++i) result[two_bytes(0x82, 0x9F + i)] = utf8(0x3041 + i);
    for (unsigned i = 0; i < 86; ++i)
      result[two_bytes(0x83, 0x40 + i + (i >= 0x3F ? 1 : 0))] = utf8(0x30A1 + i);
    for (unsigned i = 0; i < 26; ++i) result[two_bytes(0x82, 0x60 + i)] = utf8(0xFF21 + i);
    for (const auto& row : kListed) result[row.bytes] = row.character;
    return result;
  }();
  return built;
}

}  // namespace

std::string FakeCodePage::decode(std::string_view bytes) const {
  std::string text;
  while (!bytes.empty()) {
    std::size_t used = 1;
    auto at = table().find(std::string(bytes.substr(0, 1)));
    if (at == table().end() && bytes.size() > 1) {
      at = table().find(std::string(bytes.substr(0, 2)));
      used = at == table().end() ? 1 : 2;
    }
    text += at == table().end() ? std::string(platform::kNoCharacter) : at->second;
    bytes.remove_prefix(used);
  }
  return text;
}

std::optional<std::string> FakeCodePage::encode(std::string_view character) const {
  if (character == "〜") character = "～";  // the twin
  static const auto bytes_of = [] {
    Table result;
    for (const auto& [bytes, text] : table()) result[text] = bytes;
    return result;
  }();
  const auto at = bytes_of.find(std::string(character));
  return at == bytes_of.end() ? std::nullopt : std::optional(at->second);
}

}  // namespace fakes
