#pragma once
// The text that a command reads, line by line, from a file or from standard input.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <istream>
#include <string>

namespace cli {

/// A file's name as it was given, for the standard library: its bytes are the name, or UTF-8 where
/// the system has its names in Unicode. From a plain string the library would take them for text of
/// the user's locale there.
[[nodiscard]] std::filesystem::path file_path(const std::string& name);

/// Opens a file for reading. Empty when it could be; else why not ("is a folder").
[[nodiscard]] std::string open_file(const std::string& name, std::ifstream& file);

class Input {
 public:
  /// An empty name or "-" is standard input.
  explicit Input(const std::string& name);

  /// Empty when the input could be opened; else why not ("is a folder").
  [[nodiscard]] const std::string& problem() const { return problem_; }
  /// What messages call it.
  [[nodiscard]] const std::string& name() const { return name_; }

  enum class Line : std::uint8_t { kLine, kTooLong, kEnd, kUnreadable };
  /// The next line without its line end; the first one without a byte order mark. Of a line above
  /// `longest` bytes only the beginning is kept, and the rest is left unread.
  [[nodiscard]] Line next(std::string& line, std::size_t longest);

  /// True for a file that can be read a second time, so that all of it can be checked before
  /// anything is written.
  [[nodiscard]] bool can_rewind() const { return can_rewind_; }
  /// Should that fail, every line is kUnreadable: an input that ends at once would look as if it
  /// had been done.
  void rewind();

 private:
  [[nodiscard]] Line next_bytes(std::string& line, std::size_t longest);

  std::string name_;
  std::string problem_;
  std::ifstream file_;
  std::istream* in_;
  std::streampos start_ = 0;
  bool can_rewind_ = false;
  bool rewound_ = true;
  bool first_ = true;
};

}  // namespace cli
