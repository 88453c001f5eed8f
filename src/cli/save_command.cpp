#include <filesystem>
#include <iostream>
#include <map>

#include "cli/commands.h"
#include "cli/file_reasons.h"
#include "cli/observations.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/system.h"

namespace cli {
namespace {

constexpr const char* kUsage = "kavrel-cli save --reports DIR --logbook DIR [--replace] [FILE]";

struct Arguments {
  std::string reports, logbook, file;
  bool replace = false;
};

/// Saves observations into two folders of this computer.
class Saver {
 public:
  explicit Saver(const Arguments& arguments)
      : drives_(platform::posix::default_root()),
        files_(drives_, calls_),
        reports_(folder(arguments.reports)),
        logbook_(folder(arguments.logbook)),
        replace_(arguments.replace) {}

  /// The folder that cannot be used, or nothing.
  [[nodiscard]] std::optional<std::string> problem(const Arguments& arguments) const {
    for (const auto& [path, given] :
         {std::pair(&reports_, &arguments.reports), std::pair(&logbook_, &arguments.logbook)})
      if (!*path || !files_.is_folder(**path)) return *given + " is no folder";
    return std::nullopt;
  }

  [[nodiscard]] std::optional<std::string> check(const observation::ObservationReader& observed) {
    if (!observation::has_valid_date(observed.record()))
      return "Year, Month, YY and GG are no date and hour";
    if (replace_) return std::nullopt;
    const std::string path = observation::report_path(*reports_, observed.record());
    const auto [before, is_first] = line_of_report_.try_emplace(path, observed.first_line());
    if (!is_first && before->second != observed.first_line())
      return "the observation of line " + std::to_string(before->second) +
             " has the same report; --replace would replace it";
    if (files_.is_file(path)) return exists(path);
    return std::nullopt;
  }

  [[nodiscard]] std::optional<std::string> save(const observation::ObservationReader& observed) {
    observation::SaveRequest request;
    request.report_path = observation::report_path(*reports_, observed.record());
    request.logbook_path = observation::logbook_path(*logbook_);
    request.replace = replace_;
    std::string missing;
    observation::encode_report(observed.record(), request.message, missing,
                               observation::wants_wet_bulb(observed.ship()),
                               text::Language::kEnglish);
    request.logbook_line =
        observation::encode_logbook(observed.record(), observed.ship(), observed.items());
    const auto result = observation::save(files_, request);
    if (auto refused = refusal(result, request)) return refused;
    std::cout << "report " << shown(request.report_path) << "\n"
              << "logbook " << shown(request.logbook_path) << "\n";
    return std::nullopt;
  }

 private:
  [[nodiscard]] std::optional<std::string> folder(const std::string& given) const {
    auto path = drives_.to_program(given);
    if (path && !path->ends_with('\\')) path->push_back('\\');
    return path;
  }

  /// A program path as this computer says it.
  [[nodiscard]] std::string shown(const std::string& path) const {
    const auto os_path = drives_.to_os(path);
    return os_path.ok() ? *os_path.value : path;
  }

  [[nodiscard]] std::string exists(const std::string& path) const {
    return shown(path) + " exists; --replace would replace it";
  }

  [[nodiscard]] std::optional<std::string> refusal(const observation::SaveResult& result,
                                                   const observation::SaveRequest& request) const {
    using observation::SaveOutcome;
    const std::string why(reason_of(result.error));
    switch (result.outcome) {
      case SaveOutcome::kSaved:
        return std::nullopt;
      case SaveOutcome::kAlreadyExists:
        return exists(request.report_path);
      case SaveOutcome::kReportFailed:
        return shown(request.report_path) + " cannot be written: " + why;
      case SaveOutcome::kLogbookFailed:
        return shown(request.logbook_path) + " cannot be written: " + why;
      case SaveOutcome::kLineLeft:
        return shown(request.report_path) + " cannot be written: " + why +
               "; the logbook line is there and could not be taken back";
    }
    return why;
  }

  platform::posix::SystemCalls calls_;
  platform::posix::DriveMap drives_;
  platform::posix::PosixFiles files_;
  std::optional<std::string> reports_;
  std::optional<std::string> logbook_;
  bool replace_;
  /// The reports of the input and the line in which the observation of each begins.
  std::map<std::string, std::size_t> line_of_report_;
};

}  // namespace

int save_command(const std::vector<std::string>& words) {
  Arguments arguments;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "--replace") {
      arguments.replace = true;
    } else if (word == "--reports" || word == "--logbook") {
      if (++i == words.size()) return usage(word + " wants a folder", kUsage);
      (word == "--reports" ? arguments.reports : arguments.logbook) = words[i];
    } else if (word.starts_with("--") || !arguments.file.empty()) {
      return usage("unknown argument " + word, kUsage);
    } else {
      arguments.file = word;
    }
  }
  if (arguments.reports.empty() || arguments.logbook.empty())
    return usage("--reports and --logbook are wanted", kUsage);

  Saver saver(arguments);
  if (const auto problem = saver.problem(arguments)) {
    std::cerr << "kavrel-cli: " << *problem << "\n";
    return kWrong;
  }
  Input input(arguments.file);
  const bool done = for_each_observation(
      input, [&](const auto& observed) { return saver.check(observed); },
      [&](const auto& observed) { return saver.save(observed); });
  std::cout.flush();
  return done ? kOk : kWrong;
}

}  // namespace cli
