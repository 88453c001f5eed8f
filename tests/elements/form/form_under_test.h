#pragma once
// A form with fakes around it, and what must stay as it was when an entry is refused.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "elements/form/observation_form.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"
#include "mainwindow/entry_messages.h"

namespace form_test {

// A form of the ship with a psychrometer; the clock says 2014.
struct Form {
  fakes::World world;
  ShipFixedData ship = fakes::psychrometer_ship();
  KeyObservationItems items;
  std::unique_ptr<elements::ObservationForm> form;

  Form() { rebuild(); }
  void rebuild() { form = std::make_unique<elements::ObservationForm>(ship, items, world.clock); }
  /// Nobody is asked or told anything.
  bool suppressed = false;
  bool settle(const std::function<elements::Answer(elements::Confirmed)>& take) {
    if (suppressed) return take(elements::kEveryQuestion).accepted();
    return mainwindow::settle(world.messages, world.texts, take);
  }
  bool leave(elements::Field field) {
    return settle([&](elements::Confirmed confirmed) { return form->leave(field, confirmed); });
  }
  bool enter(elements::Field field, std::string_view text) {
    form->type(field, text);
    return leave(field);
  }
  bool enter(observation::Group group, std::string_view text) {
    return settle(
        [&](elements::Confirmed confirmed) { return form->leave(group, text, confirmed); });
  }
  [[nodiscard]] bool any_error() const {
    for (const elements::FieldRow& row : elements::field_rows()) {
      if (form->in_error(row.field)) return true;
    }
    return false;
  }
  [[nodiscard]] std::vector<std::string> remarks() const {
    std::vector<std::string> lines;
    for (const auto& [notice, field] : form->remarks())
      lines.push_back(mainwindow::worded(notice, world.texts));
    return lines;
  }
  [[nodiscard]] const Struct_Weather& record() const { return form->record(); }
  /// Record, groups and all texts but one field's own.
  [[nodiscard]] std::string state(elements::Field but) const {
    std::string result;
    for (const WeatherField& row : weather_fields())
      result += std::string(row.name) + "=" + record().*row.member + "\n";
    for (const observation::GroupRow& row : observation::group_rows())
      result += observation::group_text(record(), row.group) + "\n";
    for (std::size_t i = 0; i < elements::kFields; ++i) {
      const auto field = static_cast<elements::Field>(i);
      if (field != but)
        result += std::string(elements::name_of(field)) + ":" + form->text(field) + "\n";
    }
    return result + (form->modified() ? "modified" : "saved");
  }
};

}  // namespace form_test
