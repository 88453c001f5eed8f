#include "mainwindow/element_openers.h"

#include <algorithm>

#include "mainwindow/form_rows.h"

namespace mainwindow {
namespace {

Use always(const MainWindowContext& /*context*/) {
  return Use::kInUse;
}

template <ObservationItem item>
Use item_is_observed(const MainWindowContext& context) {
  return context.items.observed(item) ? Use::kInUse : Use::kNotObserved;
}

Use a_swell_is_observed(const MainWindowContext& context) {
  return context.items.observed(ObservationItem::dw1Pw1Hw1) ||
                 context.items.observed(ObservationItem::dw2Pw2Hw2)
             ? Use::kInUse
             : Use::kNotObserved;
}

template <DewPointMethod method>
Use dew_point_by(const MainWindowContext& context) {
  return context.ship.dew_point_method == method ? Use::kInUse : Use::kOtherMethod;
}

Use humidity_is_read(const MainWindowContext& context) {
  return context.ship.humidity_method == HumidityMethod::kDirect ? Use::kInUse : Use::kOtherMethod;
}

template <WindInputMethod method>
Use wind_by(const MainWindowContext& context) {
  return context.ship.wind_input_method == method ? Use::kInUse : Use::kOtherMethod;
}

constexpr ElementRow kRows[] = {
    {kObservationTime, always},
    {kPosition, always},
    {kCourseAndSpeed, always},
    {kPressure, always},
    {kPressureTendency, always},
    {kPsychrometer, dew_point_by<DewPointMethod::kComputed>},
    {kTemperatureAndDewPoint, dew_point_by<DewPointMethod::kDirect>},
    {kSeaTemperature, always},
    {kApparentWind, wind_by<WindInputMethod::kApparentWind>},
    {kWindWave, item_is_observed<ObservationItem::PwHw>},
    {kSwell, a_swell_is_observed},
    {kVisibility, item_is_observed<ObservationItem::VV>},
    {kPresentWeather, item_is_observed<ObservationItem::ww>},
    {kPastWeather, item_is_observed<ObservationItem::W1W2>},
    {kCloudAmount, item_is_observed<ObservationItem::N>},
    {kLowestCloud, item_is_observed<ObservationItem::Nh>},
    {kUpperCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kMiddleCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kLowerCloud, item_is_observed<ObservationItem::CLCMCH>},
    {kIceAccretion, item_is_observed<ObservationItem::IsEsEsRs>},
    {kCloudHeight, item_is_observed<ObservationItem::h>},
    {kIceConcentration, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceStage, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceBearing, item_is_observed<ObservationItem::ciSibiDizi>},
    {kIceTrend, item_is_observed<ObservationItem::ciSibiDizi>},
    {kTrueWind, wind_by<WindInputMethod::kTrueWind>},
    {kRelativeHumidity, humidity_is_read},
};

}  // namespace

std::span<const ElementRow> element_rows() {
  return kRows;
}

const ElementRow* find_element(int element) {
  const auto* const at =
      std::find_if(std::begin(kRows), std::end(kRows),
                   [&](const ElementRow& row) { return row.element == element; });
  return at == std::end(kRows) ? nullptr : at;
}

}  // namespace mainwindow
