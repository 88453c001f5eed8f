#pragma once
// The main window: one form with the whole observation, the report built from it, and the way to
// every other dialog.

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mainwindow/context.h"
#include "mainwindow/form_rows.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/tab_flags.h"
#include "observation/Struct_Weather.h"
#include "ui/observation_view.h"
#include "ui/screen.h"

class CVelmaranDlg : public ui::Screen, public ui::ObservationView {
 public:
  /// What the context refers to must outlive the window.
  CVelmaranDlg(ui::Services& services, mainwindow::MainWindowContext context);
  ~CVelmaranDlg() override;

  [[nodiscard]] std::string title() const override;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> record_fields() const override;
  [[nodiscard]] std::string report() const override;

  [[nodiscard]] const Struct_Weather& record() const { return record_; }
  /// A menu command or the exit procedure is running; focus-loss checks and further commands wait.
  [[nodiscard]] bool command_in_progress() const { return command_in_progress_; }
  [[nodiscard]] bool exiting() const { return exiting_; }
  /// The report on the form has entries that no save has written.
  [[nodiscard]] bool unsaved() const { return unsaved_; }
  /// Which way Tab left the field.
  [[nodiscard]] const mainwindow::TabFlags& tab_flags() const { return tab_flags_; }

  /// Opens the dialog of an element by its number, 99 and numbers without a dialog give the message
  /// for fields without one. True when the dialog was confirmed: the record then holds its result
  /// and the focus is on the field behind the element. Anything else changes nothing.
  bool open_element(int element);
  /// Runs a menu command; dropped while another one runs.
  void run(const mainwindow::MenuRow& command);

 protected:
  void on_open() override;
  /// There is no OK: nothing closes the window but the exit procedure.
  void on_ok() override {}
  void on_cancel() override;
  void on_f1(ui::Control* focused) override;
  bool on_enter_or_escape(ui::Key) override { return true; }
  void on_tab(ui::Key key) override;

 private:
  struct Field {
    const mainwindow::FieldRow* row = nullptr;
    ui::Control* control = nullptr;
  };
  struct ReportGroup {
    const mainwindow::ReportGroupRow* row = nullptr;
    ui::Control* control = nullptr;
  };

  template <class C, class... Arguments>
  C& add(Arguments&&... arguments);
  void add_labels();
  void add_field(const mainwindow::FieldRow& row);
  void add_report();

  [[nodiscard]] const Field* field_of(const ui::Control* control) const;
  [[nodiscard]] ui::Control* field(std::string_view name) const;

  void show_menu();
  void refresh();
  void show_field(const Field& field);
  void show_report();
  void label_clicked(const mainwindow::LabelRow& row);
  void focus_behind(const ui::Control* last);
  [[nodiscard]] const ui::Control* last_field_of(int element) const;
  bool leave(const Field& field);
  void correct_reports();
  void edit_fixed_data();
  void edit_observation_items();
  void ship_changed();
  void loading_state_chosen();
  void switch_language(text::Language language);
  void exit();
  bool save();

  mainwindow::MainWindowContext context_;
  Struct_Weather record_;
  std::vector<std::unique_ptr<ui::Control>> owned_;
  std::vector<Field> fields_;
  std::vector<ReportGroup> groups_;
  ui::Control* call_sign_ = nullptr;
  ui::Control* ice_word_ = nullptr;
  mainwindow::TabFlags tab_flags_;
  bool command_in_progress_ = false;
  bool exiting_ = false;
  bool unsaved_ = false;
  bool saved_once_ = false;
};
