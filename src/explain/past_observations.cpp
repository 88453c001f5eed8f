#include "explain/past_observations.h"

#include <map>
#include <utility>

#include "archive/CFindFile.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"

namespace explain {

using observation::PastObservation;

std::vector<PastObservation> past_observations(platform::Files& files, const Archive& archive,
                                               const ShipFixedData& ship,
                                               const KeyObservationItems& items, int first,
                                               int beyond) {
  std::map<int, PastObservation> by_hour;
  std::vector<std::string> found;
  if (!archive.reports.empty())
    CFindFile(files).find(archive.reports, observation::kReportExtension, found);
  const Struct_Weather start(ship, items);
  for (const std::string& path : found) {
    const auto hour = observation::report_hour(path);
    if (!hour || *hour < first || *hour >= beyond) continue;
    const platform::Result<std::string> text = files.read(path, observation::kLargestReport);
    if (!text.ok()) continue;
    const auto report = observation::read_report(*text.value, start);
    if (!report) continue;
    PastObservation past{*hour, observation::values_of(report->record)};
    // The year and month stand in the name alone, and the name is what the officer knows it by.
    past.values.hour = *hour;
    by_hour.emplace(*hour, std::move(past));
  }
  std::vector<PastObservation> observations;
  observations.reserve(by_hour.size());
  for (auto& [hour, past] : by_hour) observations.push_back(std::move(past));
  return observations;
}

}  // namespace explain
