#pragma once
// A form with fakes around it, and what must stay as it was when an entry is refused.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "elements/form/observation_form.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"

namespace form_test {

// A form of the ship with a psychrometer; the clock says 2014.
struct Form {
  fakes::World world;
  ShipFixedData ship = fakes::psychrometer_ship();
  KeyObservationItems items;
  std::unique_ptr<elements::ObservationForm> form;

  Form() { rebuild(); }
  void rebuild() {
    form = std::make_unique<elements::ObservationForm>(ship, items, world.texts, world.messages,
                                                       world.clock);
  }
  bool enter(elements::Field field, std::string_view text) {
    form->type(field, text);
    return form->leave(field);
  }
  [[nodiscard]] const Struct_Weather& record() const { return form->record(); }
  /// Record, groups and all texts but one field's own.
  [[nodiscard]] std::string state(elements::Field but) const {
    std::string result;
    for (const WeatherField& row : weather_fields())
      result += std::string(row.name) + "=" + record().*row.member + "\n";
    for (const observation::GroupRow& row : observation::group_rows())
      result += form->group_text(row.group) + "\n";
    for (std::size_t i = 0; i < elements::kFields; ++i) {
      const auto field = static_cast<elements::Field>(i);
      if (field != but)
        result += std::string(elements::name_of(field)) + ":" + form->text(field) + "\n";
    }
    return result + (form->modified() ? "modified" : "saved");
  }
};

}  // namespace form_test
