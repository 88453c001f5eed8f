#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/commands.h"
#include "cli/observations.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"

namespace cli {
namespace {

constexpr const char* kUsage = "kavrel-cli encode [--language en|ja] [FILE]";

std::string products(const observation::ObservationReader& observed, text::Language language) {
  observation::Report report =
      observation::make_report(observed.record(), observation::wants_wet_bulb(observed.ship()));
  nlohmann::ordered_json line;
  line["report"] = std::move(report.text);
  line["missing"] = observation::missing_list(report.missing, language);
  line["logbook"] =
      observation::encode_logbook(observed.record(), observed.ship(), observed.items());
  return line.dump() + "\n";
}

}  // namespace

int encode_command(const std::vector<std::string>& arguments) {
  text::Language language = text::Language::kEnglish;
  std::string file;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "--language") {
      if (++i == arguments.size()) return usage("--language wants en or ja", kUsage);
      if (arguments[i] != "en" && arguments[i] != "ja")
        return usage("unknown language " + arguments[i], kUsage);
      language = arguments[i] == "ja" ? text::Language::kJapanese : text::Language::kEnglish;
    } else if (word.starts_with("--") || !file.empty()) {
      return usage("unknown argument " + word, kUsage);
    } else {
      file = word;
    }
  }
  Input input(file);
  const auto any = [](const observation::ObservationReader&) -> std::optional<std::string> {
    return std::nullopt;
  };
  const auto print = [&](const observation::ObservationReader& observed) {
    std::cout << products(observed, language);
    return std::cout ? std::nullopt : std::optional<std::string>(kOutputLost);
  };
  return for_each_observation(input, any, print) ? kOk : kWrong;
}

}  // namespace cli
