#include <iostream>

#include "cli/commands.h"
#include "cli/observations.h"
#include "observation/report_reader.h"
#include "observation/report_text.h"
#include "text/strings.h"
#include "text/texts.h"

namespace cli {
namespace {

constexpr const char* kUsage = "kavrel-cli read [FILE]";
/// No report is longer, however many telex lines it takes.
constexpr std::size_t kLongestReport = 16U << 10U;

using observation::Unplaced;

std::string_view reason_of(Unplaced why) {
  return text::resolve({observation::words_of(why)}, text::Language::kEnglish);
}

// Comment lines, so that the output can be encoded again.
void name_unplaced(std::ostream& out, std::string_view text, Unplaced why) {
  while (!text.empty()) {
    const auto end = text.find_first_of("\r\n");
    const std::string_view line = text::trim(text.substr(0, end));
    if (!line.empty()) out << "# not placed: " << shown(line) << " (" << reason_of(why) << ")\n";
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
}

/// Cuts the lines of an input into reports and prints each.
class Printer {
 public:
  explicit Printer(std::ostream& out) : out_(out) {}

  /// False for a report that does not end.
  [[nodiscard]] bool take(std::string_view line) {
    // A note of a person's, or what an earlier run could not place.
    if (line.starts_with('#')) return true;
    if (pending_.empty() && !observation::find_report(line)) {
      outside(line);
      return true;
    }
    pending_.append(line).append("\n");
    print_ended(false);
    if (!observation::find_report(pending_)) {
      outside(pending_);
      pending_.clear();
    }
    return pending_.size() <= kLongestReport;
  }

  void finish() {
    print_ended(true);
    if (observation::find_report(pending_))
      print(pending_);
    else
      outside(pending_);
  }

  [[nodiscard]] int reports() const { return reports_; }

 private:
  /// Prints the reports that have ended; with `at_end` also those whose end would be none if more
  /// text came.
  void print_ended(bool at_end) {
    for (auto found = observation::find_report(pending_);
         found && found->ended && (at_end || !found->open);
         found = observation::find_report(pending_)) {
      print(std::string_view(pending_).substr(0, found->length));
      pending_.erase(0, found->length);
    }
  }

  void outside(std::string_view text) {
    if (text::trim(text) != "NNNN") name_unplaced(out_, text, Unplaced::kOutsideReport);
  }

  void print(std::string_view text) {
    const Struct_Weather fresh({}, {});
    const auto report = observation::read_report(text, fresh);
    if (!report) return;
    if (++reports_ > 1) out_ << "\n";
    // The group is written only for a ship that computes its dew point from it; such a line stays
    // in force, so that the next report without the group takes it back.
    if (report->has_wet_bulb != dew_point_computed_)
      out_ << "ship.dew_point_method=" << (report->has_wet_bulb ? 1 : 0) << "\n";
    dew_point_computed_ = report->has_wet_bulb;
    std::string lines;
    observation::write_observation(lines, report->record, fresh);
    out_ << lines;
    for (const auto& each : report->unplaced) name_unplaced(out_, each.text, each.why);
  }

  std::ostream& out_;
  std::string pending_;
  int reports_ = 0;
  bool dew_point_computed_ = false;  ///< as the lines printed so far have it
};

}  // namespace

int read_command(const std::vector<std::string>& arguments) {
  std::string file;
  for (const std::string& word : arguments) {
    if (word.starts_with("--") || !file.empty()) return usage("unknown argument " + word, kUsage);
    file = word;
  }
  Input input(file);
  if (!input.problem().empty()) {
    complain(input, 0, input.problem());
    return kWrong;
  }
  Printer printer(std::cout);
  std::string line;
  std::size_t number = 0;
  for (bool more = true; more;) {
    ++number;
    switch (input.next(line, kLongestReport)) {
      case Input::Line::kLine:
        if (printer.take(line)) break;
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
  printer.finish();
  if (printer.reports() == 0) {
    complain(input, 0, "holds no report (no word BBXX)");
    return kWrong;
  }
  return kOk;
}

}  // namespace cli
