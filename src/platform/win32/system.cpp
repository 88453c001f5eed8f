#include "platform/win32/system.h"

#include <windows.h>

#include <knownfolders.h>
#include <shlobj.h>

#include <algorithm>
#include <filesystem>

#include "platform/paths.h"
#include "platform/system/drives_file.h"
#include "platform/system/options.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_program.h"

namespace platform::win32 {

namespace {

namespace fs = std::filesystem;

std::string environment(const wchar_t* name) {
  std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  const DWORD length =
      ::GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  value.resize(length);
  return to_utf8(value).value_or("");
}

std::string absolute(const std::string& path) {
  return computer_paths().normal(path).value_or(path);
}

/// "C:\Windows".
std::string windows_folder() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(::GetSystemWindowsDirectoryW(folder.data(), MAX_PATH));
  return to_utf8(folder).value_or("");
}

/// Where the user's programs keep what is his and of this computer.
std::string own_data() {
  PWSTR folder = nullptr;
  std::string result;
  if (::SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_CREATE, nullptr, &folder) == S_OK)
    result = to_utf8(folder).value_or("");
  ::CoTaskMemFree(folder);
  return result;
}

/// A map that knows the paths of this computer as they are, for the files beside the root.
class AsTheyAre : public PathMap {
 public:
  [[nodiscard]] Result<std::string> to_os(const std::string& path,
                                          const std::string& /*current*/) const override {
    return path;
  }
  [[nodiscard]] std::optional<std::string> to_program(const std::string& path) const override {
    return path;
  }
};

Result<std::string> drives_text(const std::string& root) {
  if (root.empty()) return FileError::kNotFound;
  const AsTheyAre map;
  SystemCalls calls;
  const Win32Files files(map, calls);
  const std::string path = join(root, "drives.txt");
  const FileError error = why_no_file(files.look(path));
  return error == FileError::kNone ? files.read(path) : Result<std::string>(error);
}

bool may_write(const std::string& folder) {
  const auto probe = wide_path(join(folder, staged_name(::GetCurrentProcessId(), 0)));
  if (!probe.ok()) return false;
  const HANDLE file = ::CreateFileW(probe.value->c_str(), GENERIC_WRITE | DELETE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  (void)::CloseHandle(file);
  return true;
}

std::vector<Medium> always(const std::string& root) {
  if (root.empty()) return {};
  return {{"C", 'C', DriveType::kFixed, kFixedMedium, root}};
}

std::unique_ptr<DriveMap> map_of(const std::string& root, std::function<std::vector<Medium>()> find,
                                 FirstTime first) {
  auto map = std::make_unique<DriveMap>(computer_paths(), always(root), std::move(find));
  if (root.empty())
    if (auto elsewhere = elsewhere_of(windows_folder().substr(0, 3) + "kavrel", own_data(), first))
      map->set_elsewhere(std::move(*elsewhere));
  return map;
}

}  // namespace

std::string root_of(const std::string& given) {
  const std::string root = given.empty() ? environment(L"KAVREL_ROOT") : given;
  return root.empty() ? root : absolute(root);
}

std::optional<Elsewhere> elsewhere_of(const std::string& folder, const std::string& own,
                                      FirstTime first) {
  Elsewhere result;
  result.letter = folder.front();
  result.name = name_part(folder);
  result.folder = join(own, "kavrel\\drive_c\\" + result.name);
  const fs::path there(to_wide(result.folder).value_or(L""));
  std::error_code error;
  if (first == FirstTime::kPass) {
    if (own.empty() || !fs::is_directory(there, error) || may_write(folder)) return std::nullopt;
    return result;
  }
  if (const auto path = wide_path(folder); path.ok())
    (void)::CreateDirectoryW(path.value->c_str(), nullptr);
  if (own.empty() || may_write(folder)) return std::nullopt;
  (void)fs::create_directories(there, error);
  return result;
}

System::System(const SystemOptions& options) : root_(root_of(options.root)) {
  if (!root_.empty()) prepare_root();
  choose_clock(options);
  locale_ = std::make_unique<Win32Locale>(options.locale);
  if (!Win32CodePage::is_installed()) problems_.emplace_back(kNoCodePageProblem);
  map_ = map_of(
      root_, [this] { return find_media(); }, FirstTime::kMake);
  const std::string program = options.program.empty() ? executable().value_or("")
                                                      : join(absolute(options.program), "kavrel");
  drives_ = std::make_unique<Win32Drives>(*map_, root_.empty() ? windows_folder() : "C:\\system",
                                          // Without a path the program's folder is the current one.
                                          map_->to_program(program).value_or("kavrel"));
  files_ = std::make_unique<Win32Files>(*map_, calls_);
  help_ = std::make_unique<Win32Help>(*map_);
}

void System::prepare_root() {
  const fs::path folder(to_wide(root_).value_or(L""));
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, error)) problems_.push_back(no_folder_problem(root_));
  for (std::string& problem : problems_of_drives(drives_text(root_), root_, computer_paths()))
    problems_.push_back(std::move(problem));
}

std::vector<Medium> System::find_media() const {
  if (root_.empty()) return computer_drives_.find();
  const auto text = drives_text(root_);
  if (!text.ok() && text.error != FileError::kNotFound) return media_;
  std::vector<Medium> found = beside_root(computer_drives_.find());
  if (text.ok()) {
    // The file says it all, but for where everything else lies.
    const auto is_other = [](const Medium& each) { return each.letter != 'Z'; };
    found.erase(std::remove_if(found.begin(), found.end(), is_other), found.end());
    for (Medium& medium : read_drives(*text.value, root_, computer_paths()).media)
      found.push_back(std::move(medium));
  }
  media_ = std::move(found);
  return media_;
}

void System::choose_clock(const SystemOptions& options) {
  const auto time = given_time(options.clock, problems_);
  clock_ = time ? std::make_unique<Win32Clock>(*time) : std::make_unique<Win32Clock>();
}

}  // namespace platform::win32

namespace platform {

std::unique_ptr<System> make_system(const SystemOptions& options) {
  return std::make_unique<win32::System>(options);
}

std::unique_ptr<SystemFiles> open_files(const std::string& root) {
  class Opened : public SystemFiles {
   public:
    explicit Opened(const std::string& folder)
        : map_(win32::map_of(
              folder,
              [this, given = !folder.empty()] {
                auto drives = found_.find();
                return given ? win32::beside_root(std::move(drives)) : drives;
              },
              win32::FirstTime::kPass)) {}
    [[nodiscard]] Files& files() override { return files_; }
    [[nodiscard]] const PathMap& map() const override { return *map_; }

   private:
    win32::DriveCalls drive_calls_;
    win32::ComputerDrives found_{drive_calls_};
    win32::SystemCalls calls_;
    std::unique_ptr<DriveMap> map_;
    win32::Win32Files files_{*map_, calls_};
  };
  return std::make_unique<Opened>(win32::root_of(root));
}

std::unique_ptr<CodePage> make_code_page() {
  return std::make_unique<win32::Win32CodePage>();
}

}  // namespace platform
