#pragma once
// The form as rows: its labelled groups and captions, its fields in tab order, and the report's
// groups at the bottom.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "observation/report_groups.h"
#include "ship/data/KeyObservationItems.h"
#include "text/texts.h"

namespace mainwindow {

/// Numbers by which a field names the element dialog that F1 opens.
enum Element : int {
  kObservationTime = 0,
  kPosition = 1,
  kCourseAndSpeed = 2,
  kPressure = 3,
  kPressureTendency = 4,
  kPsychrometer = 5,
  kTemperatureAndDewPoint = 6,
  kSeaTemperature = 7,
  kApparentWind = 8,
  kWindWave = 9,
  kSwell = 10,
  kVisibility = 11,
  kPresentWeather = 12,
  kPastWeather = 13,
  kCloudAmount = 14,
  kLowestCloud = 15,
  kUpperCloud = 16,
  kMiddleCloud = 17,
  kLowerCloud = 18,
  kIceAccretion = 19,
  kCloudHeight = 20,
  kIceConcentration = 21,
  kIceStage = 22,
  kIceBearing = 23,
  kIceTrend = 24,
  kTrueWind = 25,
  kRelativeHumidity = 26,  ///< has a dialog but no number of old
  kNoElement = 99,
};

/// Main labels: the English text stands this much behind the Japanese one.
inline constexpr int kLabelsToEnglish = 74;
[[nodiscard]] constexpr text::Ref label_ref(text::Id id) {
  return {id, id ? kLabelsToEnglish : 0};
}

/// A label that opens an element's dialog. It does nothing when the element is switched off; a
/// caption also moves the focus on to the field behind its own.
struct LabelRow {
  std::string_view name;
  text::Id label;
  int element = kNoElement;
  std::optional<ObservationItem> item = {};  ///< that switches the element off
  std::string_view caption_of = {};  ///< the field that a caption stands at; none for a group
};
[[nodiscard]] std::span<const LabelRow> label_rows();

enum class FieldKind : std::uint8_t {
  kEdit,
  kNorthSouth,
  kEastWest,
  kLoadingState,
  kFreeze,
};

/// A field of the form; the rows are in tab order.
struct FieldRow {
  std::string_view name;
  text::Id label;  ///< main label, 0 for none
  text::Ref unit = {};
  int max_length = 0;
  int element = kNoElement;
  FieldKind kind = FieldKind::kEdit;
  bool computed = false;  ///< with the other method the program computes it: locked, but shown
};
[[nodiscard]] std::span<const FieldRow> field_rows();

/// A group of the report under its fixed caption.
struct ReportGroupRow {
  observation::Group group;
  std::string_view name;
  std::string_view caption;
};
[[nodiscard]] std::span<const ReportGroupRow> report_group_rows();

/// Characters of the longest group.
inline constexpr int kGroupWidth = 9;

/// Caption of the call sign, which stands in front of the groups.
inline constexpr std::string_view kCallSignCaption = "CALLSIGN";
/// Caption of the word in front of the sea-ice group.
inline constexpr std::string_view kIceCaption = "I C E";

}  // namespace mainwindow
