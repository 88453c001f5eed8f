#include "platform/posix/code_page.h"

#include <iconv.h>

#include <array>

namespace platform::posix {

namespace {

constexpr const char* kCodePage = "CP932";
constexpr const char* kText = "UTF-8";

}  // namespace

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

std::optional<std::string> PosixCodePage::to_text(std::string_view bytes) const {
  return to_text_->convert(bytes);
}

std::optional<std::string> PosixCodePage::to_bytes(std::string_view character) const {
  return to_bytes_->convert(character);
}

}  // namespace platform::posix
