#include "mainwindow/form_rows.h"

#include <vector>

#include "text/ids.h"

namespace mainwindow {
namespace {

namespace id = text::id;
using elements::Field;
using observation::Group;

constexpr LabelRow kLabels[] = {
    {"label_time", id::kLabelObservationTime, Field::kYear},
    {"label_latitude", id::kLabelLatitude, Field::kLaDeg},
    {"label_longitude", id::kLabelLongitude, Field::kLoDeg},
    {"label_ship_direction", id::kLabelShipDirection, Field::kDs},
    {"label_ship_speed", id::kLabelShipSpeed, Field::kVs},
    {"label_pressure", id::kLabelAirPressure, Field::kReading},
    {"label_tendency", id::kLabelDuringThreeHours, Field::ka},
    {"label_dry_and_wet", id::kLabelDryAndWet, Field::kDryBulb},
    {"label_dew_point", id::kLabelTempByDewPoint, Field::kAirTemperature},
    {"label_humidity", id::kLabelHumidity, Field::kHumidity},
    {"label_true_wind", id::kLabelTrueWind, Field::kdd},
    {"label_apparent_wind", id::kLabelApparentWind, Field::kApparentDirection},
    {"label_sea_temperature", id::kLabelSeaTemperature, Field::kTwTwTw},
    {"label_wind_wave", id::kLabelWindWave, Field::kPwPw},
    {"label_swell1", id::kLabelSwell1, Field::kdw1dw1},
    {"label_swell2", id::kLabelSwell2, Field::kdw2dw2},
    // The recorder's own fields are in no dialog: the one of waves and swell opens, from the swell.
    {"label_wave_recorder", id::kLabelWaveRecorder, Field::kdw1dw1},
    {"label_visibility", id::kLabelVisibility, Field::kVV},
    {"label_present_weather", id::kLabelPresentWeather, Field::kww},
    {"label_past_weather", id::kLabelPastWeather, Field::kW1},
    {"label_total_cloud", id::kLabelTotalCloud, Field::kN},
    {"label_lowest_cloud", id::kLabelLowestCloud, Field::kNh},
    {"label_cloud_type", id::kLabelCloudType, Field::kCH},
    {"caption_CH", id::kLabelUpperCloud, Field::kCH, true},
    {"caption_CM", id::kLabelMiddleCloud, Field::kCM, true},
    {"caption_CL", id::kLabelLowerCloud, Field::kCL, true},
    {"label_cloud_height", id::kLabelCloudHeight, Field::kh},
    {"label_ice_accretion", id::kLabelIceAccretion, Field::kIs},
    {"label_sea_ice", id::kLabelSeaIce, Field::kci},
    {"caption_ci", id::kLabelIceConcentration, Field::kci, true},
    {"caption_Si", id::kLabelIceStage, Field::kSi, true},
    {"caption_bi", id::kLabelIceLandOrigin, Field::kbi, true},
    {"caption_Di", id::kLabelIceBearing, Field::kDi, true},
    {"caption_zi", id::kLabelIceTrend, Field::kzi, true},
};

// What is chosen or ticked among the entry fields, and the field that it stands behind.
struct ChoiceRow {
  Field behind;
  FieldRow row;
};
constexpr ChoiceRow kChoices[] = {
    {Field::kLaMin, {"north_south", {}, kPosition, FieldKind::kNorthSouth}},
    {Field::kLoMin, {"east_west", {}, kPosition, FieldKind::kEastWest}},
    {Field::kVs, {"loading_state", id::kLabelLoadingState, kPressure, FieldKind::kLoadingState}},
    {Field::kWetBulb, {"freeze", id::kLabelFreeze, kPsychrometer, FieldKind::kFreeze}},
};

std::vector<FieldRow> with_choices() {
  std::vector<FieldRow> rows;
  for (const elements::FieldRow& field : elements::field_rows()) {
    rows.push_back({field.name, field.label, field.element, FieldKind::kEdit, &field, field.field});
    for (const ChoiceRow& choice : kChoices) {
      if (choice.behind != field.field) continue;
      rows.push_back(choice.row);
      rows.back().place = choice.behind;
    }
  }
  return rows;
}

// The captions are to the letter, W1W1 and PaPaHaHa and the O that is no 0 among them.
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
  static const std::vector<FieldRow> kRows = with_choices();
  return kRows;
}

std::span<const ReportGroupRow> report_group_rows() {
  return kReportGroups;
}

}  // namespace mainwindow
