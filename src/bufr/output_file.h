#pragma once
// Where messages go.

#include <cstddef>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace bufr {

/// A file that appears whole or not at all, or standard output. A device or a pipe is written as
/// the messages come.
class OutputFile {
 public:
  /// "-" is standard output; the file `input` is not written over.
  OutputFile(std::string name, const std::string& input);
  /// Without commit() nothing is left of it.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  /// Empty when it can be written; else why not.
  [[nodiscard]] const std::string& problem() const { return problem_; }
  /// False when it could not be written.
  [[nodiscard]] bool write(std::string_view bytes);
  /// Puts the file in its place. False, with nothing changed there, when that could not be done.
  [[nodiscard]] bool commit();

 private:
  std::string name_, problem_;
  std::string staged_;  ///< beside its place; empty when it is written directly
  std::ofstream file_;
  std::ostream* out_;
};

}  // namespace bufr
