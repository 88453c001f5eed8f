#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/commands.h"
#include "cli/observations.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"

namespace cli {
namespace {

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

int encode_command(const usage::Words& words) {
  Input input(words.file());
  const auto any = [](const observation::ObservationReader&) -> std::optional<std::string> {
    return std::nullopt;
  };
  const auto print = [&](const observation::ObservationReader& observed) {
    std::cout << products(observed, words.language());
    return std::cout ? std::nullopt : std::optional<std::string>(kOutputLost);
  };
  return for_each_observation(input, any, print) ? kOk : kWrong;
}

}  // namespace cli
