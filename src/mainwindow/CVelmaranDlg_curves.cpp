// The last days as curves, with the observation that is being entered among them.

#include <algorithm>
#include <iterator>

#include "elements/form/field_words.h"
#include "explain/CCurvesDlg.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"

namespace {

using elements::Field;
using explain::Curve;

// Where one comes from the field of a value, its curve is the first to be told.
struct CurveOf {
  Field field;
  Curve curve;
};
constexpr CurveOf kCurvesOf[] = {
    {Field::kReading, Curve::kPressure},
    {Field::kPPPP, Curve::kPressure},
    {Field::ka, Curve::kPressure},
    {Field::kppp, Curve::kPressure},
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

CVelmaranDlg::AsTyped CVelmaranDlg::as_typed() const {
  elements::ObservationForm tried = form_;
  elements::Answer answer;
  const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const ReportGroup& each) {
    return each.control == focused();
  });
  if (!typing_) {
    // What stands in the fields is in the record.
  } else if (const Field* const field = field_of(focused()); field != nullptr && field->is_edit()) {
    tried.type(field->value(), field->control->content);
    answer = tried.leave(field->value(), elements::kEveryQuestion);
  } else if (group != groups_.end()) {
    answer = tried.leave(group->row->group, group->control->content, elements::kEveryQuestion);
  }
  return {tried.record(), answer.accepted()};
}

std::optional<Curve> CVelmaranDlg::curve_of(const ui::Control* control) const {
  const Field* const field = field_of(control);
  const auto group = std::find_if(groups_.begin(), groups_.end(),
                                  [&](const ReportGroup& each) { return each.control == control; });
  const auto* const at =
      std::find_if(std::begin(kCurvesOf), std::end(kCurvesOf), [&](const CurveOf& row) {
        if (field != nullptr) return field->is_edit() && row.field == field->value();
        return group != groups_.end() && elements::group_of(row.field) == group->row->group;
      });
  if (at == std::end(kCurvesOf)) return std::nullopt;
  return at->curve;
}

void CVelmaranDlg::add_curve() {
  auto& title = add<ui::Label>("label_curve", text::Ref{text::id::kLabelCurve});
  curve_ = &add<ui::Picture>("curve", text::Ref{text::id::kSpokenCurve});
  curve_->repeats = true;
  curve_->follows_keys = true;
  for (ui::Control* const each : {static_cast<ui::Control*>(&title), curve_}) {
    each->only_shows = true;
    each->on_press = [this] { run({0, text::id::kCommandCurves, mainwindow::Command::kCurves}); };
  }
  draw_curve();
}

void CVelmaranDlg::read_days() {
  const observation::Values values = observation::values_of(form_.record());
  seen_ = seen_ || values.hour;
  // Before the first paint only a draft has an hour.
  if (!seen_ || (days_ && days_before_ == values.hour)) return;
  days_before_ = values.hour;
  days_ = explain::days_before(values, services().files,
                               {context_.folders.reports, context_.folders.logbook}, context_.ship,
                               context_.items);
}

void CVelmaranDlg::draw_curve() {
  if (const auto curve = curve_of(spoken_of_)) chart_ = explain::chart_of(*curve);
  explain::Days days = days_.value_or(explain::Days{});
  // An hour that is half typed moves nothing: what is entered stays where its hour was.
  if (days_before_) {
    days.entered = observation::values_of(as_typed().record);
    days.entered->hour = days_before_;
  }
  ui::Drawing drawing = explain::small_drawing_of(days, chart_, services().texts);
  // The same drawing is not painted again.
  if (curve_->drawing == nullptr || *curve_->drawing != drawing)
    curve_->drawing = std::make_shared<const ui::Drawing>(std::move(drawing));
}

void CVelmaranDlg::show_curves() {
  const Curve start = curve_of(spoken_of_).value_or(Curve::kPressure);
  const explain::Archive archive{context_.folders.reports, context_.folders.logbook};
  CCurvesDlg dialog(services(),
                    explain::days_before(observation::values_of(as_typed().record),
                                         services().files, archive, context_.ship, context_.items),
                    start, context_.folders.reports, context_.ship.call_sign);
  services().windows.run_modal(dialog);
}
