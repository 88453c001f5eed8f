#include "mainwindow/correction.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/formulas/relative_humidity.h"
#include "observation/logbook_reader.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "platform/paths.h"
#include "ship/data/ship_text.h"
#include "text/ids.h"
#include "text/reasons.h"
#include "text/strings.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using observation::Unplaced;
using platform::FileError;

constexpr std::size_t kMostLines = 12;
constexpr std::size_t kLongestWord = 40;

bool is_not_told(std::string_view figures) {
  return figures.find_first_not_of('/') == std::string_view::npos;
}

std::string in_capitals(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

// Any bytes as a short text in one line.
std::string readable(const ui::Services& services, const std::string& bytes) {
  std::string text = from_ship_bytes(bytes, services.code_page);
  for (char& c : text) {
    if (c == '\r' || c == '\n' || c == '\t') c = ' ';
    if (text::is_control(c)) c = '?';
  }
  const std::string_view begin = text::first(text, kLongestWord);
  return begin.size() == text.size() ? text : std::string(begin).append("...");
}

/// From the parts of an opened report to the observation, one after the other.
class Opening {
 public:
  Opening(ui::Services& services, const MainWindowContext& context, const std::string& path,
          const observation::ReadReport& report)
      : services_(services),
        context_(context),
        has_wet_bulb_(report.has_wet_bulb),
        opened_{report.record, {std::string(platform::name_part(path)), {}, report.unplaced}, {}} {}

  OpenedReport run() {
    take_call_sign();
    take_date();
    take_position();
    look_at_wet_bulb();
    look_at_precipitation();
    take_logbook_line();
    if (codetables::is_metres_per_second(record().iw)) note(id::kCorrectMetresPerSecond, {});
    return std::move(opened_);
  }

 private:
  Struct_Weather& record() { return opened_.record; }
  void note(text::Id text, std::initializer_list<std::string_view> arguments) {
    opened_.notes.push_back(text::fill(services_.texts.get(text), arguments));
  }

  void take_call_sign() {
    Struct_Weather own(context_.ship, context_.items);
    std::string sent = own.call_sign_for_report();
    std::replace(sent.begin(), sent.end(), '*', '/');
    auto& unplaced = opened_.correction.unplaced;
    if (!record().CallSign.empty() && record().CallSign != sent)
      unplaced.insert(unplaced.begin(), {record().CallSign, Unplaced::kOtherCallSign});
    record().CallSign = own.CallSign;
    record().ShipFixed = own.ShipFixed;
  }

  /// Of the file's name; nothing when that is no day of the calendar or no hour.
  [[nodiscard]] std::optional<observation::ReportDate> date_of_name() const {
    auto named = observation::report_date(opened_.correction.file);
    if (!named) return named;
    Struct_Weather of_name = opened_.record;
    of_name.Year = named->year;
    of_name.Month = named->month;
    of_name.YY = named->day;
    of_name.GG = named->hour;
    if (!observation::has_valid_date(of_name)) named.reset();
    return named;
  }

  void take_date() {
    const std::string& file = opened_.correction.file;
    const auto named = date_of_name();
    if (named) {
      record().Year = named->year;
      record().Month = named->month;
      if (is_not_told(record().YY)) record().YY = named->day;
      if (is_not_told(record().GG)) record().GG = named->hour;
    }
    opened_.correction.goes_to = observation::report_file_name(record());
    if (!named)
      note(id::kCorrectNoDate, {file});
    else if (record().YY != named->day || record().GG != named->hour)
      note(id::kCorrectOtherDate, {record().YY, record().GG, opened_.correction.goes_to, file});
  }

  // Solidi for degrees are what is sent where none were entered, and nobody can enter them.
  void take_position() {
    for (std::string* const part : {&record().LaDeg, &record().LoDeg, &record().Qc})
      if (is_not_told(*part)) part->clear();
  }

  void look_at_wet_bulb() {
    if (!has_wet_bulb_ || observation::wants_wet_bulb(context_.ship)) return;
    opened_.correction.unplaced.push_back(
        {observation::group_text(record(), observation::Group::k8SwTbTbTb), Unplaced::kWetBulb});
  }

  // iR of 0, 1 or 2 announces a group 6RRRtR. One that is lost may not be announced, and the officer
  // has no field for iR.
  void look_at_precipitation() {
    const std::string& told = record().iR;
    const auto& unplaced = opened_.correction.unplaced;
    const bool is_lost =
        std::any_of(unplaced.begin(), unplaced.end(), [](const observation::UnplacedText& each) {
          return (each.why == Unplaced::kNoField || each.why == Unplaced::kOtherSection) &&
                 each.text.starts_with('6');
        });
    if (is_lost && (told == "0" || told == "1" || told == "2"))
      record().iR = Struct_Weather(context_.ship, context_.items).iR;
  }

  void take_logbook_line() {
    if (!context_.folders.logbook.empty()) {
      const std::string logbook = observation::logbook_path(context_.folders.logbook);
      const observation::LogbookLines lines(record(), context_.ship, context_.items);
      const auto line = observation::find_last_line(services_.files, logbook, lines);
      if (line.ok() && !line.value->empty()) {
        lines.complete(record(), *line.value);
        return;
      }
      if (line.ok() || line.error == FileError::kNotFound) {
        note(id::kCorrectNoLine, {logbook});
      } else {
        // A look tells a folder from a file that may not be read.
        const FileError seen = platform::why_no_file(services_.files.look(logbook));
        const text::Id why = text::reason_of(seen == FileError::kNone ? line.error : seen);
        note(id::kCorrectLogbookUnreadable, {logbook, services_.texts.get(why)});
      }
    }
    do_without_line();
  }

  void do_without_line() {
    const Struct_Weather& r = record();
    // "00": no swell at all, and then the second direction stays as it was sent.
    const bool first_swell = !is_not_told(r.dw1dw1) && r.dw1dw1 != "00";
    const bool second_swell = !is_not_told(r.dw2dw2) || !r.Pw2Pw2.empty() || !r.Hw2Hw2.empty();
    if (first_swell && !second_swell && context_.items.observed(ObservationItem::dw2Pw2Hw2))
      record().dw2dw2 = "00";
    if (context_.ship.humidity_method != HumidityMethod::kComputed) return;
    const auto humidity =
        elements::humidity_of_texts(codetables::temperature_shown(r.SnT, r.TTT),
                                    codetables::temperature_shown(r.SnTd, r.TdTdTd));
    if (humidity) record().LogExtra = humidity->logbook;
  }

  ui::Services& services_;
  const MainWindowContext& context_;
  bool has_wet_bulb_;
  OpenedReport opened_;
};

}  // namespace

std::optional<OpenedReport> open_report(ui::Services& services, const MainWindowContext& context,
                                        const std::string& path) {
  const platform::Look found = services.files.look(path);
  FileError why = platform::why_no_file(found);
  if (why == FileError::kNone && found.size > observation::kLargestReport) {
    services.messages.error_filled(id::kCorrectTooLarge, {path});
    return std::nullopt;
  }
  std::string text;
  if (why == FileError::kNone) {
    auto content = services.files.read(path, observation::kLargestReport);
    why = content.error;
    if (content.ok()) text = std::move(*content.value);
  }
  if (why != FileError::kNone) {
    services.messages.file_error(id::kCorrectUnreadable, path, why);
    return std::nullopt;
  }
  const Struct_Weather start(context.ship, context.items);
  auto report = observation::read_report(text, start);
  // Somebody's editor may have made small letters of it; figures have none.
  if (!report) report = observation::read_report(in_capitals(text), start);
  if (!report) {
    const bool empty = text::trim(text).empty();
    services.messages.error_filled(empty ? id::kCorrectEmpty : id::kCorrectNoReport, {path});
    return std::nullopt;
  }
  return Opening(services, context, path, *report).run();
}

std::vector<std::string> unplaced_lines(const ui::Services& services,
                                        const elements::Correction& correction) {
  const text::Texts& texts = services.texts;
  std::vector<std::string> lines;
  for (const observation::UnplacedText& each : correction.unplaced) {
    if (lines.size() == kMostLines) {
      const std::string more = std::to_string(correction.unplaced.size() - kMostLines);
      lines.push_back(text::fill(texts.get(id::kUnplacedMore), {more}));
      break;
    }
    lines.push_back(
        text::fill(texts.get(id::kUnplaced), {correction.file, readable(services, each.text),
                                              texts.get(observation::words_of(each.why))}));
  }
  return lines;
}

void tell_notes(ui::Services& services, const OpenedReport& opened) {
  std::string below;
  const auto add = [&](const std::string& line) {
    if (!below.empty()) below.append("\n");
    below.append(line);
  };
  for (const std::string& line : unplaced_lines(services, opened.correction)) add(line);
  for (const std::string& note : opened.notes) add(note);
  if (!below.empty())
    services.messages.error_filled(id::kCorrectNotes, {opened.correction.file}, below);
}

}  // namespace mainwindow
