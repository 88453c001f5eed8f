#include "bufr/output_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <utility>

namespace bufr {

namespace fs = std::filesystem;

OutputFile::OutputFile(std::string name, const std::string& input)
    : name_(std::move(name)), out_(&file_) {
  if (name_ == "-") {
    out_ = &std::cout;
    if (::isatty(STDOUT_FILENO) == 1) problem_ = "a terminal shows no BUFR; --output names a file";
    return;
  }
  std::error_code error;
  const fs::file_status there = fs::status(name_, error);
  if (fs::equivalent(name_, input, error)) {
    problem_ = name_ + " is what is read";
    return;
  }
  if (!fs::exists(there) || fs::is_regular_file(there)) staged_ = name_ + ".part";
  errno = 0;
  file_.open(staged_.empty() ? name_ : staged_, std::ios::binary | std::ios::trunc);
  if (file_) return;
  problem_ = name_ + " cannot be written: " + std::strerror(errno);
  staged_.clear();
}

OutputFile::~OutputFile() {
  if (!staged_.empty()) (void)::unlink(staged_.c_str());
}

bool OutputFile::write(std::string_view bytes) {
  return static_cast<bool>(out_->write(bytes.data(), static_cast<std::streamsize>(bytes.size())));
}

bool OutputFile::commit() {
  if (!out_->flush()) return false;
  if (out_ == &std::cout) return true;
  file_.close();
  if (!file_) return false;
  if (staged_.empty()) return true;
  std::error_code error;
  fs::rename(staged_, name_, error);
  if (!error) staged_.clear();
  return !error;
}

}  // namespace bufr
