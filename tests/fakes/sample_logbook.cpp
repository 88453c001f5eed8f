#include "fakes/sample_logbook.h"

#include <stdexcept>

#include "observation/logbook_encoder.h"
#include "text/numbers.h"

namespace fakes {

std::string logbook_line(
    int day, int hour,
    std::initializer_list<std::pair<std::string_view, std::string_view>> others) {
  Struct_Weather record(sample_ship(), KeyObservationItems());
  const auto set = [&](std::string_view name, std::string_view value) {
    const WeatherField* const field = find_weather_field(name);
    if (field == nullptr) throw std::invalid_argument("no field " + std::string(name));
    record.*field->member = value;
  };
  // A speed of 14 knots is about a degree of longitude in three hours.
  const int hours = day * 24 + hour;
  const std::pair<std::string_view, std::string> figures[] = {
      {"Year", "2014"},
      {"Month", "11"},
      {"YY", text::format_int(day, 2, '0')},
      {"GG", text::format_int(hour, 2, '0')},
      {"Qc", "1"},
      {"LaDeg", "35"},
      {"LaMin", "42"},
      {"LoDeg", text::format_int(180 - hours / 3 % 40, 3, '0')},
      {"LoMin", "18"},
      {"h", "4"},
      {"VV", "97"},
      {"N", "6"},
      {"dd", "27"},
      {"ff", text::format_int(12 + hours % 7, 2, '0')},
      {"SnT", "0"},
      {"TTT", text::format_int(150 + hours % 11, 3, '0')},
      {"SnTd", "0"},
      {"TdTdTd", "108"},
      {"PPPP", text::format_int(120 + hours % 13, 4, '0')},
      {"ww", "02"},
      {"W1", "2"},
      {"W2", "2"},
      {"Nh", "4"},
      {"CL", "5"},
      {"CM", "3"},
      {"CH", "1"},
      {"Ds", "6"},
      {"Vs", "4"},
      {"Ss", "0"},
      {"TwTwTw", text::format_int(170 + hours % 5, 3, '0')},
      {"PwPw", "05"},
      {"HwHw", "03"},
      {"dw1dw1", "25"},
      {"dw2dw2", "00"},
      {"Pw1Pw1", "09"},
      {"Hw1Hw1", "04"},
      {"LogExtra", "0750"}};
  for (const auto& [name, value] : figures) set(name, value);
  for (const auto& [name, value] : others) set(name, value);
  return observation::encode_logbook(record, sample_ship(), KeyObservationItems());
}

std::string sample_log() {
  std::string log;
  for (int hour = 0; hour < 48; hour += 3) {
    log +=
        hour == 12 ? logbook_line(14, 12, {{"VV", "50"}}) : logbook_line(14 + hour / 24, hour % 24);
    log += "\n";
    if (hour == 3) log += logbook_line(14, 3, {{"TTT", "149"}}) + "\n";
  }
  return log + logbook_line(16, 0).substr(0, 100) + "\n";
}

SampleLog::SampleLog(ui::Services& others)
    : log_services_{others.clock,     others.locale,  others.drives,  log_files_,
                    others.code_page, others.printer, others.windows, others.texts,
                    others.messages,  others.help} {
  log_files_.add_file(std::string(kLogFolder) + "immt5.log", sample_log());
}

}  // namespace fakes
