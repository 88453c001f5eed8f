#include "explain/past_observations.h"

#include <map>
#include <utility>

#include "archive/CFindFile.h"
#include "observation/logbook_reader.h"
#include "observation/logbook_record.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"

namespace explain {

using observation::PastObservation;

namespace {

using ByHour = std::map<int, PastObservation>;

// Other ships may stand in the logbook of a computer that was aboard them, and of a line that was
// cut or shifted nothing is believed.
void add_logbook(ByHour& by_hour, const platform::Files& files, const std::string& folder,
                 const ShipFixedData& ship, const KeyObservationItems& items, int first,
                 int beyond) {
  const auto add = [&](std::string_view text) {
    const auto line = observation::LogbookLine::of(text);
    if (!line || line->call_sign() != ship.call_sign) return;
    const auto hour = line->hour();
    if (!hour || *hour < first || *hour >= beyond || !line->is_in_place()) return;
    const auto at = by_hour.find(*hour);
    if (at != by_hour.end() && at->second.from == PastObservation::From::kReport) return;
    const auto read = observation::record_of_line(text, ship, items);
    by_hour[*hour] = {*hour, observation::values_of(read->record), PastObservation::From::kLogbook};
  };
  // As far as it can be read: what comes behind is passed over like a report that cannot be.
  (void)observation::for_each_line(files, observation::logbook_path(folder), add);
}

}  // namespace

std::vector<PastObservation> past_observations(platform::Files& files, const Archive& archive,
                                               const ShipFixedData& ship,
                                               const KeyObservationItems& items, int first,
                                               int beyond) {
  ByHour by_hour;
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
  if (!archive.logbook.empty())
    add_logbook(by_hour, files, archive.logbook, ship, items, first, beyond);
  std::vector<PastObservation> observations;
  observations.reserve(by_hour.size());
  for (auto& [hour, past] : by_hour) observations.push_back(std::move(past));
  return observations;
}

}  // namespace explain
