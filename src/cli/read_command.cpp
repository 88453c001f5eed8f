#include <iostream>

#include "cli/commands.h"
#include "cli/observations.h"
#include "cli/reports.h"
#include "observation/report_reader.h"
#include "text/strings.h"
#include "text/texts.h"

namespace cli {
namespace {

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

/// Prints reports as observations.
class Printer {
 public:
  explicit Printer(std::ostream& out) : out_(out) {}

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

 private:
  std::ostream& out_;
  int reports_ = 0;
  bool dew_point_computed_ = false;  ///< as the lines printed so far have it
};

}  // namespace

int read_command(const usage::Words& words) {
  Input input(words.file());
  Printer printer(std::cout);
  return for_each_report(
      input, [&](std::string_view text) { printer.print(text); },
      [](std::string_view text) { name_unplaced(std::cout, text, Unplaced::kOutsideReport); });
}

}  // namespace cli
