#include "cli/reports.h"

#include <cstdint>
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
  Cutter(const UseReport& use, const UseText& outside) : use_(use), outside_(outside) {}

  /// What became of a line.
  enum class Taken : std::uint8_t { kTaken, kRefused, kEndless };

  [[nodiscard]] Taken take(std::string_view line, std::size_t number) {
    // A note of a person's, or what an earlier run could not place.
    if (line.starts_with('#')) return Taken::kTaken;
    if (pending_.empty()) {
      if (!observation::find_report(line)) {
        outside(line);
        return Taken::kTaken;
      }
      first_line_ = number;
    }
    pending_.append(line).append("\n");
    if (!use_ended(false, number)) return Taken::kRefused;
    if (!observation::find_report(pending_)) {
      outside(pending_);
      pending_.clear();
    }
    return pending_.size() <= kLongestReport ? Taken::kTaken : Taken::kEndless;
  }

  /// False when the last report was refused.
  [[nodiscard]] bool finish() {
    if (!use_ended(true, first_line_)) return false;
    if (observation::find_report(pending_)) return use(pending_);
    outside(pending_);
    return true;
  }

  [[nodiscard]] bool found_none() const { return found_none_; }

 private:
  /// Hands out the reports that have ended; with `at_end` also those whose end would be none if more
  /// text came. False when one was refused.
  [[nodiscard]] bool use_ended(bool at_end, std::size_t number) {
    for (auto found = observation::find_report(pending_);
         found && found->ended && (at_end || !found->open);
         found = observation::find_report(pending_)) {
      if (!use(std::string_view(pending_).substr(0, found->length))) return false;
      pending_.erase(0, found->length);
      // What is left came with this line.
      first_line_ = number;
    }
    return true;
  }

  [[nodiscard]] bool use(std::string_view text) {
    found_none_ = false;
    return use_(text, first_line_);
  }

  void outside(std::string_view text) {
    if (text::trim(text) != "NNNN") outside_(text);
  }

  const UseReport& use_;
  const UseText& outside_;
  std::string pending_;
  std::size_t first_line_ = 1;  ///< of what is pending
  bool found_none_ = true;
};

}  // namespace

int for_each_numbered_report(Input& input, const UseReport& use, const UseText& outside) {
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
      case Input::Line::kLine: {
        const Cutter::Taken taken = cutter.take(line, number);
        if (taken == Cutter::Taken::kRefused) return kWrong;
        if (taken == Cutter::Taken::kTaken) break;
        [[fallthrough]];
      }
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
  if (!cutter.finish()) return kWrong;
  if (cutter.found_none()) {
    complain(input, 0, "holds no report (no word BBXX)");
    return kWrong;
  }
  return kOk;
}

int for_each_report(Input& input, const UseText& use, const UseText& outside) {
  const auto use_all = [&](std::string_view text, std::size_t) {
    use(text);
    return true;
  };
  return for_each_numbered_report(input, use_all, outside);
}

}  // namespace cli
