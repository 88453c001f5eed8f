#include "ui/printer.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ui {
namespace {

struct Range {
  char32_t first, last;
};

// East Asian Wide and Fullwidth of Unicode's annex 11, as far as a report, a file name or a message
// of this program can hold them. Half-width katakana (FF61 to FFDC) are narrow.
constexpr std::array<Range, 8> kWide{{{0x1100, 0x115F},
                                      {0x2E80, 0x303E},
                                      {0x3041, 0xA4CF},
                                      {0xAC00, 0xD7A3},
                                      {0xF900, 0xFAFF},
                                      {0xFE30, 0xFE6F},
                                      {0xFF00, 0xFF60},
                                      {0xFFE0, 0xFFE6}}};

bool is_continuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// One character and its width; a byte that belongs to none stands for itself.
struct Step {
  std::size_t bytes = 1;
  std::size_t columns = 1;
};
Step step_at(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  if (size == 1 || text.size() < size) return {};
  char32_t code = lead & (0xFFU >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) {
    if (!is_continuation(text[i])) return {};
    code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  const bool wide = std::any_of(kWide.begin(), kWide.end(), [code](const Range& range) {
    return code >= range.first && code <= range.last;
  });
  return {size, wide ? 2U : 1U};
}

class Held : public Document {
 public:
  explicit Held(std::vector<std::string> lines) : lines_(std::move(lines)) {
    for (const std::string& line : lines_) widest_ = std::max(widest_, columns_of(line));
  }
  [[nodiscard]] std::size_t size() const override { return lines_.size(); }
  [[nodiscard]] std::size_t widest() const override { return widest_; }
  [[nodiscard]] std::vector<std::string> lines(std::size_t first,
                                               std::size_t count) const override {
    const std::size_t from = std::min(first, lines_.size());
    const std::size_t to = from + std::min(count, lines_.size() - from);
    return {lines_.begin() + static_cast<std::ptrdiff_t>(from),
            lines_.begin() + static_cast<std::ptrdiff_t>(to)};
  }

 private:
  std::vector<std::string> lines_;
  std::size_t widest_ = 0;
};

void fold(std::string_view line, std::size_t columns, std::vector<std::string>& into) {
  std::size_t begin = 0;
  std::size_t used = 0;
  for (std::size_t at = 0; at < line.size();) {
    const Step step = step_at(line.substr(at));
    if (used + step.columns > columns) {
      into.emplace_back(line.substr(begin, at - begin));
      begin = at;
      used = 0;
    }
    used += step.columns;
    at += step.bytes;
  }
  into.emplace_back(line.substr(begin));
}

}  // namespace

std::size_t columns_of(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    const Step step = step_at(text);
    columns += step.columns;
    text.remove_prefix(step.bytes);
  }
  return columns;
}

std::shared_ptr<const Document> document_of(std::vector<std::string> lines) {
  return std::make_shared<Held>(std::move(lines));
}

std::shared_ptr<const Document> folded(std::shared_ptr<const Document> document,
                                       std::size_t columns) {
  if (document == nullptr || document->widest() <= columns) return document;
  std::vector<std::string> lines;
  for (const std::string& line : document->lines(0, document->size())) fold(line, columns, lines);
  return document_of(std::move(lines));
}

}  // namespace ui
