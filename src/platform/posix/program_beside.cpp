#include "platform/posix/program_beside.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace platform::posix {

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

}  // namespace platform::posix
