// The last days as curves, with the observation that is being entered among them.

#include <algorithm>
#include <iterator>

#include "explain/CCurvesDlg.h"
#include "mainwindow/CVelmaranDlg.h"

namespace {

using elements::Field;
using explain::Curve;

// Where one comes from the field of a value, its curve is the first to be told.
struct CurveOf {
  Field field;
  Curve curve;
};
constexpr CurveOf kCurvesOf[] = {
    {Field::kDryBulb, Curve::kAir},
    {Field::kWetBulb, Curve::kAir},
    {Field::kAirTemperature, Curve::kAir},
    {Field::kDewPoint, Curve::kAir},
    {Field::kTwTwTw, Curve::kSea},
    {Field::kdd, Curve::kWind},
    {Field::kff, Curve::kWind},
    {Field::kApparentDirection, Curve::kWind},
    {Field::kApparentSpeed, Curve::kWind},
    {Field::kPwaPwa, Curve::kMeasuredWaves},
    {Field::kHwaHwa, Curve::kMeasuredWaves},
    {Field::kPwPw, Curve::kWindWaves},
    {Field::kHwHw, Curve::kWindWaves},
    {Field::kdw1dw1, Curve::kSwell1},
    {Field::kPw1Pw1, Curve::kSwell1},
    {Field::kHw1Hw1, Curve::kSwell1},
    {Field::kdw2dw2, Curve::kSwell2},
    {Field::kPw2Pw2, Curve::kSwell2},
    {Field::kHw2Hw2, Curve::kSwell2},
};

}  // namespace

Struct_Weather CVelmaranDlg::record_as_typed() const {
  if (!typing_) return form_.record();
  elements::ObservationForm tried = form_;
  if (const Field* const field = field_of(focused()); field != nullptr && field->is_edit()) {
    tried.type(field->value(), field->control->content);
    static_cast<void>(tried.leave(field->value(), elements::kEveryQuestion));
    return tried.record();
  }
  const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const ReportGroup& each) {
    return each.control == focused();
  });
  if (group != groups_.end())
    static_cast<void>(
        tried.leave(group->row->group, group->control->content, elements::kEveryQuestion));
  return tried.record();
}

void CVelmaranDlg::show_curves() {
  Curve start = Curve::kPressure;
  if (const Field* const field = field_of(spoken_of_); field != nullptr && field->is_edit()) {
    const auto* const at =
        std::find_if(std::begin(kCurvesOf), std::end(kCurvesOf),
                     [&](const CurveOf& row) { return row.field == field->value(); });
    if (at != std::end(kCurvesOf)) start = at->curve;
  }
  const explain::Archive archive{context_.folders.reports, context_.folders.logbook};
  CCurvesDlg dialog(services(),
                    explain::days_before(observation::values_of(record_as_typed()),
                                         services().files, archive, context_.ship, context_.items),
                    start, context_.folders.reports, context_.ship.call_sign);
  services().windows.run_modal(dialog);
}
