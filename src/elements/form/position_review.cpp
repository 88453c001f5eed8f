#include "elements/form/position_review.h"

#include <algorithm>
#include <cstdint>

#include "codetables/tables/quadrant.h"
#include "elements/formulas/ship_movement.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/reasons.h"

namespace elements {
namespace {

namespace id = text::id;

// A report has some two hundred bytes; a larger file of that name is no report.
constexpr std::uint64_t kLargestReport = 64U << 10U;

std::string on_one_line(std::string_view text) {
  std::string line(text);
  std::erase_if(line, [](char c) { return c == '\r' || c == '\n'; });
  return line.append("\r\n");
}

text::Id movement_message(MovementWarning warning) {
  switch (warning) {
    case MovementWarning::kLatitude:
      return id::kLatitudeChangeWarning;
    case MovementWarning::kLongitude:
      return id::kLongitudeChangeWarning;
    case MovementWarning::kNone:
      break;
  }
  return {};
}

}  // namespace

std::optional<SignedPosition> signed_position(const Struct_Weather& record) {
  if (!record.position()) return std::nullopt;
  constexpr double kMinutes = 60.0;
  const auto degrees = [](const std::string& whole, const std::string& minutes) {
    return text::leading_int(whole) + text::leading_int(minutes) / kMinutes;
  };
  const bool south = codetables::north_south_of(record.Qc) == 1;
  const bool west = codetables::east_west_of(record.Qc) == 1;
  const double latitude = degrees(record.LaDeg, record.LaMin);
  const double longitude = degrees(record.LoDeg, record.LoMin);
  return SignedPosition{south ? -latitude : latitude, west ? -longitude : longitude};
}

EarlierPosition earlier_position(const Struct_Weather& record, const platform::Files& files,
                                 const std::string& report_folder) {
  if (report_folder.empty() || !observation::has_valid_date(record)) return {};
  const std::string path = observation::earlier_report_path(report_folder, record);
  const auto report = files.read(path, kLargestReport);
  if (report.ok()) return {observation::read_report_position(*report.value), path};
  // A disk that is not in holds no report now, as on a ship that has just begun.
  const bool none = report.error == platform::FileError::kNotFound ||
                    report.error == platform::FileError::kMediumMissing;
  return {std::nullopt, path, none ? platform::FileError::kNone : report.error};
}

std::string review_position(const Struct_Weather& record, const platform::Files& files,
                            const std::string& report_folder, const LandTest& is_on_land,
                            const text::Texts& texts, bool land_confirmed) {
  const auto here = signed_position(record);
  if (!here) return {};
  std::string warnings;
  const auto current = record.position();
  const auto earlier = earlier_position(record, files, report_folder);
  if (current && earlier.unreadable != platform::FileError::kNone)
    warnings +=
        on_one_line(text::fill(texts.get(id::kEarlierReportUnreadable),
                               {earlier.report, texts.get(text::reason_of(earlier.unreadable))}));
  if (current && earlier.position) {
    if (const text::Id message = movement_message(check_movement(*current, *earlier.position));
        message)
      warnings += on_one_line(texts.get(message));
  }
  const bool news = !land_confirmed || !warnings.empty();
  if (news && is_on_land && is_on_land(here->latitude, here->longitude))
    // The text of the dialog's question; here it only warns, and comes first.
    warnings.insert(0, on_one_line(texts.get(id::kOnLandQuestion)));
  return warnings;
}

}  // namespace elements
