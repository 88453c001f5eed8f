#include "platform/posix/posix_ports.h"

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>

#include "text/numbers.h"
#include "text/strings.h"

namespace platform::posix {

namespace {

constexpr unsigned kJapaneseLocale = 0x0411;
constexpr unsigned kEnglishLocale = 0x0409;

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

std::optional<DateTime> parse_date_time(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00";
  constexpr std::size_t kWithoutSeconds = 16;
  if (text.size() != kShape.size() && text.size() != kWithoutSeconds) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (kShape[i] == '0' ? !digit : text[i] != kShape[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t at, std::size_t length) {
    return at < text.size() ? text::leading_int(text.substr(at, length)) : 0;
  };
  const DateTime wanted{number(0, 4),  number(5, 2),  number(8, 2),
                        number(11, 2), number(14, 2), number(17, 2)};
  // A day or hour that does not exist comes back as another one.
  std::tm when = tm_of(wanted);
  const std::time_t seconds = ::timegm(&when);
  std::tm back{};
  if (::gmtime_r(&seconds, &back) == nullptr || date_time_of(back) != wanted) return std::nullopt;
  return wanted;
}

// ---- Locale

unsigned locale_id_of(std::string_view name) {
  // "ja_JP.UTF-8", "ja@..." and "ja-JP" are Japanese; "jam" is another language.
  const auto language = name.substr(0, name.find_first_of("_.@-"));
  return language == "ja" || language == "japanese" ? kJapaneseLocale : kEnglishLocale;
}

std::string environment_locale() {
  // In the order in which the system asks them; set but empty counts as not set.
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
  return {};
}

// ---- Help

std::optional<std::string> PosixHelp::page(const std::string& path) const {
  // The program names compiled help files, as ever; here their pages lie in a folder of that name.
  constexpr std::string_view kEnding = ".CHM";
  constexpr std::string_view kTopicMark = "::/";
  const auto mark = path.find(kTopicMark);
  const std::string topic = mark == std::string::npos ? "" : path.substr(mark + kTopicMark.size());
  std::string base = path.substr(0, mark);
  if (base.ends_with(kEnding)) base.resize(base.size() - kEnding.size());
  const auto slash = base.rfind('\\');
  const std::string folder = slash == std::string::npos ? "" : base.substr(0, slash + 1);
  const std::array<std::string, 2> pages = topic.empty()
                                               ? std::array{base + "\\index.htm", base + ".htm"}
                                               : std::array{base + "\\" + topic, folder + topic};
  for (const std::string& each : pages)
    if (auto os_path = map_.to_os(each); os_path.ok() && is_regular_file(*os_path.value))
      return *os_path.value;
  return std::nullopt;
}

bool PosixHelp::show(const std::string& path) {
  const auto found = page(path);
  return found && open_(*found);
}

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
