#include "platform/posix/system.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/posix/program_folder.h"
#include "platform/posix/removable_media.h"
#include "platform/system/drives_file.h"
#include "platform/system/options.h"

namespace platform::posix {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::string home() {
  if (auto folder = environment("HOME"); !folder.empty()) return folder;
  const passwd* user = ::getpwuid(::getuid());
  // Without a home the program still starts; what it keeps there may go with the computer's next.
  return user == nullptr || user->pw_dir == nullptr ? std::string("/tmp") : user->pw_dir;
}

std::string absolute(const std::string& path) {
  std::error_code error;
  const fs::path whole = fs::absolute(path, error);
  return error ? path : whole.lexically_normal().string();
}

/// The text of a file; kNotFound only where there is none.
Result<std::string> content_of(const std::string& path) {
  std::error_code error;
  if (fs::symlink_status(path, error).type() == fs::file_type::not_found)
    return FileError::kNotFound;
  const fs::file_type type = fs::status(path, error).type();
  if (type == fs::file_type::not_found) return FileError::kBadLink;
  if (type == fs::file_type::none) return file_error(error.value());
  if (type != fs::file_type::regular) return FileError::kNotAFile;
  // The library's stream tells that it failed; why, only errno may know.
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) return errno == 0 ? FileError::kOther : file_error(errno);
  try {
    return std::string(std::istreambuf_iterator<char>(file), {});
  } catch (const std::exception&) {
    return FileError::kOther;  // the library's file buffer reports a failed read this way
  }
}

std::string drives_file_of(const std::string& root) {
  return root + "/drives.txt";
}

}  // namespace

std::string default_root() {
  std::string data = environment("XDG_DATA_HOME");
  // A relative folder there is to be passed over, by the rules of the variable.
  if (data.empty() || data.front() != '/') data = home() + "/.local/share";
  return data + "/kavrel/drive_c";
}

std::string root_of(const std::string& given) {
  std::string root = given.empty() ? environment("KAVREL_ROOT") : given;
  if (root.empty()) root = default_root();
  return absolute(root);
}

System::System(const SystemOptions& options) {
  choose_root(options);
  choose_clock(options);
  choose_locale(options);
  if (!code_page_.is_installed()) problems_.emplace_back(kNoCodePageProblem);
  map_ = std::make_unique<PosixDriveMap>(root_, [this] { return find_media(); });
  drives_ = std::make_unique<PosixDrives>(*map_, choose_program(options));
  files_ = std::make_unique<PosixFiles>(*map_, calls_);
  help_ = std::make_unique<PosixHelp>(*map_);
}

void System::choose_root(const SystemOptions& options) {
  root_ = root_of(options.root);
  std::error_code error;
  fs::create_directories(root_, error);
  if (!fs::is_directory(root_, error)) problems_.push_back(no_folder_problem(root_));
  for (std::string& problem :
       problems_of_drives(content_of(drives_file_of(root_)), root_, computer_paths()))
    problems_.push_back(std::move(problem));
}

std::vector<Medium> System::find_media() const {
  const auto text = content_of(drives_file_of(root_));
  if (text.ok()) {
    media_ = read_drives(*text.value, root_, computer_paths()).media;
  } else if (text.error == FileError::kNotFound) {
    // Only then: a drives.txt that cannot be read leaves the drives as they were found last.
    media_ = removable_media();
  }
  return media_;
}

void System::choose_clock(const SystemOptions& options) {
  const auto time = given_time(options.clock, problems_);
  clock_ = time ? std::make_unique<PosixClock>(*time) : std::make_unique<PosixClock>();
}

void System::choose_locale(const SystemOptions& options) {
  locale_ =
      std::make_unique<PosixLocale>(options.locale.empty() ? environment_locale() : options.locale);
}

std::string System::choose_program(const SystemOptions& options) {
  std::error_code error;
  std::string os_path = options.program.empty()
                            ? program_path(fs::read_symlink("/proc/self/exe", error).string())
                            : absolute(options.program) + "/kavrel";
  // Without a path the program's folder is the current one.
  return map_->to_program(os_path).value_or("kavrel");
}

}  // namespace platform::posix

namespace platform {

std::unique_ptr<System> make_system(const SystemOptions& options) {
  return std::make_unique<posix::System>(options);
}

std::unique_ptr<SystemFiles> open_files(const std::string& root) {
  class Opened : public SystemFiles {
   public:
    explicit Opened(const std::string& folder) : map_(folder) {}
    [[nodiscard]] Files& files() override { return files_; }
    [[nodiscard]] const PathMap& map() const override { return map_; }

   private:
    posix::SystemCalls calls_;
    posix::PosixDriveMap map_;
    posix::PosixFiles files_{map_, calls_};
  };
  return std::make_unique<Opened>(posix::root_of(root));
}

std::unique_ptr<CodePage> make_code_page() {
  return std::make_unique<posix::PosixCodePage>();
}

}  // namespace platform
