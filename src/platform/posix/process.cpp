#include "platform/system/process.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>

namespace platform {

void prepare_process() {
  // A write above the limit of a file's size then fails with EFBIG, like a full disk.
  (void)::signal(SIGXFSZ, SIG_IGN);
}

// A file that is opened takes the lowest number that is free. Without standard output or error that
// would be a report or the logbook, and what the commands tell would be written into it; so each
// that is missing is taken by something that fails when it is used.
void prepare_standard_files() {
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(number, F_GETFD) < 0)
      (void)::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  (void)::signal(SIGPIPE, SIG_IGN);
}

std::vector<std::string> program_arguments(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

// A pipe or a terminal says so itself.
bool standard_input_may_rewind() {
  return true;
}

int go_on_as_program_beside(const std::string& name, const std::vector<std::string>& arguments) {
  std::error_code error;
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return error.value();
  const std::string program = self.parent_path() / name;
  std::vector<std::string> words{program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  (void)::execv(program.c_str(), pointers.data());
  return errno;
}

}  // namespace platform
