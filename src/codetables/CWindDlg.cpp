#include "codetables/CWindDlg.h"

#include <utility>

#include "codetables/tables/wind_figures.h"
#include "codetables/wave_drawings.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

const WaveFigure kPeriod = {
    .lines = [](std::string_view) { return codetables::wind_wave_period_lines(); },
    .check = [](std::string_view typed) { return codetables::check_wave_period(typed, true); },
    .out_of_range = id::kWindWavePeriodRange,
    .doubt = id::kWindWavePeriodQuestion};
const WaveFigure kHeight = {.lines = codetables::wave_height_lines,
                            .check = codetables::check_wave_height,
                            .out_of_range = id::kWaveHeightRange,
                            .smallest = id::kWindWaveHeightSmallest,
                            .largest = 6};

std::string probable_height(std::optional<codetables::Knot> wind) {
  return std::string(
      codetables::probable_wave_height(wind ? codetables::beaufort_force(*wind) : 0));
}

}  // namespace

CWindDlg::CWindDlg(ui::Services& services, Values values, std::optional<codetables::Knot> wind)
    : OkCancelHelpDialog(services, "CWindDlg", {id::kWindWaveTitle}),
      wave_group(*this, "wave_group", {id::kWindWave}),
      period(*this, "period", {id::kWavePeriod}, kPeriod),
      height(*this, "height", {id::kWindWaveHeight}, kHeight),
      observation_group(*this, "observation_group", {id::kWindWaveObservation}),
      period_unknown(*this, "period_unknown", {id::kWavePeriodUnknown}, codetables::kWaveUnknown),
      period_confused(*this, "period_confused", {id::kWavePeriodConfused},
                      codetables::kWaveIndeterminate),
      height_unknown(*this, "height_unknown", {id::kWindWaveHeightUnknown},
                     codetables::kWaveUnknown),
      no_wind_wave(*this, "no_wind_wave", {id::kNoWindWave}),
      not_observed(*this, "not_observed", {id::kWavesNotObserved}),
      reference_group(*this, "reference_group", {id::kReferenceWave}),
      reference_height(*this, "reference_height", {id::kReferenceWaveHeight}),
      side(*this, "side", {id::kDrawnWaveHeight}),
      values_(std::move(values)),
      probable_height_(probable_height(wind)) {
  reference_height.max_length = 4;
  if (text::number_at_start(probable_height_)) reference_height.unit = {id::kFormMetres};
  for (CWaveField* const field : {&period, &height}) {
    field->on_leave = [this, field] { return leave(*field); };
    field->on_change = [this] { draw(); };
  }
  period_unknown.on_change = [this] { period_box_changed(period_unknown, period_confused); };
  period_confused.on_change = [this] { period_box_changed(period_confused, period_unknown); };
  height_unknown.on_change = [this] {
    height_unknown.set_own(height_unknown.checked);
    apply();
  };
  no_wind_wave.on_change = [this] { nothing_to_enter_changed(no_wind_wave, not_observed); };
  not_observed.on_change = [this] { nothing_to_enter_changed(not_observed, no_wind_wave); };
}

void CWindDlg::on_open() {
  reference_height.content = probable_height_;
  period.open(values_.period, values_.period);
  height.open(values_.height,
              codetables::wave_height_shown(values_.height, values_.period, height.smallest()));
  for (CWaveBox* const box : {&period_unknown, &period_confused})
    box->set_own(values_.period == box->instead);
  height_unknown.set_own(values_.height == height_unknown.instead);
  no_wind_wave.checked = codetables::are_no_waves(values_.period, values_.height);
  apply();
  // What a box said when the screen opened was nobody's text.
  if (!period.enabled) period.set_own({});
  if (!height.enabled) height.set_own({});
}

// One period, so one box.
void CWindDlg::period_box_changed(CWaveBox& box, CWaveBox& other) {
  box.set_own(box.checked);
  if (box.checked) other.set_own(false);
  apply();
}

void CWindDlg::nothing_to_enter_changed(const ui::Tick& ticked, ui::Tick& other) {
  if (ticked.checked) other.checked = false;
  apply();
}

// What the boxes say: the two that leave nothing to enter first.
void CWindDlg::apply() {
  const bool nothing = no_wind_wave.checked || not_observed.checked;
  for (CWaveBox* const box : {&period_unknown, &period_confused, &height_unknown})
    box->say(nothing ? std::optional(false) : std::nullopt);
  const auto said =
      [&](const std::string& given,
          std::initializer_list<const CWaveBox*> boxes) -> std::optional<std::string> {
    if (not_observed.checked) return std::string();
    if (no_wind_wave.checked) {
      const bool as_given = codetables::are_no_waves(values_.period, values_.height);
      return as_given ? given : std::string(codetables::kNoWaves);
    }
    for (const CWaveBox* const box : boxes) {
      if (box->own()) return box->instead;
    }
    return std::nullopt;
  };
  period.say(said(values_.period, {&period_unknown, &period_confused}));
  height.say(said(values_.height, {&height_unknown}));
  draw();
}

void CWindDlg::draw() {
  side.drawing = codetables::drawn_heights({{height.number(), height.content + " m"}},
                                           text::number_at_start(probable_height_));
}

// An empty field says nothing, and what the form had is not questioned here.
bool CWindDlg::leave(CWaveField& field) {
  if (field.is_as_opened() || text::trim(field.content).empty()) return true;
  const bool taken = field.check(services().messages, id::kWaveNumberCaption);
  draw();
  return taken;
}

void CWindDlg::on_ok() {
  values_ = {period.value(), height.value()};
  close(ui::kOk);
}
