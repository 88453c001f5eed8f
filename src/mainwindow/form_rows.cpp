#include "mainwindow/form_rows.h"

#include "text/ids.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using observation::Group;

constexpr LabelRow kLabels[] = {
    {"label_time", id::kLabelObservationTime, kObservationTime},
    {"label_latitude", id::kLabelLatitude, kPosition},
    {"label_longitude", id::kLabelLongitude, kPosition},
    {"label_ship_direction", id::kLabelShipDirection, kCourseAndSpeed},
    {"label_ship_speed", id::kLabelShipSpeed, kCourseAndSpeed},
    {"label_pressure", id::kLabelAirPressure, kPressure},
    {"label_tendency", id::kLabelDuringThreeHours, kPressureTendency},
    {"label_dry_and_wet", id::kLabelDryAndWet, kPsychrometer},
    {"label_dew_point", id::kLabelTempByDewPoint, kTemperatureAndDewPoint},
    {"label_humidity", id::kLabelHumidity, kRelativeHumidity},
    {"label_true_wind", id::kLabelTrueWind, kTrueWind},
    {"label_apparent_wind", id::kLabelApparentWind, kApparentWind},
    {"label_sea_temperature", id::kLabelSeaTemperature, kSeaTemperature},
    {"label_wind_wave", id::kLabelWindWave, kWindWave, ObservationItem::PwHw},
    {"label_swell1", id::kLabelSwell1, kSwell, ObservationItem::dw1Pw1Hw1},
    {"label_swell2", id::kLabelSwell2, kSwell, ObservationItem::dw2Pw2Hw2},
    {"label_wave_recorder", id::kLabelWaveRecorder, kNoElement},
    {"label_visibility", id::kLabelVisibility, kVisibility, ObservationItem::VV},
    {"label_present_weather", id::kLabelPresentWeather, kPresentWeather, ObservationItem::ww},
    {"label_past_weather", id::kLabelPastWeather, kPastWeather, ObservationItem::W1W2},
    {"label_total_cloud", id::kLabelTotalCloud, kCloudAmount, ObservationItem::N},
    {"label_lowest_cloud", id::kLabelLowestCloud, kLowestCloud, ObservationItem::Nh},
    {"label_cloud_type", id::kLabelCloudType, kNoElement},
    {"caption_CH", id::kLabelUpperCloud, kUpperCloud, ObservationItem::CLCMCH, "CH"},
    {"caption_CM", id::kLabelMiddleCloud, kMiddleCloud, ObservationItem::CLCMCH, "CM"},
    {"caption_CL", id::kLabelLowerCloud, kLowerCloud, ObservationItem::CLCMCH, "CL"},
    {"label_cloud_height", id::kLabelCloudHeight, kCloudHeight, ObservationItem::h},
    {"label_ice_accretion", id::kLabelIceAccretion, kIceAccretion, ObservationItem::IsEsEsRs},
    {"label_sea_ice", id::kLabelSeaIce, kNoElement},
    {"caption_ci", id::kLabelIceConcentration, kIceConcentration, ObservationItem::ciSibiDizi,
     "ci"},
    {"caption_Si", id::kLabelIceStage, kIceStage, ObservationItem::ciSibiDizi, "Si"},
    {"caption_bi", id::kLabelIceLandOrigin, kIceStage, ObservationItem::ciSibiDizi, "bi"},
    {"caption_Di", id::kLabelIceBearing, kIceBearing, ObservationItem::ciSibiDizi, "Di"},
    {"caption_zi", id::kLabelIceTrend, kIceTrend, ObservationItem::ciSibiDizi, "zi"},
};

constexpr text::Ref kDegrees = label_ref(id::kLabelDegrees);
constexpr text::Ref kMinutes = label_ref(id::kLabelMinutes);
constexpr text::Ref kTens = label_ref(id::kLabelTensOfDegrees);
constexpr text::Ref kKnots = label_ref(id::kLabelKnots);
constexpr text::Ref kPercent = label_ref(id::kLabelPercent);
constexpr text::Ref kSeconds = label_ref(id::kLabelSeconds);
constexpr text::Ref kHectopascal{id::kFormHectopascal, 0};
constexpr text::Ref kCelsius{id::kFormCelsius, 0};
constexpr text::Ref kMetres{id::kFormMetres, 0};
constexpr text::Ref kCentimetres{id::kFormCentimetres, 0};

constexpr FieldRow kFields[] = {
    {"Year", id::kLabelYear, {}, 4, kObservationTime},
    {"Month", id::kLabelMonth, {}, 2, kObservationTime},
    {"YY", id::kLabelDay, {}, 2, kObservationTime},
    {"GG", id::kLabelHour, {}, 2, kObservationTime},
    {"GGExact", id::kLabelActualTime, {}, 2, kPressure},
    {"gg", 0, {}, 2, kPressure},
    {"LaDeg", id::kLabelLatitude, kDegrees, 2, kPosition},
    {"LaMin", 0, kMinutes, 2, kPosition},
    {"north_south", 0, {}, 0, kPosition, FieldKind::kNorthSouth},
    {"LoDeg", id::kLabelLongitude, kDegrees, 3, kPosition},
    {"LoMin", 0, kMinutes, 2, kPosition},
    {"east_west", 0, {}, 0, kPosition, FieldKind::kEastWest},
    {"Ds", id::kLabelShipDirection, {}, 1, kCourseAndSpeed},
    {"Vs", id::kLabelShipSpeed, {}, 1, kCourseAndSpeed},
    {"loading_state", id::kLabelLoadingState, {}, 0, kPressure, FieldKind::kLoadingState},
    {"reading", id::kLabelReading, kHectopascal, 7, kPressure},
    {"PPPP", id::kLabelSeaLevel, kHectopascal, 6, kPressure},
    {"a", id::kLabelTendencyType, {}, 1, kPressureTendency},
    {"ppp", id::kLabelTendencyAmount, kHectopascal, 4, kPressureTendency},
    {"dry_bulb", id::kLabelDry, kCelsius, 5, kPsychrometer},
    {"wet_bulb", id::kLabelWet, kCelsius, 5, kPsychrometer},
    {"freeze", id::kLabelFreeze, {}, 0, kPsychrometer, FieldKind::kFreeze},
    {"air_temperature", id::kLabelTemp, kCelsius, 5, kTemperatureAndDewPoint},
    {"dew_point", id::kLabelDew, kCelsius, 5, kTemperatureAndDewPoint},
    {"relative_humidity", id::kLabelHumidity, kPercent, 5, kRelativeHumidity, FieldKind::kEdit,
     true},
    {"dd", id::kLabelWindDirection, kTens, 2, kTrueWind, FieldKind::kEdit, true},
    {"ff", id::kLabelWindSpeed, kKnots, 3, kTrueWind, FieldKind::kEdit, true},
    {"apparent_direction", id::kLabelWindDirection, kDegrees, 3, kApparentWind},
    {"apparent_speed", id::kLabelWindSpeed, kKnots, 5, kApparentWind},
    {"heading", id::kLabelShipHeading, kDegrees, 3, kApparentWind},
    {"course", id::kLabelShipCourse, kDegrees, 3, kApparentWind},
    {"ship_speed", id::kLabelApparentShipSpeed, kKnots, 4, kApparentWind},
    {"TwTwTw", id::kLabelSeaTemperature, kCelsius, 5, kSeaTemperature},
    {"PwPw", id::kLabelWavePeriod, kSeconds, 2, kWindWave},
    {"HwHw", id::kLabelWaveHeight, kMetres, 4, kWindWave},
    {"dw1dw1", id::kLabelWaveDirection, kTens, 2, kSwell},
    {"Pw1Pw1", id::kLabelWavePeriod, kSeconds, 2, kSwell},
    {"Hw1Hw1", id::kLabelWaveHeight, kMetres, 4, kSwell},
    {"dw2dw2", id::kLabelWaveDirection, kTens, 2, kSwell},
    {"Pw2Pw2", id::kLabelWavePeriod, kSeconds, 2, kSwell},
    {"Hw2Hw2", id::kLabelWaveHeight, kMetres, 4, kSwell},
    {"PwaPwa", id::kLabelWavePeriod, kSeconds, 2, kNoElement},
    {"HwaHwa", id::kLabelWaveHeight, kMetres, 4, kNoElement},
    {"VV", id::kLabelVisibility, {}, 2, kVisibility},
    {"ww", id::kLabelPresentWeather, {}, 2, kPresentWeather},
    {"W1", id::kLabelPastWeather, {}, 1, kPastWeather},
    {"W2", 0, {}, 1, kPastWeather},
    {"N", id::kLabelTotalCloud, {}, 1, kCloudAmount},
    {"Nh", id::kLabelLowestCloud, {}, 1, kLowestCloud},
    {"CH", id::kLabelUpperCloud, {}, 1, kUpperCloud},
    {"CM", id::kLabelMiddleCloud, {}, 1, kMiddleCloud},
    {"CL", id::kLabelLowerCloud, {}, 1, kLowerCloud},
    {"h", id::kLabelCloudHeight, kMetres, 4, kCloudHeight},
    {"Is", id::kLabelIceCauses, {}, 1, kIceAccretion},
    {"EsEs", id::kLabelIceThickness, kCentimetres, 2, kIceAccretion},
    {"Rs", id::kLabelIceRate, {}, 1, kIceAccretion},
    {"ci", id::kLabelIceConcentration, {}, 1, kIceConcentration},
    {"Si", id::kLabelIceStage, {}, 1, kIceStage},
    {"bi", id::kLabelIceLandOrigin, {}, 1, kIceStage},
    {"Di", id::kLabelIceBearing, {}, 1, kIceBearing},
    {"zi", id::kLabelIceTrend, {}, 1, kIceTrend},
};

constexpr ReportGroupRow kReportGroups[] = {
    {Group::kYYGGiw, "group_YYGGiw", "Y Y G G i w"},
    {Group::k99LaLaLa, "group_99LaLaLa", "9 9 LaLaLa"},
    {Group::kQcLoLoLoLo, "group_QcLoLoLoLo", "QcLoLoLoLo"},
    {Group::kiRiXhVV, "group_iRiXhVV", "iRiXhVV"},
    {Group::kNddff, "group_Nddff", "N d d f f"},
    {Group::k00fff, "group_00fff", "( O O f f f ) "},
    {Group::k1SnTTT, "group_1SnTTT", "1 Sn T T T"},
    {Group::k2SnTdTdTd, "group_2SnTdTdTd", "2SnTdTdTd"},
    {Group::k4PPPP, "group_4PPPP", "4 P P P P"},
    {Group::k5appp, "group_5appp", "5 a p p p "},
    {Group::k7wwW1W2, "group_7wwW1W2", "7wwW1W1"},
    {Group::k8NhCLCMCH, "group_8NhCLCMCH", "8NhCLCMCH"},
    {Group::k9GGgg, "group_9GGgg", "9 G G g g"},
    {Group::k222DsVs, "group_222DsVs", "2 2 2 DsVs"},
    {Group::k0SsTwTwTw, "group_0SsTwTwTw", "0SsTwTwTw"},
    {Group::k1PwaPwaHwaHwa, "group_1PwaPwaHwaHwa", "1PaPaHaHa"},
    {Group::k2PwPwHwHw, "group_2PwPwHwHw", "2PwPwHwHw"},
    {Group::k3dw1dw1dw2dw2, "group_3dw1dw1dw2dw2", "3dw1dw1dw2dw2"},
    {Group::k4Pw1Pw1Hw1Hw1, "group_4Pw1Pw1Hw1Hw1", "4Pw1Pw1Hw1Hw1"},
    {Group::k5Pw2Pw2Hw2Hw2, "group_5Pw2Pw2Hw2Hw2", "5Pw2Pw2Hw2Hw2"},
    {Group::k6IsEsEsRs, "group_6IsEsEsRs", "6IsEsEsRs"},
    {Group::k8SwTbTbTb, "group_8SwTbTbTb", "8SwTbTbTb"},
    {Group::kICE, "group_ciSibiDizi", "ciSibiDizi"},
};

}  // namespace

std::span<const LabelRow> label_rows() {
  return kLabels;
}

std::span<const FieldRow> field_rows() {
  return kFields;
}

std::span<const ReportGroupRow> report_group_rows() {
  return kReportGroups;
}

}  // namespace mainwindow
