#pragma once
// The main form without its window: the one observation record, what each entry field shows, and
// everything that follows from an entry. It shows nothing and asks nobody; it answers, and the
// window tells (answer.h).
//
// The words of its interface:
//   type, leave           what a person types, and whether it is taken when the field is left
//   choose, freeze        what a person chooses beside the fields
//   put, change           values and figures that a dialog has checked
//   ..._changed           ship, barometer card or observation items are others now
//   entries, load         all that it holds, to be kept and to be taken over
//   load_record           an observation that was sent, to be corrected
//   a field's text        what it shows; entered: the last one that was accepted

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "elements/form/answer.h"
#include "elements/form/entries.h"
#include "elements/form/fields.h"
#include "observation/report_encoder.h"
#include "observation/report_groups.h"

namespace elements {

/// What the officer is to be told after an entry.
struct Doubts {
  bool review = false;  ///< a new date, hour or position: it is to be reviewed
  /// A dew point was computed with the doubled pressure of a ship that has no barometer card.
  bool doubled_pressure = false;
};

/// What the list of a save says, and the field that it is about, if it is about one.
struct Remark {
  Notice notice{};
  std::optional<Field> of{};
};

class ObservationForm {
 public:
  /// What is referred to must outlive the form; ship and items are read anew at every step, so call
  /// ship_changed() or items_changed() after changing them.
  ObservationForm(const ShipFixedData& ship, const KeyObservationItems& items,
                  const platform::Clock& clock);

  // ---- What is there

  [[nodiscard]] const Entries& entries() const { return now_; }
  [[nodiscard]] const Struct_Weather& record() const { return now_.record; }
  [[nodiscard]] const std::string& text(Field field) const { return now_[field].text; }
  /// The last text of a field that was accepted; a refused one that still stands there does not
  /// count.
  [[nodiscard]] const std::string& entered(Field field) const { return now_.entered(field); }
  /// Switched off by an observation item: the field is locked, and a value in the record is a
  /// filled-in solidus.
  [[nodiscard]] bool switched_off(Field field) const;
  /// A refused entry still stands in the field.
  /// Also true for a value that another field's entry has made impossible: a day that the new month
  /// does not have, minutes beyond the pole or the date line. Such a field does not let go.
  [[nodiscard]] bool in_error(Field field) const;
  /// What the list of a save says beside groups and rules: the refused entries that still stand in
  /// their fields, and what is doubtful about a computed dew point.
  [[nodiscard]] std::vector<Remark> remarks() const;
  /// The same for values that came with a record and that their fields would have refused; solidi
  /// and years long ago are none. For the list of a save that replaces that report.
  [[nodiscard]] std::vector<Remark> unacceptable() const;
  /// Fields that the ship does not use and whose values go out all the same: they came with a record
  /// and are locked. Right for that record; the next observation may be entered over it.
  [[nodiscard]] std::vector<Field> sent_though_unused() const;
  /// An observation wants something of this field: not of an exact time that nobody gives, of a
  /// pressure that its reading gave, of a second swell where there is none. What a person has
  /// entered is there to be looked at, and so is what was refused.
  [[nodiscard]] bool asks_for(Field field) const;
  /// The same of the "Freeze" button: the wet bulb can be iced, or is.
  [[nodiscard]] bool asks_for_freeze() const;
  /// The observation was changed since the last saved(). Ship data and items are no observation:
  /// they count only where a value that was entered gives another one now.
  [[nodiscard]] bool modified() const { return now_.modified; }
  /// The report as it would be sent, and the groups that lack something.
  [[nodiscard]] observation::Report report() const;

  // ---- What the person does

  /// Typed; nothing is checked or stored before leave().
  void type(Field field, std::string_view text);
  /// The focus leaves the field: runs its editor on what was typed (a figure that a dialog put
  /// there passes). Accepted when the field may be left: nothing was typed, it was emptied, or the
  /// value was accepted and stored with all that follows from it. Else the typed text stays in the
  /// field, marked wrong, and the record is as it was.
  ///
  /// A refusal raises the entries' error flag, and an entry that is accepted lowers it, but not one
  /// for which nobody was asked (kEveryQuestion): so one look tells whether any of several entries
  /// was refused.
  [[nodiscard]] Answer leave(Field field, Confirmed confirmed = 0);
  /// A whole group was typed ("41/96"): each of its symbols goes through its field's editor, all or
  /// none are stored. A wrong length, indicator or character is refused with "Input error ", and so
  /// is a value without its sign or degrees ("2/050", "99//5").
  [[nodiscard]] Answer leave(observation::Group group, std::string_view typed,
                             Confirmed confirmed = 0);
  /// Hemispheres chosen beside the position: index 0 north or east, 1 south or west, -1 not chosen.
  /// Qc is set when both are known, else emptied.
  void choose_hemispheres(int north_south, int east_west);
  /// The "Freeze" button.
  void toggle_freeze();

  // ---- What dialogs and the program do

  struct Value {
    Field field;
    std::string_view text;
  };
  /// Puts values into their fields and stores them, without a check: a dialog has checked them.
  /// What follows is computed once from all of them. A state of the wet bulb that is given counts
  /// for its value, also for the one that is there.
  void put(const std::vector<Value>& values, std::optional<WetBulbState> wet_bulb = {});
  void put(Field field, std::string_view text) { put(std::vector<Value>{{field, text}}); }
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
  /// Takes entries over whole; everything is then as in the form that gave them, but call sign and
  /// IMO number are the ship's. What the ship or its items have changed since is ship_changed()'s
  /// and items_changed()'s to follow.
  void load(const Entries& entries);
  /// Takes a whole record over, as it was sent: every field shows what it holds, nothing is
  /// computed over it or put aside, and it counts as saved. A record has no barometer reading, and
  /// an apparent wind only in its VOSClim values: its true wind stays until something of a whole
  /// apparent one is entered, its dew point until a bulb or a reading is, and then without a reading
  /// it is computed as for any observation without one.
  /// VOSClim values stay with the true wind. Where this ship has no field that shows them they do
  /// not outlive the record's hour.
  void load_record(const Struct_Weather& record);
  void saved() { now_.modified = false; }
  /// What came up since the last call.
  [[nodiscard]] Doubts take_doubts();

 private:
  void store_put(Field field, std::string_view text);
  void follow(const Struct_Weather& before, Follows what, bool had_wind,
              const std::vector<Field>& but = {});
  void finish(const Struct_Weather& before, Follows what, const std::vector<Field>& but = {});
  [[nodiscard]] Follows of_card() const;
  [[nodiscard]] bool is_unused(const FieldRow& row) const;
  void put_unused_aside();

  Surroundings around_;
  Entries now_;
};

}  // namespace elements
