#include "bufr/command.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <utility>
#include <variant>

#include "bufr/elements.h"
#include "bufr/message.h"
#include "bufr/output_file.h"
#include "bufr/wigos.h"
#include "cli/commands.h"
#include "cli/observations.h"
#include "cli/program.h"
#include "cli/reports.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "text/strings.h"
#include "text/texts.h"

namespace bufr {
namespace {

struct Arguments {
  std::optional<WigosIdentifier> wigos;
  std::optional<std::string> date;  ///< "YYYY-MM"
  std::string output = "-";
  std::string file;
};

/// The arguments, or what is wrong with them.
std::variant<Arguments, std::string> arguments_of(const usage::Words& words) {
  Arguments arguments;
  arguments.file = words.file();
  if (words.has("--output")) arguments.output = words.value("--output");
  if (words.has("--date")) arguments.date = words.value("--date");
  if (words.has("--wigos")) {
    const std::string& value = words.value("--wigos");
    auto identifier = wigos_identifier(value);
    if (const auto* wrong = std::get_if<std::string>(&identifier))
      return "--wigos " + value + ": " + *wrong;
    arguments.wigos = std::get<WigosIdentifier>(std::move(identifier));
  }
  return arguments;
}

/// One run: checks observations and writes their messages.
class Writer {
 public:
  Writer(const Arguments& arguments, OutputFile& output) : arguments_(arguments), output_(output) {}

  /// The reason why the observation cannot be encoded, or nothing.
  [[nodiscard]] std::optional<std::string> check(const Struct_Weather& record) {
    if (const auto fault = observation::date_fault(record)) return cli::date_reason(*fault);
    if (!arguments_.wigos) return std::nullopt;
    // The identifier is one station's.
    if (!call_sign_) call_sign_ = record.CallSign;
    if (*call_sign_ == record.CallSign) return std::nullopt;
    return "--wigos names one ship, and here is another (" + record.CallSign + " behind " +
           *call_sign_ + ")";
  }

  /// The observation that began in that line.
  [[nodiscard]] std::optional<std::string> write(const Struct_Weather& record,
                                                 const ShipFixedData& ship, const cli::Input& input,
                                                 std::size_t line) {
    const Contents contents = contents_of(record, ship);
    for (const std::string& odd : contents.odd)
      cli::complain(input, line, "left missing: " + cli::shown(odd));
    if (!output_.write(encode(contents, arguments_.wigos))) return kNotWritten;
    ++written_;
    return std::nullopt;
  }

  [[nodiscard]] std::size_t written() const { return written_; }

  static constexpr const char* kNotWritten = "the output cannot be written";

 private:
  const Arguments& arguments_;
  OutputFile& output_;
  std::optional<std::string> call_sign_;
  std::size_t written_ = 0;
};

bool write_observations(cli::Input& input, Writer& writer) {
  const auto check = [&](const observation::ObservationReader& observed) {
    return writer.check(observed.record());
  };
  const auto write = [&](const observation::ObservationReader& observed) {
    return writer.write(observed.record(), observed.ship(), input, observed.first_line());
  };
  if (!cli::for_each_observation(input, check, write)) {
    std::cerr << "kavrel-cli: reports hold no year and month: --date YYYY-MM tells them, or a "
                 "name YYMMDDHH.tlx\n";
    return false;
  }
  if (writer.written() == 0) cli::complain(input, 0, "holds no observation");
  return writer.written() > 0;
}

/// The year and month of reports, from the arguments and the file's name.
struct ReportMonth {
  std::string year, month;
  std::optional<observation::ReportDate> named;  ///< when the name tells all of the date
};

std::optional<std::string> contradiction(const ReportMonth& month, const Struct_Weather& record) {
  const auto& named = month.named;
  if (!named || (named->year == month.year && named->month == month.month &&
                 named->day == record.YY && named->hour == record.GG))
    return std::nullopt;
  return "the file's name tells another date and hour than " + month.year + "-" + month.month +
         " and the report's " + record.YY + record.GG;
}

std::optional<observation::ReadReport> read(std::string_view report, const ReportMonth& month) {
  auto result = observation::read_report(report, Struct_Weather({}, {}));
  if (!result) return result;
  result->record.Year = month.year;
  result->record.Month = month.month;
  return result;
}

void name_unplaced(const cli::Input& input, std::size_t line,
                   const observation::ReadReport& report) {
  for (const auto& each : report.unplaced) {
    if (each.why == observation::Unplaced::kOutsideReport) continue;
    const std::string_view why =
        text::resolve({observation::words_of(each.why)}, text::Language::kEnglish);
    cli::complain(input, line,
                  "not placed: " + cli::shown(each.text) + " (" + std::string(why) + ")");
  }
}

bool write_reports(cli::Input& input, const ReportMonth& month, Writer& writer) {
  const auto refused = [&](std::string_view text, std::size_t line, bool write) {
    const auto report = read(text, month);
    if (!report) return false;
    auto reason = contradiction(month, report->record);
    if (!reason) reason = writer.check(report->record);
    if (!reason && write) {
      name_unplaced(input, line, *report);
      reason = writer.write(report->record, {}, input, line);
    }
    if (reason) cli::complain(input, line, cli::shown(*reason));
    return reason.has_value();
  };
  const auto go_through = [&](bool write) {
    const auto use = [&](std::string_view text, std::size_t line) {
      return !refused(text, line, write);
    };
    // What stands around the reports is nobody's observation.
    return cli::for_each_numbered_report(input, use, [](std::string_view) {}) == cli::kOk;
  };
  if (input.can_rewind()) {
    if (!go_through(false)) return false;
    input.rewind();
  }
  return go_through(true);
}

std::optional<ReportMonth> month_of_reports(const Arguments& arguments) {
  const auto named =
      observation::report_date(std::filesystem::path(arguments.file).filename().string());
  if (arguments.date)
    return ReportMonth{arguments.date->substr(0, 4), arguments.date->substr(5), named};
  if (!named) return std::nullopt;
  return ReportMonth{named->year, named->month, named};
}

}  // namespace

int command(const usage::Words& words) {
  if (const auto status = cli::answered(words)) return *status;
  const auto result = arguments_of(words);
  if (const auto* wrong = std::get_if<std::string>(&result))
    return cli::refused(words.command(), *wrong);
  const auto& wanted = std::get<Arguments>(result);
  if (wanted.output == "-") cli::end_with_the_reader();
  cli::Input input(wanted.file);
  if (!input.problem().empty()) {
    cli::complain(input, 0, input.problem());
    return cli::kWrong;
  }
  OutputFile output(wanted.output, wanted.file);
  if (!output.problem().empty()) {
    std::cerr << "kavrel-cli: " << output.problem() << "\n";
    return cli::kWrong;
  }
  Writer writer(wanted, output);
  const auto month = month_of_reports(wanted);
  const bool done =
      month ? write_reports(input, *month, writer) : write_observations(input, writer);
  if (!done) return cli::kWrong;
  if (output.commit()) return cli::kOk;
  std::cerr << "kavrel-cli: " << Writer::kNotWritten << "\n";
  return cli::kWrong;
}

}  // namespace bufr
