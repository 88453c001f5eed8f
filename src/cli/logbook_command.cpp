#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/commands.h"
#include "cli/observations.h"
#include "cli/program.h"
#include "explain/log/logbook_check.h"
#include "observation/logbook_record.h"
#include "observation/observation_file.h"
#include "text/numbers.h"

namespace cli {
namespace {

/// Of a line that is longer than any of the layout only so much is looked at.
constexpr std::size_t kLongestLine = 1024;

using observation::LogbookColumn;
using observation::LogbookRecord;

/// What a line tells of its ship, by the names of observation files.
struct ShipSetting {
  std::string_view name;
  std::string (*text)(const ShipFixedData& ship);
};

std::string unit_text(double unit) {
  return unit > 0 ? text::format_fixed(unit, 1) : std::string();
}

constexpr ShipSetting kShipSettings[] = {
    {"temperature_unit", [](const ShipFixedData& s) { return unit_text(s.temperature_unit); }},
    {"sea_temperature_method",
     [](const ShipFixedData& s) {
       return text::format_int(static_cast<int>(s.sea_temperature_method));
     }},
    {"dew_point_method",
     [](const ShipFixedData& s) { return text::format_int(static_cast<int>(s.dew_point_method)); }},
    {"vosclim_cargo_height", [](const ShipFixedData& s) { return s.vosclim_cargo_height; }},
    {"vosclim_load_line_departure",
     [](const ShipFixedData& s) { return s.vosclim_load_line_departure; }},
    {"imo_number", [](const ShipFixedData& s) { return s.imo_number; }},
    {"humidity_method",
     [](const ShipFixedData& s) { return text::format_int(static_cast<int>(s.humidity_method)); }},
    {"humidity_unit", [](const ShipFixedData& s) { return unit_text(s.humidity_unit); }},
    {"aws_fitted", [](const ShipFixedData& s) { return text::format_int(s.aws_fitted ? 1 : 0); }},
};

/// Writes the observations of the lines one by one.
class Writer {
 public:
  explicit Writer(std::ostream& out) : out_(out) {}
  virtual ~Writer() = default;
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  Writer(Writer&&) = delete;
  Writer& operator=(Writer&&) = delete;

  void write(std::size_t number, const LogbookRecord& read) {
    text_.clear();
    add(text_, number, read);
    out_ << text_;
  }

 protected:
  virtual void add(std::string& out, std::size_t number, const LogbookRecord& read) = 0;

 private:
  std::ostream& out_;
  std::string text_;
};

std::string columns_of(const LogbookRecord& read) {
  std::string names;
  for (const LogbookColumn* const column : read.unread) {
    if (!names.empty()) names.append(", ");
    names.append(std::to_string(column->first));
    if (column->last != column->first) names.append("-").append(std::to_string(column->last));
  }
  return names;
}

// Fields hold printable ASCII only.
void add_json_text(std::string& out, std::string_view text) {
  out.push_back('"');
  for (const char c : text) {
    if (c == '"' || c == '\\') out.push_back('\\');
    out.push_back(c);
  }
  out.push_back('"');
}

class Json : public Writer {
 public:
  using Writer::Writer;

 private:
  void add(std::string& out, std::size_t number, const LogbookRecord& read) override {
    out.append("{\"line\":").append(std::to_string(number));
    for (const WeatherField& field : weather_fields()) {
      const std::string& value = read.record.*field.member;
      if (value.empty()) continue;
      out.append(",\"").append(field.name).append("\":");
      add_json_text(out, value);
    }
    out.append(",\"ship\":{");
    const char* between = "";
    for (const ShipSetting& setting : kShipSettings) {
      const std::string value = setting.text(read.ship);
      if (value.empty()) continue;
      out.append(between).append("\"").append(setting.name).append("\":");
      add_json_text(out, value);
      between = ",";
    }
    out.push_back('}');
    if (!read.unread.empty()) {
      out.append(",\"unread\":");
      add_json_text(out, columns_of(read));
    }
    out.append("}\n");
  }
};

class Csv : public Writer {
 public:
  explicit Csv(std::ostream& out) : Writer(out) {
    out << "line";
    for (const WeatherField& field : weather_fields()) out << "," << field.name;
    for (const ShipSetting& setting : kShipSettings) out << ",ship." << setting.name;
    out << "\n";
  }

 private:
  void add(std::string& out, std::size_t number, const LogbookRecord& read) override {
    out.append(std::to_string(number));
    for (const WeatherField& field : weather_fields()) add_cell(out, read.record.*field.member);
    for (const ShipSetting& setting : kShipSettings) add_cell(out, setting.text(read.ship));
    out.push_back('\n');
  }

  static void add_cell(std::string& out, std::string_view text) {
    out.push_back(',');
    if (text.find_first_of(",\"") == std::string_view::npos) {
      out.append(text);
      return;
    }
    out.push_back('"');
    for (const char c : text) {
      if (c == '"') out.push_back('"');
      out.push_back(c);
    }
    out.push_back('"');
  }
};

/// What the lines of an observation file hold, so that encoding them gives the lines again. Those of
/// ship and items stay in force and are written where they change.
class Names : public Writer {
 public:
  using Writer::Writer;

 private:
  void add(std::string& out, std::size_t number, const LogbookRecord& read) override {
    if (!std::exchange(first_, false)) out.push_back('\n');
    out.append("# line ").append(std::to_string(number)).append("\n");
    for (const ShipSetting& setting : kShipSettings) {
      const std::string value = setting.text(read.ship);
      if (value == setting.text(ship_)) continue;
      if (value.empty() && setting.name == "temperature_unit")
        out.append("# ship.temperature_unit is not told\n");
      else
        out.append("ship.").append(setting.name).append("=").append(value).append("\n");
    }
    for (std::size_t i = 0; i < kObservationItems; ++i) {
      if (read.items.not_observed.at(i) == items_.not_observed.at(i)) continue;
      out.append("item.").append(kObservationItemNames.at(i));
      out.append(read.items.not_observed.at(i) ? "=1\n" : "=0\n");
    }
    ship_ = read.ship;
    items_ = read.items;
    // Its call sign stands with every observation.
    ship_.call_sign = ShipFixedData().call_sign;
    observation::write_observation(out, read.record, Struct_Weather(ship_, items_));
  }

  bool first_ = true;
  ShipFixedData ship_;  ///< as the lines written so far have it
  KeyObservationItems items_;
};

void read_line(const Input& input, std::size_t number, std::string_view line, Writer& writer) {
  const auto read = observation::record_of_line(line, {}, {});
  if (!read && observation::LogbookLine::of(line)) {
    complain(input, number, "damaged: its columns are shifted or overwritten");
    return;
  }
  if (!read) {
    complain(input, number,
             "damaged: a line has 172 characters, this one " +
                 (line.size() > kLongestLine ? "more than " + std::to_string(kLongestLine)
                                             : std::to_string(line.size())));
    return;
  }
  if (!read->unread.empty())
    complain(input, number, "damaged: cannot be read in columns " + columns_of(*read));
  writer.write(number, *read);
}

/// Hands over the lines of the input, without their ends, until one cannot be read or what is told
/// is received by nobody. The status of the command.
template <class Use>
int for_each_line(Input& input, Use use) {
  std::string line;
  std::string rest;
  for (std::size_t number = 1;; ++number) {
    auto what = input.next(line, kLongestLine);
    while (what == Input::Line::kTooLong) what = input.next(rest, kLongestLine);
    if (what == Input::Line::kUnreadable) {
      complain(input, number, "cannot be read");
      return kWrong;
    }
    if (what == Input::Line::kEnd && line.empty()) return kOk;
    if (line.ends_with('\r')) line.pop_back();
    use(number, std::string_view(line));
    if (!std::cout) {
      std::cerr << "kavrel-cli: " << kOutputLost << "\n";
      return kWrong;
    }
    if (what == Input::Line::kEnd) return kOk;
  }
}

template <class Format>
int read_lines(Input& input) {
  Format writer(std::cout);
  return for_each_line(input, [&](std::size_t number, std::string_view line) {
    read_line(input, number, line, writer);
  });
}

// ---- The check

std::string json_line(const Input& input, const explain::Finding& finding) {
  nlohmann::ordered_json line;
  line["file"] = input.name();
  line["line"] = finding.line;
  const auto& columns = finding.place.columns;
  line["first_column"] = columns.empty() ? 0 : columns.front().first;
  line["last_column"] = columns.empty() ? 0 : columns.front().last;
  line["columns"] = nlohmann::ordered_json::array();
  for (const auto& [first, last] : columns) line["columns"].push_back({first, last});
  line["element"] = finding.place.symbols;
  line["kind"] = finding.kind->name;
  line["rule"] = finding.rule;
  line["severity"] = explain::name_of(finding.kind->severity);
  line["text"] = finding.text;
  // A file may have any bytes in its name.
  return line.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

// Opening the list would empty it.
bool is_the_input(const std::string& list, const std::string& file) {
  std::error_code ignored;
  return !file.empty() && std::filesystem::equivalent(file_path(list), file_path(file), ignored);
}

int check_lines(const usage::Words& words) {
  const std::string& list_name = words.value("--list");
  const bool json = words.has("--json");
  Input input(words.file());
  std::ofstream list;
  if (!input.problem().empty()) {
    complain(input, 0, input.problem());
    return kWrong;
  }
  if (!list_name.empty()) {
    if (is_the_input(list_name, words.file()))
      return refused(words.command(), "--list is the logbook");
    list.open(file_path(list_name), std::ios::binary | std::ios::trunc);
    if (!list) return refused(words.command(), "--list: " + list_name + " cannot be written");
  }
  explain::LogbookCheck check(words.language(), [&](const explain::Finding& finding) {
    if (json) std::cout << json_line(input, finding);
    if (list.is_open()) list << json_line(input, finding);
  });
  const int status = for_each_line(
      input, [&](std::size_t /*number*/, std::string_view line) { check.take(line); });
  if (status != kOk) return status;
  // The list first, so that it is whole when nobody reads the summary to its end.
  const explain::Summary& summary = check.finish();
  const bool list_is_written = !list.is_open() || list.flush();
  if (!json) std::cout << summary.words();
  if (!list_is_written) {
    std::cerr << "kavrel-cli: " << list_name << " cannot be written\n";
    return kWrong;
  }
  // Notes call for nothing. A log without a line may have been lost on its way.
  return summary.is_sound() && summary.lines() > 0 ? kOk : kFound;
}

/// Which options do not go with each other; empty when all do.
std::string contradiction(const usage::Words& words) {
  const bool has_list = words.has("--list");
  if (words.has("--check") && words.has("--format")) return "--check has no --format";
  if (words.has("--json") && has_list) return "--json is the list, so --list has none";
  if (!words.has("--check") && (words.has("--json") || words.has("--language") || has_list))
    return "--json, --list and --language go with --check";
  return {};
}

}  // namespace

int logbook_command(const usage::Words& words) {
  if (const std::string reason = contradiction(words); !reason.empty())
    return refused(words.command(), reason);
  if (words.has("--check")) return check_lines(words);
  struct Row {
    const char* name;
    int (*read)(Input& input);
  };
  constexpr Row kFormats[] = {
      {"json", read_lines<Json>}, {"csv", read_lines<Csv>}, {"names", read_lines<Names>}};
  const std::string format = words.has("--format") ? words.value("--format") : kFormats[0].name;
  for (const Row& row : kFormats) {
    if (format != row.name) continue;
    Input input(words.file());
    if (input.problem().empty()) return row.read(input);
    complain(input, 0, input.problem());
  }
  return kWrong;
}

}  // namespace cli
