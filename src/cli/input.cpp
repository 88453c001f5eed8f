#include "cli/input.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "platform/system/process.h"
#include "text/strings.h"

namespace cli {

std::string open_file(const std::string& name, std::ifstream& file) {
  std::error_code ignored;
  if (std::filesystem::is_directory(name, ignored)) return "is a folder";
  errno = 0;
  file.open(std::filesystem::path(name), std::ios::binary);
  if (file) return {};
  return errno == 0 ? "cannot be opened" : std::strerror(errno);
}

Input::Input(const std::string& name) : name_(name), in_(&file_) {
  if (name.empty() || name == "-") {
    name_ = "standard input";
    in_ = &std::cin;
    start_ = std::cin.tellg();  // nowhere for a pipe or a terminal
    std::cin.clear();
    can_rewind_ = start_ != std::streampos(-1) && platform::standard_input_may_rewind();
    return;
  }
  problem_ = open_file(name, file_);
  std::error_code ignored;
  can_rewind_ = std::filesystem::is_regular_file(name, ignored);
}

Input::Line Input::next(std::string& line, std::size_t longest) {
  const Line what = next_bytes(line, longest);
  if (first_) line.erase(0, line.size() - text::without_byte_order_mark(line).size());
  first_ = false;
  return what;
}

Input::Line Input::next_bytes(std::string& line, std::size_t longest) {
  using Traits = std::streambuf::traits_type;
  line.clear();
  if (!rewound_) return Line::kUnreadable;
  // Past the stream, which would make an end of a read that failed.
  std::streambuf& buffer = *in_->rdbuf();
  try {
    for (int c = buffer.sbumpc();; c = buffer.sbumpc()) {
      if (c == Traits::eof()) return line.empty() ? Line::kEnd : Line::kLine;
      if (c == '\n') return Line::kLine;
      line.push_back(Traits::to_char_type(c));
      if (line.size() > longest) return Line::kTooLong;
    }
  } catch (const std::exception&) {
    return Line::kUnreadable;  // the library's file buffer reports a failed read this way
  }
}

void Input::rewind() {
  in_->clear();
  rewound_ = !in_->seekg(start_).fail();
  first_ = true;
}

}  // namespace cli
