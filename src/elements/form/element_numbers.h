#pragma once
// The elements of an observation by the numbers of their dialogs.

namespace elements {

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

}  // namespace elements
