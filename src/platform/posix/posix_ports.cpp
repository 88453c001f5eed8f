#include "platform/posix/posix_ports.h"

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>

namespace platform::posix {

namespace {

DateTime date_time_of(const std::tm& when) {
  return {when.tm_year + 1900, when.tm_mon + 1, when.tm_mday,
          when.tm_hour,        when.tm_min,     when.tm_sec};
}

std::tm tm_of(const DateTime& when) {
  std::tm result{};
  result.tm_year = when.year - 1900;
  result.tm_mon = when.month - 1;
  result.tm_mday = when.day;
  result.tm_hour = when.hour;
  result.tm_min = when.minute;
  result.tm_sec = when.second;
  return result;
}

bool is_regular_file(const std::string& os_path) {
  struct stat about {};
  return ::stat(os_path.c_str(), &about) == 0 && S_ISREG(about.st_mode);
}

}  // namespace

// ---- Clock

PosixClock::PosixClock(const DateTime& utc) {
  std::tm when = tm_of(utc);
  stopped_ = ::timegm(&when);
}

DateTime PosixClock::local() const {
  const std::time_t now = stopped_ ? static_cast<std::time_t>(*stopped_) : std::time(nullptr);
  std::tm when{};
  return ::localtime_r(&now, &when) == nullptr ? DateTime{} : date_time_of(when);
}

DateTime PosixClock::utc() const {
  const std::time_t now = stopped_ ? static_cast<std::time_t>(*stopped_) : std::time(nullptr);
  std::tm when{};
  return ::gmtime_r(&now, &when) == nullptr ? DateTime{} : date_time_of(when);
}

// ---- Locale

std::string environment_locale() {
  // In the order in which the system asks them; set but empty counts as not set.
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
  return {};
}

// ---- Help

PosixHelp::PosixHelp(const PathMap& map, Open open)
    : UnpackedHelp(map, is_regular_file, std::move(open)) {}

bool PosixHelp::open_in_browser(const std::string& os_path) {
  // The shell leaves the browser to itself, so that the program neither waits for it nor has to
  // collect it, and says whether there is anything to open pages with.
  std::string shell = "sh";
  std::string option = "-c";
  std::string script =
      "command -v xdg-open >/dev/null || exit 1; xdg-open \"$0\" </dev/null >/dev/null 2>&1 &";
  std::string page = os_path;
  std::array<char*, 5> arguments{shell.data(), option.data(), script.data(), page.data(), nullptr};
  pid_t child = 0;
  if (::posix_spawnp(&child, "sh", nullptr, nullptr, arguments.data(), environ) != 0) return false;
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace platform::posix
