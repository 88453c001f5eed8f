#include <filesystem>
#include <iostream>
#include <map>
#include <memory>

#include "cli/commands.h"
#include "cli/file_reasons.h"
#include "cli/observations.h"
#include "cli/program.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "platform/paths.h"
#include "platform/system/system.h"

namespace cli {
namespace {

struct Arguments {
  std::string root, reports, logbook;
  bool replace = false;
};

/// Saves observations into two folders of this computer.
class Saver {
 public:
  explicit Saver(const Arguments& arguments)
      : system_(platform::open_files(arguments.root)),
        reports_(folder(arguments.reports)),
        logbook_(folder(arguments.logbook)),
        replace_(arguments.replace) {}

  /// The folder that cannot be used, or nothing.
  [[nodiscard]] std::optional<std::string> problem(const Arguments& arguments) const {
    for (const auto& [path, given] :
         {std::pair(&reports_, &arguments.reports), std::pair(&logbook_, &arguments.logbook)}) {
      // In a program path it would be the end of a name.
      std::error_code error;
      if (!*path && std::filesystem::path::preferred_separator != '\\' &&
          std::filesystem::absolute(*given, error).string().find('\\') != std::string::npos)
        return *given + R"( cannot be used: a "\" stands in its path)";
      const platform::Look found = *path ? files_.look(**path) : platform::Look{};
      if (found.there == platform::There::kCannotTell)
        return *given + " cannot be used: " + std::string(reason_of(found.error));
      if (found.there != platform::There::kFolder) return *given + " is no folder";
    }
    return std::nullopt;
  }

  /// Finishes or takes back what an earlier save left, and tells it.
  void recover() { tell(observation::recover(files_, *reports_, *logbook_)); }

  [[nodiscard]] std::optional<std::string> check(const observation::ObservationReader& observed) {
    ++observations_;
    if (const auto fault = observation::date_fault(observed.record())) return date_reason(*fault);
    if (replace_) return std::nullopt;
    const std::string path = observation::report_path(*reports_, observed.record());
    const auto [before, is_first] = line_of_report_.try_emplace(path, observed.first_line());
    // Checked twice, an observation meets itself, in its own line.
    if (!is_first && before->second != observed.first_line())
      return "the observation of line " + std::to_string(before->second) +
             " has the same report; --replace would replace it";
    const platform::Look found = files_.look(path);
    if (found.there == platform::There::kCannotTell)
      return shown(path) + " cannot be looked at: " + std::string(reason_of(found.error));
    if (found.there == platform::There::kFile) return exists(path);
    return std::nullopt;
  }

  /// How many observations check() has seen.
  [[nodiscard]] std::size_t observations() const { return observations_; }

  [[nodiscard]] std::optional<std::string> save(const observation::ObservationReader& observed) {
    observation::SaveRequest request;
    request.report_path = observation::report_path(*reports_, observed.record());
    request.logbook_path = observation::logbook_path(*logbook_);
    request.replace = replace_;
    request.message =
        observation::make_report(observed.record(), observation::wants_wet_bulb(observed.ship()))
            .text;
    request.logbook_line =
        observation::encode_logbook(observed.record(), observed.ship(), observed.items());
    const auto result = observation::save(files_, request);
    tell(result.recovered);
    if (result.without_lock && !told_without_lock_)
      tell(shown(request.logbook_path) +
           " cannot be locked there; no other program may save at the same time");
    told_without_lock_ = told_without_lock_ || result.without_lock;
    tell_closed_line(result.closed_line);
    if (auto refused = refusal(result, request)) return refused;
    std::cout << "report " << shown(request.report_path) << "\n"
              << "logbook " << shown(request.logbook_path) << "\n";
    // Told at once, so that nobody waits for word of what is saved, and what cannot be told ends
    // the run before more is saved in silence.
    if (!std::cout.flush()) return std::string("saved, but ") + kOutputLost;
    return std::nullopt;
  }

 private:
  [[nodiscard]] std::optional<std::string> folder(const std::string& given) const {
    auto path = drives_.to_program(given);
    if (path) path = platform::with_backslash(*path);
    return path;
  }

  static void tell(const std::string& remark) { std::cerr << "kavrel-cli: " << remark << "\n"; }

  void tell_closed_line(std::uint64_t line) const {
    if (line == 0) return;
    tell(shown(observation::logbook_path(*logbook_)) + ": line " + std::to_string(line) +
         " had no end and is damaged; it has been closed");
  }

  void tell(const observation::Recovery& recovery) const {
    tell_outcome(recovery);
    tell_closed_line(recovery.closed_line);
  }

  void tell_outcome(const observation::Recovery& recovery) const {
    using observation::Recovered;
    const std::string report = shown(*reports_ + recovery.report);
    const std::string line =
        shown(observation::logbook_path(*logbook_)) + ": line " + std::to_string(recovery.line);
    switch (recovery.outcome) {
      case Recovered::kNothing:
        break;
      case Recovered::kFinished:
        return tell(report + ": its interrupted save has been finished; " + line + " is its line");
      case Recovered::kTakenBack:
        return tell(report +
                    ": its interrupted save has been taken back; it has to be saved again");
      case Recovered::kLineLeft:
        return tell(line + " has no report: the save of " + report + " was interrupted");
      case Recovered::kPutAside:
        return tell(
            "what was noted about an interrupted save is damaged and has been put aside as " +
            shown(observation::damaged_journal_path(*logbook_)));
    }
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
    if (const auto& left = result.recovered; left.unreachable)
      return "the save of " + left.report +
             " was interrupted and its folder cannot be reached: " + shown(left.failed) + ": " +
             why + "; line " + std::to_string(left.line) + " of " + shown(request.logbook_path) +
             " is its line, and nothing is saved until it is finished";
    if (result.recovered.error != platform::FileError::kNone)
      return "what an interrupted save has left cannot be put in order: " + shown(result.failed) +
             ": " + why;
    switch (result.outcome) {
      case SaveOutcome::kSaved:
        return std::nullopt;
      case SaveOutcome::kAlreadyExists:
        return exists(request.report_path);
      case SaveOutcome::kReportFailed:
        [[fallthrough]];
      case SaveOutcome::kLogbookFailed:
        return shown(result.failed) + " cannot be written: " + why;
      case SaveOutcome::kLineLeft:
        return shown(request.report_path) + " cannot be written: " + why +
               "; its line is already in " + shown(request.logbook_path) +
               " until the next save finishes this one or takes it back";
    }
    return why;
  }

  std::unique_ptr<platform::SystemFiles> system_;
  platform::Files& files_ = system_->files();
  const platform::PathMap& drives_ = system_->map();
  std::optional<std::string> reports_;
  std::optional<std::string> logbook_;
  bool replace_;
  std::size_t observations_ = 0;
  bool told_without_lock_ = false;
  /// The reports of the input and the line in which the observation of each begins.
  std::map<std::string, std::size_t> line_of_report_;
};

}  // namespace

int save_command(const usage::Words& words) {
  const Arguments arguments{words.value("--root"), words.value("--reports"),
                            words.value("--logbook"), words.has("--replace")};
  if (arguments.reports.empty() || arguments.logbook.empty())
    return refused(words.command(), "--reports and --logbook are wanted");

  Saver saver(arguments);
  if (const auto problem = saver.problem(arguments)) {
    std::cerr << "kavrel-cli: " << *problem << "\n";
    return kWrong;
  }
  // Before anything is checked: a report that this finishes is then one that exists.
  saver.recover();
  Input input(words.file());
  const bool done = for_each_observation(
      input, [&](const auto& observed) { return saver.check(observed); },
      [&](const auto& observed) { return saver.save(observed); });
  if (done && saver.observations() == 0) complain(input, 0, "holds no observation");
  return done && saver.observations() > 0 ? kOk : kWrong;
}

}  // namespace cli
