#pragma once
// The main window: one form with the whole observation, the report built from it, and the way to
// every other dialog. What the fields hold and what follows from an entry is ObservationForm's;
// the window shows it, and leads the focus, the menus and the dialogs.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "elements/form/correction.h"
#include "elements/form/draft.h"
#include "elements/form/observation_form.h"
#include "explain/curves.h"
#include "explain/plain/plain_words.h"
#include "mainwindow/LandWatch.h"
#include "mainwindow/context.h"
#include "mainwindow/draft_keeper.h"
#include "mainwindow/element_openers.h"
#include "mainwindow/form_rows.h"
#include "mainwindow/last_position.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/save_errors.h"
#include "mainwindow/tab_flags.h"
#include "map/CPictureStatic.h"
#include "ui/observation_view.h"
#include "ui/screen.h"

class CVelmaranDlg : public ui::Screen, public ui::ObservationView {
 public:
  /// What the context refers to must outlive the window.
  CVelmaranDlg(ui::Services& services, mainwindow::MainWindowContext context);
  ~CVelmaranDlg() override;

  [[nodiscard]] std::string title() const override;
  [[nodiscard]] std::optional<ui::WindowPlace> kept_place() const override {
    return ui::window_place(context_.place);
  }
  void keep_place(const ui::WindowPlace& place) override;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> record_fields() const override;
  [[nodiscard]] std::string report() const override { return form_.report().text; }

  [[nodiscard]] const elements::ObservationForm& form() const { return form_; }
  /// A menu command or the exit procedure is running; focus-loss checks and further commands wait.
  [[nodiscard]] bool command_in_progress() const { return command_in_progress_; }
  [[nodiscard]] bool exiting() const { return exiting_; }
  /// The form has entries that no save has written, also one that is still being typed.
  [[nodiscard]] bool unsaved() const { return form_.modified() || typing_; }
  [[nodiscard]] bool is_written() const;
  /// Which way Tab left the field.
  [[nodiscard]] const mainwindow::TabFlags& tab_flags() const { return tab_flags_; }

  /// Opens the dialog of an element by its number; 99 and numbers without a dialog give the message
  /// for fields without one, an element that is switched off gives nothing. True when the dialog
  /// was confirmed: the form then has its result and the focus is on the field behind the element.
  /// Else nothing has changed.
  bool open_element(int element);
  /// Runs a menu command; dropped while another one runs.
  void run(const mainwindow::MenuRow& command);

 protected:
  void on_open() override;
  /// There is no OK: nothing closes the window but the exit procedure.
  void on_ok() override {}
  void on_cancel() override;
  void on_f1(ui::Control* focused) override;
  /// Enter and Escape are taken from every field, so that they neither close the window nor press
  /// anything.
  bool on_enter_or_escape(ui::Key /*key*/) override { return true; }
  void on_tab(ui::Key key) override;
  void on_focused() override;
  /// Keeps what was entered since it was kept last.
  void on_idle(bool undisturbed) override;

 private:
  struct Field {
    const mainwindow::FieldRow* row = nullptr;
    ui::Control* control = nullptr;

    [[nodiscard]] bool is_edit() const { return row->field != nullptr; }
    /// Of an edit.
    [[nodiscard]] elements::Field value() const { return row->field->field; }
  };
  struct ReportGroup {
    const mainwindow::ReportGroupRow* row = nullptr;
    ui::Control* control = nullptr;
  };

  // Building the form.
  template <class C, class... Arguments>
  C& add(Arguments&&... arguments) {
    auto control = std::make_unique<C>(*this, std::forward<Arguments>(arguments)...);
    C& result = *control;
    owned_.push_back(std::move(control));
    return result;
  }
  void add_labels();
  void add_map();
  void add_field(const mainwindow::FieldRow& row);
  [[nodiscard]] static text::Ref spoken_of(std::string_view name);
  void add_edit(const mainwindow::FieldRow& row, text::Ref label);
  void add_hemispheres(const mainwindow::FieldRow& row, text::Id first, text::Id second);
  void add_commands();
  void add_report();
  void add_status_line();

  // Showing it.
  void show_menu();
  void refresh();
  void show_edit(const Field& field);
  void show_choices();
  void show_report();
  [[nodiscard]] text::Id why_locked(const mainwindow::FieldRow& row) const;
  [[nodiscard]] std::string group_shown(const ReportGroup& group) const;

  // The status line: what the field means that has the focus, or what just happened.
  void show_status();
  [[nodiscard]] std::string status() const;
  /// Until the next key or field.
  void tell_in_status_line(std::string news);
  /// A field or a group is being typed into.
  void typed();

  // The parts that F6 goes between.
  enum class Part : std::uint8_t { kForm, kPlainWords, kReport, kStatusLine };
  static constexpr int kParts = 4;
  [[nodiscard]] Part part_of(const ui::Control* control) const;
  /// Where one was in it last.
  [[nodiscard]] ui::Control* way_into(Part part) const;
  void go_to_part(int steps);

  // The report in plain words (F2).
  void add_plain_words();
  void show_or_hide_plain_words();
  /// Follows what is typed, also before it is taken, and the field that has the focus.
  void tell_plain_words();
  [[nodiscard]] int plain_line_of_focus(const std::vector<explain::PlainLine>& lines) const;

  // Entries.
  bool settle(const std::function<elements::Answer(elements::Confirmed)>& take);
  bool leave(const Field& field);
  bool leave_group(const ReportGroup& group);
  bool settle_focused();
  void hemispheres_chosen();
  void loading_state_chosen();

  // Dialogs.
  void label_clicked(const mainwindow::LabelRow& row);
  void focus_behind(const ui::Control* last);
  bool open_element(int element, const ui::Control* last);
  [[nodiscard]] const ui::Control* last_field_of(int element) const;
  [[nodiscard]] const ui::Control* last_field_beside(const Field& field) const;
  [[nodiscard]] const Field* field_of(const ui::Control* control) const;
  [[nodiscard]] ui::Control* control_of(std::string_view name) const;

  // Commands.
  /// Asks about what is not saved before another observation comes into the form; false when it is
  /// to stay.
  bool may_leave_observation();
  void correct_reports();
  /// Brings the report of the file into the form; nothing changes when there is none in it.
  void correct(const std::string& path);
  /// The form is on the report that was opened: it still has its date and hour, so that a save
  /// replaces that file.
  [[nodiscard]] bool correcting() const;
  void edit_fixed_data();
  void edit_vosclim_loading();
  void edit_observation_items();
  void switch_language(text::Language language);
  void print_report();
  void copy_report();
  /// Begins the next observation.
  void new_watch();
  void exit();
  /// Closes; what is not saved is given up.
  void end();
  /// True when the report was written; the entries stay.
  bool save();
  [[nodiscard]] std::vector<mainwindow::SaveError> save_remarks() const;
  [[nodiscard]] ui::Control* place_of(const mainwindow::SaveError& error) const;
  void lead_to(const std::vector<mainwindow::SaveError>& errors);
  /// Looks for the ship's last reports, before this observation as soon as it has a date and hour.
  void find_last_positions();
  void show_map();
  /// The last days as curves, with what is being typed among them.
  void show_curves();
  /// The curve that belongs to a field or group; none for most.
  [[nodiscard]] std::optional<explain::Curve> curve_of(const ui::Control* control) const;
  // The chart of the field that has the focus, beside the form.
  void add_curve();
  /// With what is typed, at each key; reads no file.
  void draw_curve();
  /// Reads the days before the hour in the form, where those of another one or none were read.
  void read_days();
  /// The ship's logbook as a table.
  void show_logbook();
  struct AsTyped {
    Struct_Weather record;
    bool taken = true;  ///< false: what is being typed would be refused, the record is as it is
  };
  /// As it would be if what is being typed were taken, every question answered with Yes. Nothing is
  /// asked and nothing changed.
  [[nodiscard]] AsTyped as_typed() const;
  /// Says which tiles of the sea map cannot be used, each once.
  void tell_map_troubles();
  void tell_doubts();
  void tell_exists(const std::string& report);

  // Drafts: entries that outlive the program.
  void offer_drafts();
  [[nodiscard]] bool wants(const Struct_Weather& record);
  /// Both files hold all that this draft would save now: the program ended between the save and the
  /// removal of the draft.
  [[nodiscard]] bool is_saved(const std::string& path, const elements::Draft& draft) const;
  void load(elements::ObservationForm& form, const elements::Draft& draft) const;
  void take_over(const elements::Draft& draft);
  void put_unusable_aside(const std::string& path, const elements::DraftRead& read);
  [[nodiscard]] std::string draft() const;

  mainwindow::MainWindowContext context_;
  elements::ObservationForm form_;
  mainwindow::DraftKeeper keeper_;
  std::vector<std::unique_ptr<ui::Control>> owned_;
  std::vector<Field> fields_;
  std::vector<ReportGroup> groups_;
  ui::Control* call_sign_ = nullptr;
  ui::Control* ice_word_ = nullptr;
  ui::Control* status_line_ = nullptr;
  ui::Control* plain_words_ = nullptr;
  ui::Control* spoken_of_ = nullptr;  ///< by the status line: what has or had the focus
  std::array<ui::Control*, kParts> last_in_{};
  std::string news_;               ///< in the status line; empty: what the field means
  CPictureStatic* map_ = nullptr;  ///< none without a sea map
  ui::Control* curve_ = nullptr;
  explain::Chart chart_ = explain::Chart::kPressure;  ///< shown, or shown last
  std::optional<explain::Days> days_;  ///< that the curve is drawn of; none: to be read
  std::optional<int> days_before_;     ///< the hour that they are before; none: up to the newest
  bool seen_ = false;                  ///< the window was painted, or has an hour
  mainwindow::LandWatch land_;
  std::vector<mainwindow::SavedPosition> last_positions_;  ///< the newest first
  std::string last_positions_before_;  ///< report name of the observation that they are before
  elements::Correction correction_;
  mainwindow::TabFlags tab_flags_;
  bool typing_ = false;  ///< the field that has the focus holds a text that was not taken yet
  bool command_in_progress_ = false;
  bool exiting_ = false;
  bool saved_once_ = false;
};
