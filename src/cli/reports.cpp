#include "cli/reports.h"

#include <string>

#include "cli/commands.h"
#include "cli/observations.h"
#include "observation/report_text.h"
#include "text/strings.h"

namespace cli {
namespace {

/// No report is longer, however many telex lines it takes.
constexpr std::size_t kLongestReport = 16U << 10U;

/// Cuts lines into reports.
class Cutter {
 public:
  Cutter(const UseText& use, const UseText& outside) : use_(use), outside_(outside) {}

  /// False for a report that does not end.
  [[nodiscard]] bool take(std::string_view line) {
    // A note of a person's, or what an earlier run could not place.
    if (line.starts_with('#')) return true;
    if (pending_.empty() && !observation::find_report(line)) {
      outside(line);
      return true;
    }
    pending_.append(line).append("\n");
    use_ended(false);
    if (!observation::find_report(pending_)) {
      outside(pending_);
      pending_.clear();
    }
    return pending_.size() <= kLongestReport;
  }

  void finish() {
    use_ended(true);
    if (observation::find_report(pending_))
      use(pending_);
    else
      outside(pending_);
  }

  [[nodiscard]] bool found_none() const { return found_none_; }

 private:
  /// Hands out the reports that have ended; with `at_end` also those whose end would be none if more
  /// text came.
  void use_ended(bool at_end) {
    for (auto found = observation::find_report(pending_);
         found && found->ended && (at_end || !found->open);
         found = observation::find_report(pending_)) {
      use(std::string_view(pending_).substr(0, found->length));
      pending_.erase(0, found->length);
    }
  }

  void use(std::string_view text) {
    found_none_ = false;
    use_(text);
  }

  void outside(std::string_view text) {
    if (text::trim(text) != "NNNN") outside_(text);
  }

  const UseText& use_;
  const UseText& outside_;
  std::string pending_;
  bool found_none_ = true;
};

}  // namespace

int for_each_report(Input& input, const UseText& use, const UseText& outside) {
  if (!input.problem().empty()) {
    complain(input, 0, input.problem());
    return kWrong;
  }
  Cutter cutter(use, outside);
  std::string line;
  std::size_t number = 0;
  for (bool more = true; more;) {
    ++number;
    switch (input.next(line, kLongestReport)) {
      case Input::Line::kLine:
        if (cutter.take(line)) break;
        [[fallthrough]];
      case Input::Line::kTooLong:
        complain(input, number,
                 "no report is longer than " + std::to_string(kLongestReport) + " bytes");
        return kWrong;
      case Input::Line::kUnreadable:
        complain(input, number, "cannot be read");
        return kWrong;
      case Input::Line::kEnd:
        more = false;
        break;
    }
  }
  cutter.finish();
  if (cutter.found_none()) {
    complain(input, 0, "holds no report (no word BBXX)");
    return kWrong;
  }
  return kOk;
}

}  // namespace cli
