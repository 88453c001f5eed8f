#pragma once
// A folder of this computer for one test, gone afterwards with all that lies in it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace fakes {

class TempFolder {
 public:
  TempFolder() {
    // In memory where that can be had: tests flush files thousands of times.
    std::error_code error;
    const std::filesystem::path memory = "/dev/shm";
    const auto base = std::filesystem::is_directory(memory, error)
                          ? memory
                          : std::filesystem::temp_directory_path();
    // Absolute, for where a path has a drive that is not told here.
    const std::string begin =
        std::filesystem::absolute(base / "kavrel-test-").make_preferred().string();
    std::random_device random;
    for (int i = 0; i < 100; ++i) {
      path_ = begin + std::to_string(random());
      if (std::filesystem::create_directory(path_, error)) return;
    }
    ADD_FAILURE() << "no temporary folder";
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::path whole = path_;
#ifdef _WIN32
    whole = "\\\\?\\" + path_;  // names in it may be longer than older calls allow
#endif
    for (const auto& entry : std::filesystem::recursive_directory_iterator(whole, error))
      if (!entry.is_symlink() && entry.is_directory())
        std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all, error);
    std::filesystem::remove_all(whole, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] const std::string& path() const {
    return path_;
  }
  [[nodiscard]] std::string operator/(const std::string& name) const {
    return path_ + "/" + name;
  }

  /// Writes a file with all its folders.
  void write(const std::string& name, const std::string& content) const {
    std::filesystem::create_directories(std::filesystem::path(*this / name).parent_path());
    std::ofstream(std::filesystem::path(*this / name), std::ios::binary) << content;
  }
  void folder(const std::string& name) const {
    std::filesystem::create_directories(*this / name);
  }
  [[nodiscard]] std::string content(const std::string& name) const {
    std::ifstream file(std::filesystem::path(*this / name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// Names in a folder, sorted.
  [[nodiscard]] std::vector<std::string> names(const std::string& name = ".") const {
    std::vector<std::string> result;
    for (const auto& entry : std::filesystem::directory_iterator(*this / name))
      result.push_back(entry.path().filename().string());
    std::sort(result.begin(), result.end());
    return result;
  }

 private:
  std::string path_;
};

}  // namespace fakes
