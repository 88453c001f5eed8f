#pragma once
// The files port of the system that the tests are built for, in a folder of its own as C:, with
// system calls that can be made to fail and a clock that needs no waiting.

#include <string>
#include <utility>

#include "fakes/temp_folder.h"

#ifdef _WIN32

#include <aclapi.h>
#include <sddl.h>

#include "platform/win32/failing_calls.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_drive_map.h"
#include "platform/win32/win32_files.h"

#else

#include <sys/stat.h>

#include "platform/posix/failing_calls.h"
#include "platform/posix/posix_drive_map.h"
#include "platform/posix/posix_files.h"

#endif

namespace tests {

#ifdef _WIN32

using RealFiles = platform::win32::Win32Files;

class RealMap : public platform::DriveMap {
 public:
  explicit RealMap(const std::string& root)
      : DriveMap(platform::win32::computer_paths(),
                 {{"C", 'C', platform::DriveType::kFixed, platform::kFixedMedium, root}}) {}
};

inline void make_read_only(const std::string& os_path) {
  const std::wstring path = *platform::win32::wide_path(os_path).value;
  const DWORD found = ::GetFileAttributesW(path.c_str());
  if ((found & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    return;
  }
  // The mark means nothing on a folder; everybody may only read it.
  PSECURITY_DESCRIPTOR rights = nullptr;
  ASSERT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptorW(
      L"D:P(A;;GRGX;;;WD)", SDDL_REVISION_1, &rights, nullptr));
  EXPECT_TRUE(::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights));
  ::LocalFree(rights);
}

#else

using RealFiles = platform::posix::PosixFiles;
using RealMap = platform::posix::PosixDriveMap;

inline void make_read_only(const std::string& os_path) {
  std::filesystem::permissions(
      os_path, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
}

#endif

class PortUnderTest {
 public:
  fakes::TempFolder temp;
  FailingCalls calls;
  RealMap map{temp.path()};
  RealFiles files{map, calls};

  /// Nobody may write the file or the folder any more.
  void read_only(const std::string& path) const { make_read_only(*map.to_os(path).value); }
  /// Path of something in the folder that is neither a file nor a folder.
  [[nodiscard]] std::string other(const std::string& folder) const {
#ifdef _WIN32
    return folder + "\\NUL";  // is there in every folder
#else
    constexpr mode_t kMode = 0600;
    EXPECT_EQ(::mkfifo(map.to_os(folder + "\\pipe.tlx").value->c_str(), kMode), 0);
    return folder + "\\pipe.tlx";
#endif
  }
  /// Path in the folder of which one cannot tell what lies there, and why.
  [[nodiscard]] std::pair<std::string, platform::FileError> hidden(
      const std::string& folder) const {
#ifdef _WIN32
    return {folder + "\\what?", platform::FileError::kBadName};
#else
    std::filesystem::create_symlink("leads-nowhere", *map.to_os(folder + "\\hidden").value);
    return {folder + "\\hidden", platform::FileError::kBadLink};
#endif
  }
};

}  // namespace tests
