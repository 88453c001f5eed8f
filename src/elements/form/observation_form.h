#pragma once
// The main form without its window: the one observation record, what each entry field shows, the
// editors that run when a field is left, and everything that is derived from an entry. The window
// copies texts to its controls and back.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "elements/form/cross_rules.h"
#include "elements/form/field_editors.h"
#include "elements/form/fields.h"
#include "elements/form/form_state.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/true_wind.h"
#include "observation/Struct_Weather.h"
#include "observation/report_groups.h"
#include "platform/ports.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"
#include "text/messages.h"
#include "text/texts.h"

namespace elements {

class ObservationForm {
 public:
  /// What is referred to must outlive the form; ship and items are read anew at every step, so call
  /// ship_changed() or items_changed() after changing them.
  ObservationForm(const ShipFixedData& ship, const KeyObservationItems& items,
                  const text::Texts& texts, text::Messages& messages, const platform::Clock& clock);

  // ---- What is there

  [[nodiscard]] const Struct_Weather& record() const { return record_; }
  [[nodiscard]] const std::string& text(Field field) const { return texts_[at(field)]; }
  /// The wet bulb's state; the form's "Freeze" button toggles it.
  [[nodiscard]] WetBulbState wet_bulb_state() const { return wet_bulb_; }
  /// Switched off by an observation item: the field is locked, and a value in the record is a
  /// filled-in solidus.
  [[nodiscard]] bool switched_off(Field field) const;
  /// A refused entry still stands in the field.
  /// Also true for a value that another field's entry has made impossible: a day that the new month
  /// does not have, minutes beyond the pole or the date line. Such a field does not let go.
  [[nodiscard]] bool in_error(Field field) const { return error_[at(field)] || impossible(field); }
  [[nodiscard]] bool any_error() const;
  /// Set by every refusal. The next entry that is accepted clears it, but not while messages are
  /// suppressed: so one look tells whether any of several entries was refused.
  [[nodiscard]] bool error_flag() const { return error_flag_; }
  /// The last text of a field that was accepted; a refused one that still stands there does not
  /// count.
  [[nodiscard]] const std::string& entered(Field field) const;
  /// What the list of a save says beside groups and rules: the messages of the refused entries that
  /// still stand in their fields, and what is doubtful about a computed dew point.
  [[nodiscard]] std::vector<std::string> remarks() const;
  /// The observation was changed since the last saved(). Ship data and items are no observation:
  /// they count only where a value that was entered gives another one now.
  [[nodiscard]] bool modified() const { return modified_; }
  void saved() { modified_ = false; }
  /// A new date, hour or position was accepted since the last call: the position is to be reviewed.
  [[nodiscard]] bool take_review_due();
  /// Since the last call a dew point was computed with the doubled pressure of a ship that has no
  /// barometer card: the officer is to be told.
  [[nodiscard]] bool take_doubled_pressure_due();

  /// Exactly what the encoder makes of the record, with "*" for what is not entered.
  [[nodiscard]] std::string group_text(observation::Group group) const;
  /// The report as it would be sent, and the list of what is missing.
  [[nodiscard]] std::string report() const;
  [[nodiscard]] std::string missing() const;
  /// The rules that the record breaks.
  [[nodiscard]] std::vector<const CrossRule*> broken_rules() const {
    return elements::broken_rules(record_);
  }

  // ---- What the person does

  /// Typed; nothing is checked or stored before leave().
  void type(Field field, std::string_view text);
  /// The focus leaves the field: runs its editor on what was typed (a figure that a dialog put
  /// there passes). True when the field may be left: nothing was typed, it was emptied, or the
  /// value was accepted and stored with all that follows from it. False when it was refused: the
  /// message was shown (unless suppressed), the typed text stays in the field, and the record is as
  /// it was.
  [[nodiscard]] bool leave(Field field);
  /// A whole group was typed ("41/96"): each of its symbols goes through its field's editor, all or
  /// none are stored. A wrong length, indicator or character is refused with "Input error ", and so
  /// is a value without its sign or degrees ("2/050", "99//5"). True when accepted.
  [[nodiscard]] bool leave_group(observation::Group group, std::string_view typed);
  /// Hemispheres chosen beside the position: index 0 north or east, 1 south or west, -1 not chosen.
  /// Qc is set when both are known, else emptied.
  void choose_hemispheres(int north_south, int east_west);
  [[nodiscard]] int north_south() const { return north_south_; }
  [[nodiscard]] int east_west() const { return east_west_; }
  /// The "Freeze" button.
  void toggle_freeze();

  // ---- What dialogs and the program do

  /// Puts a value into a field, stores it with all that follows, without a check: a dialog has
  /// checked it.
  void put(Field field, std::string_view text);
  void put_wet_bulb_state(WetBulbState state);
  /// Both bulbs and the state of the wet one together. What follows is computed from all of them
  /// only, so that a dew point that cannot be computed leaves the earlier one.
  void put_bulbs(std::string_view dry, std::string_view wet, WetBulbState state);
  /// Changes the record directly, as a code dialog does; fields whose figures changed show them,
  /// and so do those `of_dialog` in any case: a text that was refused there gives way to what the
  /// dialog said.
  void change(const std::function<void(Struct_Weather&)>& change,
              std::initializer_list<Field> of_dialog = {});
  /// After the ship's fixed data were changed.
  void ship_changed();
  /// After the barometer card or its loading state was changed: the pressure is reduced anew, and
  /// the dew point follows it. A reading that gives an impossible pressure now is marked wrong, and
  /// the pressure stays.
  void card_changed();
  /// After observation items were changed: a switched-off element is filled with solidi where the
  /// report needs them and emptied otherwise; what was entered comes back when it is switched on
  /// again.
  void items_changed();
  /// All that the form holds. While a group is being tried, with messages and questions open, what
  /// counts is what was there before: nothing of the group is accepted yet.
  [[nodiscard]] FormState state() const;
  /// Takes a state over whole; everything is then as in the form that gave it. What the ship or its
  /// items have changed since is ship_changed()'s and items_changed()'s to follow.
  void load(const FormState& state);
  /// While set no message or question is shown: a refusal still refuses, a question counts as Yes,
  /// and only the error flags tell.
  bool messages_suppressed = false;

 private:
  [[nodiscard]] static constexpr std::size_t at(Field field) {
    return static_cast<std::size_t>(field);
  }
  [[nodiscard]] std::string& slot(Field field) { return texts_[at(field)]; }
  [[nodiscard]] std::optional<Bounds> bounds_of(Field field) const;
  [[nodiscard]] FormEntries entries() const {
    return {record_, texts_, typed_, error_, wet_bulb_, north_south_, east_west_};
  }
  void restore(const FormEntries& entries);
  /// What typing a group has brought so far: the fields that were edited, and the questions that
  /// are asked once nothing refuses.
  struct TypedGroup {
    std::vector<Field> taken;
    std::vector<text::Id> questions;
  };
  [[nodiscard]] bool take_symbols(const observation::GroupRow& row, std::string_view figures,
                                  TypedGroup& typed);
  [[nodiscard]] bool take_symbol(std::string Struct_Weather::*member, std::string_view figures,
                                 TypedGroup& typed);
  void take_tenths(std::string Struct_Weather::*member, std::string_view figure, TypedGroup& typed);
  void forget_large_speed();
  [[nodiscard]] bool take_large_speed(std::string_view figures, TypedGroup& typed);
  [[nodiscard]] std::optional<Field> field_of_member(std::string Struct_Weather::*member) const;
  [[nodiscard]] std::optional<Field> field_of_sign(std::string Struct_Weather::*member) const;
  [[nodiscard]] bool take_field(Field field, std::string_view figures, TypedGroup& typed);
  [[nodiscard]] bool signed_value_accepted(Field field, const Struct_Weather& before);
  [[nodiscard]] bool rules_kept(const observation::GroupRow& row, const Struct_Weather& before,
                                const std::vector<Field>& taken) const;
  [[nodiscard]] bool group_accepted(const observation::GroupRow& row, const Struct_Weather& before,
                                    const TypedGroup& typed);
  [[nodiscard]] Field air_field() const;
  [[nodiscard]] std::optional<std::string> accept(Field field, const std::string& typed);
  [[nodiscard]] bool follows_rules(Field field, const std::string& value);
  void take(Field field, const std::string& value);
  [[nodiscard]] bool impossible(Field field) const;
  [[nodiscard]] bool refuse_entry(Field field);
  [[nodiscard]] bool confirmed(Field field, const std::string& value);
  [[nodiscard]] bool is_far_from_hour(const std::string& hour, const std::string& minute) const;
  [[nodiscard]] bool pressure_accepted(Field field, std::string& value);
  [[nodiscard]] std::array<std::string, 2> named_bounds(Field field) const;
  bool refuse(text::Id message) const;
  bool refuse_range(Field field) const;
  [[nodiscard]] bool ask(text::Id question) const;
  void store(Field field, const std::string& value);
  void store_put(Field field, std::string_view text);
  void store_temperature(Field field, const std::string& value);
  void store_true_speed(const std::string& value);
  void clear(Field field);
  void follow(Field field);
  bool reduce_reading(bool keep_tendency);
  void reduce_again();
  void compute_dew_point();
  void compute_humidity();
  void compute_true_wind();
  void forget_dew_point();
  [[nodiscard]] bool dew_point_is_of_bulbs() const;
  [[nodiscard]] std::optional<Celsius> dew_point_of_bulbs() const;
  [[nodiscard]] ApparentWindTexts apparent_wind() const;
  void show_changes(const Struct_Weather& before, std::optional<Field> except = std::nullopt);
  [[nodiscard]] std::string shown(Field field, const Struct_Weather& record) const;
  void touch(const Struct_Weather& before);
  void put_unused_aside();
  void set_humidity(std::string display, std::string logbook);

  const ShipFixedData& ship_;
  const KeyObservationItems& items_;
  const text::Texts& language_;
  text::Messages& messages_;
  const platform::Clock& clock_;
  Struct_Weather record_;
  std::array<std::string, kFields> texts_;
  std::array<bool, kFields> typed_{};
  std::array<bool, kFields> error_{};
  std::array<std::string, kFields> before_typing_;  ///< what stood there before a typed text
  std::array<std::optional<std::string>, kFields>
      put_aside_;  ///< entries of elements that were switched off, of a recorder that is not there
  WetBulbState wet_bulb_ = WetBulbState::kNotSet;
  int north_south_ = -1;
  int east_west_ = -1;
  std::string pppp_of_reading_;                  ///< what the barometer reading gave
  std::string dew_point_of_bulbs_;               ///< SnTd and TdTdTd as the bulbs gave them
  DewPointMethod dew_point_method_;              ///< the one that the fields' texts are made for
  SeaTemperatureMethod sea_temperature_method_;  ///< the one that Ss was made for
  std::optional<FormEntries> before_group_;      ///< set while a group is being tried
  bool error_flag_ = false;
  bool modified_ = false;
  bool review_due_ = false;
  bool doubled_pressure_due_ = false;
};

}  // namespace elements
