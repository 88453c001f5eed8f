#include "platform/win32/code_page.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "platform/win32/wide.h"

namespace platform::win32 {

namespace {

constexpr UINT kCodePage = 932;

unsigned value_of(char c) {
  return static_cast<unsigned char>(c);
}

// The table has something for every byte; these are the characters of the standard.
bool is_kana(unsigned byte) {
  return byte >= 0xA1 && byte <= 0xDF;
}
bool is_lead(unsigned byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}
bool is_second(unsigned byte) {
  return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}

bool is_character(std::string_view bytes) {
  return bytes.size() == 1 ? is_kana(value_of(bytes[0]))
                           : is_lead(value_of(bytes[0])) && is_second(value_of(bytes[1]));
}

// Characters that the table lacks because it has a twin of each.
constexpr std::pair<wchar_t, wchar_t> kTwins[] = {
    {0x301C, 0xFF5E},  // wave dash
    {0x2212, 0xFF0D},  // minus sign
    {0x2016, 0x2225},  // double vertical line
    {0x2014, 0x2015},  // em dash
    {0x00A2, 0xFFE0},  // cent sign
    {0x00A3, 0xFFE1},  // pound sign
    {0x00AC, 0xFFE2},  // not sign
};

wchar_t with_twin(wchar_t character) {
  const auto* const found = std::find_if(std::begin(kTwins), std::end(kTwins),
                                         [&](const auto& each) { return each.first == character; });
  return found == std::end(kTwins) ? character : found->second;
}

}  // namespace

bool Win32CodePage::is_installed() {
  return ::IsValidCodePage(kCodePage) != 0;
}

std::optional<std::string> Win32CodePage::to_text(std::string_view bytes) const {
  if (!is_character(bytes)) return std::nullopt;
  std::array<wchar_t, 4> text{};
  const int length =
      ::MultiByteToWideChar(kCodePage, MB_ERR_INVALID_CHARS, bytes.data(),
                            static_cast<int>(bytes.size()), text.data(), int{text.size()});
  if (length != 1) return std::nullopt;
  return to_utf8({text.data(), 1});
}

std::optional<std::string> Win32CodePage::to_bytes(std::string_view character) const {
  const auto text = to_wide(character);
  if (!text || text->size() != 1) return std::nullopt;
  const wchar_t wanted = with_twin(text->front());
  std::array<char, 4> bytes{};
  BOOL replaced = FALSE;
  const int length = ::WideCharToMultiByte(kCodePage, WC_NO_BEST_FIT_CHARS, &wanted, 1,
                                           bytes.data(), int{bytes.size()}, nullptr, &replaced);
  if (length <= 0 || replaced != FALSE) return std::nullopt;
  const std::string_view result(bytes.data(), static_cast<std::size_t>(length));
  return is_character(result) ? std::optional<std::string>(result) : std::nullopt;
}

}  // namespace platform::win32
