#include "bufr/reports.h"

#include "cli/observations.h"
#include "observation/report_text.h"

namespace bufr {
namespace {

/// No report is longer, however many telex lines it takes.
constexpr std::size_t kLongestReport = 16U << 10U;

/// Puts lines together until a report has ended.
class Cutter {
 public:
  Cutter(const cli::Input& input, const UseReport& use) : input_(input), use_(use) {}

  [[nodiscard]] bool take(std::string_view line, std::size_t number) {
    // A note of a person's.
    if (line.starts_with('#')) return true;
    if (pending_.empty()) {
      if (!observation::find_report(line)) return true;
      line_ = number;
    }
    pending_.append(line).append("\n");
    if (!use_ended(false, number)) return false;
    if (!observation::find_report(pending_)) pending_.clear();
    if (pending_.size() <= kLongestReport) return true;
    cli::complain(input_, line_, "the report does not end");
    return false;
  }

  [[nodiscard]] bool finish() {
    if (!use_ended(true, line_)) return false;
    return !observation::find_report(pending_) || use(pending_);
  }

  [[nodiscard]] bool any() const { return any_; }

 private:
  /// With `at_end` also those whose end would be none if more text came.
  [[nodiscard]] bool use_ended(bool at_end, std::size_t number) {
    for (auto found = observation::find_report(pending_);
         found && found->ended && (at_end || !found->open);
         found = observation::find_report(pending_)) {
      if (!use(std::string_view(pending_).substr(0, found->length))) return false;
      pending_.erase(0, found->length);
      line_ = number;
    }
    return true;
  }

  [[nodiscard]] bool use(std::string_view report) {
    any_ = true;
    const auto refused = use_(report, line_);
    if (refused) cli::complain(input_, line_, cli::shown(*refused));
    return !refused;
  }

  const cli::Input& input_;
  const UseReport& use_;
  std::string pending_;
  std::size_t line_ = 1;  ///< where the pending text begins
  bool any_ = false;
};

}  // namespace

bool for_each_report(cli::Input& input, const UseReport& use) {
  Cutter cutter(input, use);
  std::string line;
  for (std::size_t number = 1;; ++number) {
    switch (input.next(line, kLongestReport)) {
      case cli::Input::Line::kLine:
        if (!cutter.take(line, number)) return false;
        break;
      case cli::Input::Line::kTooLong:
        cli::complain(input, number, "the line is longer than any report");
        return false;
      case cli::Input::Line::kUnreadable:
        cli::complain(input, number, "cannot be read");
        return false;
      case cli::Input::Line::kEnd:
        if (!cutter.finish()) return false;
        if (!cutter.any()) cli::complain(input, 0, "holds no report (no word BBXX)");
        return cutter.any();
    }
  }
}

}  // namespace bufr
