#pragma once
// What may be written behind a program's name: a row for each program and each command, from which
// its words are read and its help, its pages of the manual and the completion of shells are made.

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/texts.h"

namespace usage {

/// What the value of an option is.
enum class Value : std::uint8_t {
  kNone,    ///< the option stands alone
  kText,    ///< any text
  kChoice,  ///< one of the words between the bars of Option::value
  kMonth,   ///< a year and a month, YYYY-MM
  kFolder,
  kFile,
};

struct Option {
  std::string_view name;  ///< "--language"
  Value kind = Value::kNone;
  std::string_view value;  ///< what stands for its value: "en|ja", "DIR"
  text::Id says;           ///< what it is for, one line
};

struct Status {
  int number = 0;
  text::Id says;
};

/// A program, or a command of it.
struct Command {
  std::string_view program;  ///< "kavrel-cli"
  std::string_view name;     ///< of the command; empty for the program itself
  /// What may stand behind the name, a line for each way to call it; the lines of one way are
  /// parted by line ends.
  std::span<const std::string_view> usages;
  text::Id does;              ///< one line
  std::string_view argument;  ///< what stands for its file: "FILE"; empty where it takes none
  text::Id argument_says;
  std::span<const Option> options;  ///< without those that every command has
  std::span<const Status> statuses;

  [[nodiscard]] std::string full_name() const;
  /// The option of that name, of the row or of every command; null when there is none.
  [[nodiscard]] const Option* option(std::string_view name) const;
};

/// --help and --version, which every program and command has.
[[nodiscard]] std::span<const Option> common_options();
/// --language where the row has no option for a language of its own: it goes with --help alone.
[[nodiscard]] const Option& language_of_help();

/// True for "YYYY-MM".
[[nodiscard]] bool is_year_and_month(std::string_view text);

/// What the words behind a name say.
class Words {
 public:
  /// Reads the words by the row, which must outlive the object. Of an option that is given twice
  /// the last value holds. "--" ends the options; "-" and what does not begin with "-" is the file.
  Words(const Command& command, const std::vector<std::string>& words);

  [[nodiscard]] const Command& command() const { return *command_; }
  /// Why the words cannot be followed, naming the word; empty when they can.
  [[nodiscard]] const std::string& wrong() const { return wrong_; }
  /// Asked for help or version; then nothing else is to be done, whatever else is wrong.
  [[nodiscard]] bool wants_help() const { return has("--help"); }
  [[nodiscard]] bool wants_version() const { return has("--version"); }

  [[nodiscard]] bool has(std::string_view option) const { return values_.contains(option); }
  /// Empty when the option is not there.
  [[nodiscard]] const std::string& value(std::string_view option) const;
  /// The file's name; empty when there is none.
  [[nodiscard]] const std::string& file() const { return file_; }
  /// That of --language or --locale, else English.
  [[nodiscard]] text::Language language() const;

 private:
  /// Takes the option at `words[i]` and its value, and moves `i` behind them.
  void take_option(const std::vector<std::string>& words, std::size_t& i);
  void take_value(const Option& option, const std::string& value);
  void refuse(const std::string& why);

  const Command* command_;
  std::map<std::string, std::string, std::less<>> values_;
  std::string file_;
  bool has_file_ = false;
  std::string wrong_;
};

}  // namespace usage
