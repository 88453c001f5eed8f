#pragma once
// What stands in the form, as values: the record, one entry a field, and what of their history the
// two do not tell. Two forms of equal entries behave alike from then on, so this is also what is
// kept of an observation that was not saved.

#include <array>
#include <optional>
#include <span>
#include <string>

#include "elements/form/fields.h"
#include "elements/formulas/psychrometer.h"
#include "observation/Struct_Weather.h"
#include "platform/ports.h"
#include "ship/data/ShipFixedData.h"

namespace elements {

/// One field.
struct Entry {
  std::string text;  ///< what the field shows
  /// What stood there before `text` was typed; nothing once that is accepted.
  std::optional<std::string> before_typing;
  bool wrong = false;  ///< refused, and still there
  /// The entry of an element that is switched off, or of a recorder that is not there.
  std::optional<std::string> put_aside;

  /// The last text that was accepted.
  [[nodiscard]] const std::string& entered() const { return before_typing ? *before_typing : text; }
  /// Shows a text that needs no test.
  void show(std::string shown) {
    text = std::move(shown);
    before_typing.reset();
    wrong = false;
  }
};

struct Entries {
  Struct_Weather record{ShipFixedData(), KeyObservationItems()};
  std::array<Entry, kFields> fields;
  WetBulbState wet_bulb = WetBulbState::kNotSet;
  int north_south = -1;  ///< index beside the position: 0 north or east, 1 south or west, -1 none
  int east_west = -1;

  /// PPPP as the barometer reading gave it. Another one in the record was typed over it, and stays
  /// when the reading is reduced again.
  std::string pppp_of_reading;
  /// SnTd and TdTdTd as the bulbs gave them. Others were typed, and outlive the bulbs.
  std::string dew_point_of_bulbs;
  /// The dew point is that of a report that was sent: the reading it was computed with is not known,
  /// so it stays until a bulb or a reading is entered, whatever becomes of ship and card.
  bool dew_point_as_sent = false;
  /// The VOSClim values, and the true wind beside them, are those of a report that was sent, so they
  /// stay until something of the apparent wind is entered or the hour is another.
  bool vosclim_as_sent = false;
  DewPointMethod dew_point_method = DewPointMethod::kDirect;  ///< the texts are made for it
  /// Ss is made for it. Another method in Ss was chosen for this observation alone, and stays.
  SeaTemperatureMethod sea_temperature_method = SeaTemperatureMethod::kIntake;

  bool error_flag = false;            ///< see ObservationForm::leave()
  bool modified = false;              ///< see ObservationForm::modified()
  bool review_due = false;            ///< see Doubts
  bool doubled_pressure_due = false;  ///< see Doubts

  [[nodiscard]] Entry& operator[](Field field) { return fields[static_cast<std::size_t>(field)]; }
  [[nodiscard]] const Entry& operator[](Field field) const {
    return fields[static_cast<std::size_t>(field)];
  }
  [[nodiscard]] const std::string& entered(Field field) const { return (*this)[field].entered(); }
};

/// What the form is on. All of it outlives the form, and is read anew at every step.
struct Surroundings {
  const ShipFixedData& ship;
  const KeyObservationItems& items;
  const platform::Clock& clock;
};

/// The field that stands for a member of the record on this ship, also for a sign or for the large
/// speed beside one; nothing for what the ship and the program put into the record.
[[nodiscard]] std::optional<Field> field_of(std::string Struct_Weather::*member,
                                            const ShipFixedData& ship);

/// What a field shows of the record on this ship: shown_from_record(), but nothing where the same
/// member stands in another field.
[[nodiscard]] std::string shown(const FieldRow& row, const Struct_Weather& record,
                                const ShipFixedData& ship);

/// Stores an accepted text, not empty, in the record; a wet bulb that is too warm for ice has none.
void store(Entries& entries, Field field, const std::string& value, const ShipFixedData& ship);
/// Empties the field and what it fills in the record.
void clear(Entries& entries, Field field);

/// Fields whose figures are others than before show them, but not those `but`; hemispheres and the
/// ice on the wet bulb follow their figures, and a new time or position is to be reviewed.
void show_changes(Entries& entries, const Struct_Weather& before, const ShipFixedData& ship,
                  std::span<const Field> but = {});

}  // namespace elements
