#include "elements/CSea_SurfaceTemperatureDlg.h"

#include <utility>

#include "codetables/tables/sea_temperature_figures.h"
#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;

CSea_SurfaceTemperatureDlg::CSea_SurfaceTemperatureDlg(ui::Services& services, Values values,
                                                       SeaTemperatureMethod of_ship)
    : OkCancelHelpDialog(services, "CSea_SurfaceTemperatureDlg", {id::kSeaTemperatureTitle}),
      temperature(*this, "temperature", {id::kSeaTemperatureField}, 5),
      method(*this, "method", {id::kSeaTemperatureMethod},
             {{id::kSeaIntake}, {id::kSeaBucket}, {id::kSeaHullSensor}, {id::kSeaOther}}),
      values_(std::move(values)),
      of_ship_(of_ship) {
  temperature.figures = true;
  temperature.unit = {id::kSeaTemperatureUnit};
  temperature.on_leave = [this] { return check(); };
}

void CSea_SurfaceTemperatureDlg::on_open() {
  temperature.content = codetables::sea_temperature_text(values_.Ss, values_.TwTwTw);
  opened_with_ = temperature.content;
  method.selected =
      static_cast<int>(codetables::sea_temperature_method(values_.Ss).value_or(of_ship_));
}

bool CSea_SurfaceTemperatureDlg::check() {
  const Speaking of(*this, temperature);
  if (text::trim(temperature.content).empty() || temperature.content == opened_with_) return true;
  const auto value = codetables::sea_temperature(temperature.content);
  if (!value) {
    services().messages.error(id::kSeaTemperatureRange);
    return false;
  }
  // Any method would do: the text that is shown does not hold it.
  const auto figures = codetables::sea_temperature_figures(*value, of_ship_);
  temperature.content = codetables::sea_temperature_text(figures.Ss, figures.TwTwTw);
  return true;
}

void CSea_SurfaceTemperatureDlg::on_ok() {
  if (text::trim(temperature.content).empty()) {
    // Nothing was shown of a temperature that was coded as not observed, and nothing is changed.
    if (!opened_with_.empty()) values_ = {};
    close(ui::kOk);
    return;
  }
  const auto value = codetables::sea_temperature(temperature.content);
  if (!value) {
    refuse(temperature, id::kSeaTemperatureRange);
    return;
  }
  const auto figures = codetables::sea_temperature_figures(
      *value, static_cast<SeaTemperatureMethod>(method.selected));
  values_ = {figures.Ss, figures.TwTwTw};
  close(ui::kOk);
}
