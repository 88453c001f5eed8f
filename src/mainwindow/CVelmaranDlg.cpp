#include "mainwindow/CVelmaranDlg.h"

#include <algorithm>
#include <iterator>

#include "archive/CLogPrintDlg.h"
#include "archive/CPrintAllTLXDlg.h"
#include "archive/CQFModifyDlg.h"
#include "archive/CQFPrintDlg.h"
#include "elements/CHour3ErrorDlg.h"
#include "elements/form/position_review.h"
#include "mainwindow/CAboutDlg.h"
#include "mainwindow/copy_flow.h"
#include "mainwindow/correction.h"
#include "mainwindow/entry_messages.h"
#include "mainwindow/last_position.h"
#include "mainwindow/save_flow.h"
#include "mainwindow/ship_on_map.h"
#include "observation/report_file.h"
#include "ship/CFixDataDlg.h"
#include "ship/CKeyObserveDlg.h"
#include "ship/CVosClimDlg.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/reasons.h"

namespace {

namespace id = text::id;
using mainwindow::Command;
using mainwindow::SaveError;

// Sets a flag for as long as something runs.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace

std::string CVelmaranDlg::title() const {
  if (correcting())
    return text::fill(
        services().texts.get(unsaved() ? id::kCorrectingTitleNotSaved : id::kCorrectingTitle),
        {correction_.file});
  const text::Id which = unsaved()     ? id::kMainTitleNotSaved
                         : saved_once_ ? id::kMainTitleSaved
                                       : id::kMainTitle;
  return std::string(services().texts.get(which));
}

std::vector<std::pair<std::string, std::string>> CVelmaranDlg::record_fields() const {
  std::vector<std::pair<std::string, std::string>> result;
  for (const WeatherField& row : weather_fields()) {
    if (const std::string& value = form_.record().*row.member; !value.empty())
      result.emplace_back(row.name, value);
  }
  return result;
}

void CVelmaranDlg::on_open() {
  find_last_positions();
  show_menu();
  refresh();
  offer_drafts();
  tell_map_troubles();
  tab_flags_.arm();  // the first field gets the focus without being entered
}

void CVelmaranDlg::show_menu() {
  const mainwindow::Menu menu = mainwindow::menu_for(services().locale.is_japanese(), language());
  set_menu(mainwindow::build_menu(menu, context_.ship.vosclim,
                                  [this](const mainwindow::MenuRow& row) { run(row); }));
}

// ---- Dialogs of the elements

// The label of a switched-off element is dead; a caption's focus moves on whatever the dialog says.
void CVelmaranDlg::label_clicked(const mainwindow::LabelRow& row) {
  if (form_.switched_off(row.of)) return;
  open_element(row.element());
  if (row.caption) focus_behind(control_of(elements::name_of(row.of)));
}

void CVelmaranDlg::focus_behind(const ui::Control* last) {
  ui::Control* const next = neighbour(last, true);
  if (next == nullptr) return;
  focus(*next);
  tab_flags_.arm();
}

const ui::Control* CVelmaranDlg::last_field_of(int element) const {
  const auto at = std::find_if(fields_.rbegin(), fields_.rend(),
                               [&](const Field& f) { return f.row->element == element; });
  return at == fields_.rend() ? focused() : at->control;
}

// The pressure also has the time of its reading, which stands before the position: whoever came
// from there goes on with the position.
const ui::Control* CVelmaranDlg::last_field_beside(const Field& field) const {
  const auto at = std::find_if(fields_.begin(), fields_.end(),
                               [&](const Field& f) { return f.control == field.control; });
  const auto other = std::find_if(
      at, fields_.end(), [&](const Field& f) { return f.row->element != field.row->element; });
  return std::prev(other)->control;
}

bool CVelmaranDlg::open_element(int element) {
  return open_element(element, last_field_of(element));
}

bool CVelmaranDlg::open_element(int element, const ui::Control* last) {
  const mainwindow::ElementRow* const row = mainwindow::find_element(element);
  if (row == nullptr) {
    services().messages.error(id::kNoSubWindow);
    return false;
  }
  if (use_of(*row, context_) != mainwindow::Use::kInUse) return false;
  const std::string last_quadrant = last_positions_.empty()
                                        ? std::string()
                                        : text::format_int(last_positions_.front().at.quadrant);
  mainwindow::Opening opening{services(), context_, form_, last_quadrant, &land_};
  const bool confirmed = row->open(opening);
  refresh();
  if (confirmed) {
    // A value that the form then refused is to be put right first.
    const auto refused = std::find_if(fields_.begin(), fields_.end(), [&](const Field& f) {
      return f.row->element == element && f.is_edit() && form_.in_error(f.value());
    });
    typing_ = refused != fields_.end();
    if (typing_) {
      focus(*refused->control);
    } else {
      focus_behind(last);
    }
    tell_doubts();
  }
  return confirmed;
}

// The dialog starts from what stands in the field, so that is checked first. A text that is refused
// stays in the field; once the officer knows that, F1 only opens the dialog.
void CVelmaranDlg::on_f1(ui::Control* focused) {
  const Field* const field = field_of(focused);
  std::optional<Speaking> of;
  if (focused != nullptr) of.emplace(*this, *focused);
  if (const text::Id why = field == nullptr ? text::Id() : why_locked(*field->row); why) {
    services().messages.error(why);
    return;
  }
  if (field != nullptr && field->is_edit() && !form_.in_error(field->value()))
    static_cast<void>(leave(*field));
  if (field == nullptr)
    open_element(mainwindow::kNoElement);
  else
    open_element(field->row->element, last_field_beside(*field));
}

void CVelmaranDlg::on_tab(ui::Key key) {
  tab_flags_.advance(key == ui::Key::kShiftTab);
}

// ---- Commands

// A menu leaves the focus where it is, so what was just typed is taken before a command that needs
// the whole observation. False when it was refused; its field has the focus then.
bool CVelmaranDlg::settle_focused() {
  ui::Control* const control = focused();
  const auto group = std::find_if(groups_.begin(), groups_.end(),
                                  [&](const ReportGroup& g) { return g.control == control; });
  const Field* const field = field_of(control);
  const bool taken = group != groups_.end()
                         ? leave_group(*group)
                         : field == nullptr || !field->is_edit() || leave(*field);
  if (!taken) focus(*control);
  return taken;
}

void CVelmaranDlg::on_cancel() {
  if (command_in_progress_) return;
  const Raised running(command_in_progress_);
  exit();
}

void CVelmaranDlg::run(const mainwindow::MenuRow& command) {
  if (command_in_progress_) return;
  const Raised running(command_in_progress_);
  switch (command.command) {
    case Command::kNone:
      break;
    case Command::kCorrectReports:
      correct_reports();
      break;
    case Command::kPrintSelected: {
      CQFPrintDlg dialog(services(), context_.folders.reports);
      services().windows.run_modal(dialog);
      break;
    }
    case Command::kPrintAll: {
      CPrintAllTLXDlg dialog(services(), context_.folders.reports);
      services().windows.run_modal(dialog);
      break;
    }
    case Command::kPrintLogbook: {
      CLogPrintDlg dialog(services(), context_.folders.logbook);
      services().windows.run_modal(dialog);
      break;
    }
    case Command::kVosClim:
      edit_vosclim_loading();
      break;
    case Command::kCopyReport:
      mainwindow::copy_reports(services(), context_);
      break;
    case Command::kCopyLogbook:
      mainwindow::copy_logbook(services(), context_);
      break;
    case Command::kExit:
      exit();
      break;
    case Command::kSave:
      save();
      break;
    case Command::kFixedData:
      edit_fixed_data();
      break;
    case Command::kObservationItem:
      edit_observation_items();
      break;
    case Command::kJapanese:
      switch_language(text::Language::kJapanese);
      break;
    case Command::kEnglish:
      switch_language(text::Language::kEnglish);
      break;
    case Command::kHelpFile:
      services().help.show({command.help_file, {}, {}});
      break;
    case Command::kNewWatch:
      new_watch();
      break;
    case Command::kPrintReport:
      print_report();
      break;
    case Command::kCopyText:
      copy_report();
      break;
    case Command::kNextPart:
      go_to_part(1);
      break;
    case Command::kPreviousPart:
      go_to_part(kParts - 1);
      break;
    case Command::kPlainWords:
      show_or_hide_plain_words();
      break;
    case Command::kCurves:
      show_curves();
      break;
    case Command::kLog:
      show_logbook();
      break;
    case Command::kVersion: {
      mainwindow::CAboutDlg about(services());
      services().windows.run_modal(about);
      break;
    }
  }
}

bool CVelmaranDlg::may_leave_observation() {
  if (!unsaved()) return true;
  const int answer =
      services().messages.question(id::kAskSaveBeforeCorrecting, ui::QuestionMode::kYesNoCancel,
                                   services().texts.get(id::kExitQuestionTitle));
  return answer == ui::kNo || (answer == ui::kOk && save());
}

void CVelmaranDlg::correct_reports() {
  if (!may_leave_observation()) return;
  CQFModifyDlg dialog(services(), context_.folders.reports);
  if (services().windows.run_modal(dialog) == ui::kOk) correct(dialog.chosen());
}

void CVelmaranDlg::correct(const std::string& path) {
  const auto opened = mainwindow::open_report(services(), context_, path);
  if (!opened) return;
  form_.load_record(opened->record);
  correction_ = opened->correction;
  typing_ = false;
  refresh();
  focus(*fields_.front().control);
  tab_flags_.arm();
  mainwindow::tell_notes(services(), *opened);
  tell_map_troubles();
}

// A new date or hour is another report: the next observation may be entered over the last one, and
// the file that was opened then stays as it is.
bool CVelmaranDlg::correcting() const {
  return !correction_.file.empty() &&
         observation::report_file_name(form_.record()) == correction_.goes_to;
}

void CVelmaranDlg::edit_fixed_data() {
  CFixDataDlg dialog(services(), context_.folders.fixed_data, false, context_.folders.reports,
                     context_.folders.logbook, context_.ship);
  if (services().windows.run_modal(dialog) != ui::kOk) return;
  const std::string before = elements::ship_mark(context_.ship);
  context_.ship = dialog.values();
  if (context_.save_fixed_data) context_.save_fixed_data();
  // An OK without a change leaves a report that is being corrected as it was sent.
  if (elements::ship_mark(context_.ship) != before) form_.ship_changed();
  days_.reset();
  show_menu();
  refresh();
  tell_doubts();
}

// The observation does not hold these: they go into its line of the logbook when it is saved.
void CVelmaranDlg::edit_vosclim_loading() {
  if (enter_vosclim_loading(services(), context_.ship) && context_.save_fixed_data)
    context_.save_fixed_data();
}

void CVelmaranDlg::edit_observation_items() {
  CKeyObserveDlg dialog(services(), context_.folders.key_items, false, context_.items);
  if (services().windows.run_modal(dialog) != ui::kOk) return;
  context_.items = dialog.values();
  form_.items_changed();
  days_.reset();
  refresh();
  tell_doubts();
}

void CVelmaranDlg::switch_language(text::Language language) {
  services().texts.language = language;
  show_menu();
  relabel();
  refresh();
}

void CVelmaranDlg::exit() {
  const Raised leaving(exiting_);
  const std::string_view title = services().texts.get(id::kExitQuestionTitle);
  ui::Messages& messages = services().messages;
  if (!unsaved()) {
    if (messages.question(id::kAskExit, ui::QuestionMode::kYesNo, title) == ui::kYes) end();
    return;
  }
  const int answer = messages.question(id::kAskSaveOnExit, ui::QuestionMode::kYesNoCancel, title);
  if (answer == ui::kNo || (answer == ui::kOk && save())) end();
}

void CVelmaranDlg::end() {
  keeper_.drop({});
  close(ui::kOk);
}

// What the list of a save says that the record does not hold.
std::vector<SaveError> CVelmaranDlg::save_remarks() const {
  std::vector<SaveError> remarks;
  const auto add = [&](const std::vector<elements::Remark>& of_form) {
    for (const elements::Remark& remark : of_form) {
      remarks.push_back({mainwindow::worded(remark.notice, services().texts), {}});
      if (remark.of) remarks.back().where.push_back(elements::name_of(*remark.of));
    }
  };
  add(form_.remarks());
  if (correcting()) {
    add(form_.unacceptable());
    for (std::string& line : mainwindow::unplaced_lines(services(), correction_))
      remarks.push_back({std::move(line)});
    return remarks;
  }
  for (const elements::Field field : form_.sent_though_unused()) {
    std::string element(elements::name_of(field));
    element.append(" ").append(form_.text(field));
    const text::Id why = form_.switched_off(field) ? id::kWhyNotObserved : id::kWhyNoWaveRecorder;
    remarks.push_back(
        {text::fill(services().texts.get(id::kFileAndReason), {element, services().texts.get(why)}),
         {elements::name_of(field)}});
  }
  return remarks;
}

// Where the error is put right: the first of its controls that is empty or wrong, or of a doubt the
// first that is not empty, else the first; none that is locked.
ui::Control* CVelmaranDlg::place_of(const SaveError& error) const {
  ui::Control* first = nullptr;
  for (ui::Control* const control : controls()) {
    const bool named =
        std::find(error.where.begin(), error.where.end(), control->name) != error.where.end();
    if (!named || !control->can_focus() || control->read_only) continue;
    const bool lacks =
        control->kind == ui::Kind::kChoice ? control->selected < 0 : control->content.empty();
    // A doubt is about what was entered.
    const bool meant = error.doubt ? !lacks : lacks || control->mark == ui::kWrongMark;
    if (meant) return control;
    if (first == nullptr) first = control;
  }
  return first;
}

// The focus goes to the first place on the form; where none of the errors has one it stays.
void CVelmaranDlg::lead_to(const std::vector<SaveError>& errors) {
  std::vector<const ui::Control*> places;
  places.reserve(errors.size());
  for (const SaveError& error : errors) places.push_back(place_of(error));
  const auto at = std::find_if(controls().begin(), controls().end(), [&](const ui::Control* one) {
    return std::find(places.begin(), places.end(), one) != places.end();
  });
  if (at == controls().end()) return;
  focus(**at);
  tab_flags_.arm();
}

// The question whether to replace it says neither which hour it is nor which file.
void CVelmaranDlg::tell_exists(const std::string& report) {
  const text::Texts& texts = services().texts;
  tell_in_status_line(
      text::fill(texts.get(id::kFileAndReason),
                 {report, texts.get(text::reason_of(platform::FileError::kExists))}));
}

bool CVelmaranDlg::save() {
  if (!settle_focused()) return false;
  std::optional<Speaking> of;
  if (!mainwindow::has_date(form_.record())) {
    lead_to({{{}, {"Year", "Month", "YY", "GG"}}});
    of.emplace(*this, *focused());
  }
  const mainwindow::SaveEnd end = mainwindow::save_observation(
      services(), {form_.record(), context_.ship, context_.items, context_.folders, save_remarks(),
                   [this] { keeper_.drop(draft()); },
                   [this](const std::vector<SaveError>& errors) { lead_to(errors); },
                   [this](const std::string& report) { tell_exists(report); }});
  if (end != mainwindow::SaveEnd::kSaved) return false;
  // The officer has seen in the list what was refused, and saved without it.
  form_.saved();
  // The file holds what the form does now: there is nothing left to be told of an earlier one.
  correction_ = {};
  typing_ = false;
  saved_once_ = true;
  find_last_positions();
  days_.reset();
  read_days();
  draw_curve();
  const mainwindow::Folders& folders = context_.folders;
  tell_in_status_line(text::fill(services().texts.get(id::kStatusSaved),
                                 {observation::report_path(folders.reports, form_.record()),
                                  observation::logbook_path(folders.logbook)}));
  return true;
}

void CVelmaranDlg::find_last_positions() {
  constexpr std::size_t kTrack = 16;  // two days, where every synoptic hour is reported
  last_positions_before_ = observation::report_file_name(form_.record());
  last_positions_ = mainwindow::last_saved_positions(services().files, context_.folders.reports,
                                                     kTrack, last_positions_before_);
}

// Warnings only: is the ship where it can be, after a new date, hour or position; and is the dew
// point one of this pressure.
void CVelmaranDlg::tell_doubts() {
  const elements::Doubts doubts = form_.take_doubts();
  if (doubts.doubled_pressure) services().messages.error(id::kDoubledPressure);
  if (!doubts.review) return;
  const auto here = elements::signed_position(form_.record());
  CHour3ErrorDlg::show(
      services(),
      elements::review_position(
          form_.record(), services().files, context_.folders.reports,
          [this](double latitude, double longitude) {
            return land_.is_land({latitude, longitude});
          },
          services().texts, here && land_.is_confirmed({here->latitude, here->longitude})));
  tell_map_troubles();
}

void CVelmaranDlg::show_map() {
  // A new hour may be before reports that were there.
  if (observation::report_file_name(form_.record()) != last_positions_before_)
    find_last_positions();
  if (map_ != nullptr) {
    const auto track = mainwindow::track_of(last_positions_, last_positions_before_);
    map_->show(mainwindow::ship_on_map(form_, track));
  }
}

void CVelmaranDlg::tell_map_troubles() {
  if (context_.sea_map == nullptr) return;
  const text::Texts& texts = services().texts;
  std::string files;
  for (const map::TileTrouble& trouble : context_.sea_map->take_troubles()) {
    const text::Id why = trouble.error == platform::FileError::kNone
                             ? id::kReasonDamaged
                             : text::reason_of(trouble.error);
    files.append("\n").append(
        text::fill(texts.get(id::kFileAndReason), {trouble.path, texts.get(why)}));
  }
  if (!files.empty()) services().messages.error_filled(id::kSeaMapUnusable, {files});
}
