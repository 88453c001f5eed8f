#pragma once
// The text of a scripted session: one command a line.

#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace headless {

/// A line of the script.
struct Line {
  int number = 0;
  std::string text;  ///< as written, without the line end
  /// Why the line cannot be a command whatever it says (too long, not UTF-8, a source that cannot
  /// be read on); empty when it may.
  std::string unusable;

  /// The first word; empty on a blank line, "#" on a comment.
  [[nodiscard]] std::string_view verb() const;
  /// What follows the first word and one blank, blanks at its end included.
  [[nodiscard]] std::string_view rest() const;
};

inline constexpr std::size_t kLongestLine = 65536;

/// Reads a script line by line; any bytes are survived. A line end is "\n" or "\r\n"; a byte order
/// mark at the beginning is passed over.
class ScriptReader {
 public:
  explicit ScriptReader(std::istream& source) : source_(source) {}
  /// Nothing at the end of the script.
  [[nodiscard]] std::optional<Line> next();

 private:
  std::istream& source_;
  int number_ = 0;
};

/// NAME and TEXT of "NAME TEXT…". A name in double quotes is an English label.
struct NameAndText {
  std::string name;
  bool is_label = false;
  std::string text;
};
/// Nothing when there is no name or a quote is not closed.
[[nodiscard]] std::optional<NameAndText> split_name(std::string_view rest);

/// A text that is wholly one double-quoted string loses its quotes and its escapes: n, r, t, quote,
/// backslash, xNN and u3000 behind a backslash. So blanks at its ends can be written. Any other
/// text is taken as it is.
[[nodiscard]] std::string plain_text(std::string_view written);

/// True when plain_text() would take off quotes.
[[nodiscard]] bool is_quoted(std::string_view written);

/// The same letters, A-Z and a-z taken as equal.
[[nodiscard]] bool same_word(std::string_view a, std::string_view b);

}  // namespace headless
