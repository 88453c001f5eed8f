#pragma once
// A text that holds a report, cut into its words: telex lines around it, line breaks inside it and
// the marks that end it are seen through here, so that the reader meets only words.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace observation {

/// The first report of a text and what lies around it.
struct FoundReport {
  std::string_view before;  ///< up to "BBXX", trimmed
  std::string_view body;    ///< behind "BBXX", up to the end mark or the next "BBXX"
  std::string_view after;   ///< behind the end mark, trimmed
  bool ended = false;       ///< an end mark or another "BBXX" was found
  /// The end stands where the call sign does, and the text is too short to tell one from the other:
  /// more of it may show that the report goes on.
  bool open = false;
  std::size_t length = 0;  ///< of the text up to and with the end mark
};

/// The report beginning at the first word "BBXX" and ending at a "=" or five or more full stops at
/// the end of a word, at the word "NNNN", at the next "BBXX" or with the text. The word behind
/// "BBXX" is the call sign, whatever it looks like, when YYGGiw and the group 99LaLaLa follow. A
/// byte order mark at the beginning is passed over. Nothing when the text holds no word "BBXX".
[[nodiscard]] std::optional<FoundReport> find_report(std::string_view text);

/// One word. A group torn apart by a line break ("401" / "34") is one word of five figures.
class Word {
 public:
  Word() = default;
  explicit Word(std::string_view text) : text_(text) {}
  Word(std::string_view first, std::string_view second);

  [[nodiscard]] std::string_view text() const;
  [[nodiscard]] bool empty() const { return text().empty(); }

 private:
  std::string_view text_;
  std::array<char, 5> joined_{};
  bool is_joined_ = false;
};

/// Hands out the words of a report's body. Copies look ahead.
class Words {
 public:
  explicit Words(std::string_view body) : rest_(body) {}
  /// The next word; an empty one at the end.
  Word next();

 private:
  [[nodiscard]] std::string_view take();

  std::string_view rest_;
  bool line_broken_ = false;  ///< a line ended before the word taken last
  bool first_ = true;
};

/// True for a text of figures and solidi only.
[[nodiscard]] bool is_figures(std::string_view text);
/// True for five figures and solidi.
[[nodiscard]] bool is_group(std::string_view word);
/// True for the group that begins with 99.
[[nodiscard]] bool is_latitude_group(std::string_view word);

}  // namespace observation
