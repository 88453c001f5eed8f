#include "ship/CVosClimDlg.h"

#include <utility>

#include "ship/data/vosclim_loading.h"
#include "text/ids.h"

namespace id = text::id;

CVosClimDlg::CVosClimDlg(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CVosClimDlg", {id::kVosClimTitle}),
      registration(*this, "registration", {id::kVosClimShip}),
      cargo_height(*this, "cargo_height", {id::kVosClimCargoHeight}, kCargoHeightWidth),
      departure(*this, "departure", {id::kVosClimDeparture}, kDepartureWidth),
      accepted_(std::move(values)) {
  cargo_height.figures = departure.figures = true;
  cargo_height.unit = departure.unit = {id::kVosClimUnit};
  cargo_height.set(accepted_.cargo_height);
  departure.set(accepted_.departure);
  cargo_height.on_leave = [this] { return check(cargo_height, kept_cargo_height); };
  departure.on_leave = [this] { return check(departure, kept_departure); };
}

// Shows a value as it is kept.
bool CVosClimDlg::check(ui::Edit& field, Kept kept) {
  const auto value = kept(field.content);
  if (!value) return refuse(field, id::kNoDigitalString);
  if (*value != field.content) field.set(*value);
  return true;
}

// Both, for a value that came from a file has not been left yet.
void CVosClimDlg::on_ok() {
  if (!check(cargo_height, kept_cargo_height) || !check(departure, kept_departure)) return;
  accepted_ = {cargo_height.content, departure.content};
  close(ui::kOk);
}

bool enter_vosclim_loading(ui::Services& services, ShipFixedData& ship) {
  CVosClimDlg dialog(services, {ship.vosclim_cargo_height, ship.vosclim_load_line_departure});
  if (services.windows.run_modal(dialog) != ui::kOk) return false;
  ship.vosclim_cargo_height = dialog.values().cargo_height;
  ship.vosclim_load_line_departure = dialog.values().departure;
  return true;
}
