#include "platform/posix/code_page.h"

#include <iconv.h>

#include <algorithm>
#include <array>

namespace platform::posix {

namespace {

constexpr const char* kCodePage = "CP932";
constexpr const char* kText = "UTF-8";

bool is_ascii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

// One character at a time: it is short text, and so a wrong byte is told from its neighbours.
class PosixCodePage::Conversion {
 public:
  Conversion(const char* to, const char* from) : handle_(::iconv_open(to, from)) {}
  ~Conversion() {
    if (is_open()) ::iconv_close(handle_);
  }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;

  // NOLINTNEXTLINE(performance-no-int-to-ptr): the failure value of the system's function
  [[nodiscard]] bool is_open() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  // What all of the bytes become, nothing when they are not whole and well-formed.
  [[nodiscard]] std::optional<std::string> convert(std::string_view bytes) const {
    if (!is_open()) return std::nullopt;
    std::string in(bytes);
    std::array<char, 16> out{};
    char* from = in.data();
    char* to = out.data();
    std::size_t left = in.size();
    std::size_t room = out.size();
    // Back to the initial state: a conversion that failed may have left half a character.
    ::iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    const bool failed = ::iconv(handle_, &from, &left, &to, &room) == static_cast<std::size_t>(-1);
    if (failed || left > 0) return std::nullopt;
    return std::string(out.data(), out.size() - room);
  }

 private:
  iconv_t handle_;
};

PosixCodePage::PosixCodePage()
    : to_text_(std::make_unique<Conversion>(kText, kCodePage)),
      to_bytes_(std::make_unique<Conversion>(kCodePage, kText)) {}

PosixCodePage::~PosixCodePage() = default;

bool PosixCodePage::is_installed() const {
  return to_text_->is_open() && to_bytes_->is_open();
}

std::string PosixCodePage::decode(std::string_view bytes) const {
  std::string text;
  while (!bytes.empty()) {
    std::size_t used = 1;
    std::optional<std::string> one;
    if (is_ascii(bytes.front())) {
      one = bytes.substr(0, 1);
    } else {
      // One byte first: half-width kana are single bytes above ASCII.
      one = to_text_->convert(bytes.substr(0, 1));
      if (!one && bytes.size() > 1) {
        one = to_text_->convert(bytes.substr(0, 2));
        used = one ? 2 : 1;
      }
    }
    text += one ? std::string_view(*one) : kNoCharacter;
    bytes.remove_prefix(used);
  }
  return text;
}

std::optional<std::string> PosixCodePage::encode(std::string_view character) const {
  if (character.empty()) return std::nullopt;
  if (is_ascii(character.front()))
    return character.size() == 1 ? std::optional<std::string>(character) : std::nullopt;
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
  if (!std::all_of(character.begin() + 1, character.end(), continues)) return std::nullopt;
  auto bytes = to_bytes_->convert(character);
  // The conversion would give a yen sign the backslash's byte and an overline the tilde's.
  if (bytes && (bytes->empty() || is_ascii(bytes->front()))) return std::nullopt;
  return bytes;
}

}  // namespace platform::posix
