#include "mainwindow/CVelmaranDlg.h"

#include <algorithm>

#include "mainwindow/element_openers.h"
#include "observation/report_encoder.h"
#include "ship/CFixDataDlg.h"
#include "ship/CKeyObserveDlg.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using mainwindow::Command;
using mainwindow::FieldKind;
using mainwindow::label_ref;

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

constexpr int kSelectedOnFocus = 10;
constexpr std::string_view kIceWord = "ICE ";

}  // namespace

CVelmaranDlg::CVelmaranDlg(ui::Services& services, mainwindow::MainWindowContext context)
    : Screen(services, "CVelmaranDlg", {id::kMainTitle, 0}),
      context_(std::move(context)),
      record_(context_.ship, context_.items) {
  select_on_focus(kSelectedOnFocus);
  add_labels();
  for (const mainwindow::FieldRow& row : mainwindow::field_rows()) add_field(row);
  add_report();
}

CVelmaranDlg::~CVelmaranDlg() = default;

template <class C, class... Arguments>
C& CVelmaranDlg::add(Arguments&&... arguments) {
  auto control = std::make_unique<C>(*this, std::forward<Arguments>(arguments)...);
  C& result = *control;
  owned_.push_back(std::move(control));
  return result;
}

void CVelmaranDlg::add_labels() {
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) {
    ui::Label& label = add<ui::Label>(row.name, label_ref(row.label));
    if (row.element != mainwindow::kNoElement)
      label.on_press = [this, &row] { label_clicked(row); };
  }
  add<ui::Label>("label_report", label_ref(id::kLabelWeatherMessage));
}

void CVelmaranDlg::add_field(const mainwindow::FieldRow& row) {
  const text::Ref label = label_ref(row.label);
  ui::Control* control = nullptr;
  switch (row.kind) {
    case FieldKind::kEdit:
      control = &add<ui::Edit>(row.name, label, row.max_length);
      break;
    case FieldKind::kNorthSouth:
      control = &add<ui::Choice>(
          row.name, label, std::vector{label_ref(id::kLabelNorth), label_ref(id::kLabelSouth)});
      break;
    case FieldKind::kEastWest:
      control = &add<ui::Choice>(row.name, label,
                                 std::vector{label_ref(id::kLabelEast), label_ref(id::kLabelWest)});
      break;
    case FieldKind::kLoadingState:
      control = &add<ui::Choice>(
          row.name, label,
          std::vector{label_ref(id::kLabelFullLoad), label_ref(id::kLabelInBallast)});
      control->on_change = [this] { loading_state_chosen(); };
      break;
    case FieldKind::kFreeze:
      control = &add<ui::Button>(row.name, label);
      break;
  }
  control->unit = row.unit;
  control->on_enter = [this] { tab_flags_.arm(); };
  fields_.push_back({&row, control});
  if (row.kind == FieldKind::kEdit) {
    control->on_leave = [this, at = fields_.size() - 1] { return leave(fields_[at]); };
  }
}

void CVelmaranDlg::add_report() {
  call_sign_ = &add<ui::ReadOnly>("call_sign");
  call_sign_->literal_caption = mainwindow::kCallSignCaption;
  for (const mainwindow::ReportGroupRow& row : mainwindow::report_group_rows()) {
    if (row.group == observation::Group::kICE) {
      ice_word_ = &add<ui::ReadOnly>("group_ICE");
      ice_word_->literal_caption = mainwindow::kIceCaption;
    }
    ui::ReadOnly& shown = add<ui::ReadOnly>(row.name);
    shown.literal_caption = row.caption;
    groups_.push_back({&row, &shown});
  }
}

std::string CVelmaranDlg::title() const {
  const int which = unsaved_      ? id::kMainTitleNotSaved
                    : saved_once_ ? id::kMainTitleSaved
                                  : id::kMainTitle;
  return std::string(services().texts.get(which));
}

std::vector<std::pair<std::string, std::string>> CVelmaranDlg::record_fields() const {
  std::vector<std::pair<std::string, std::string>> result;
  for (const WeatherField& row : weather_fields()) {
    if (const std::string& value = record_.*row.member; !value.empty())
      result.emplace_back(row.name, value);
  }
  return result;
}

std::string CVelmaranDlg::report() const {
  std::string message;
  std::string missing;
  observation::encode_report(record_, message, missing, observation::wants_wet_bulb(context_.ship),
                             language());
  return message;
}

void CVelmaranDlg::on_open() {
  show_menu();
  refresh();
}

const CVelmaranDlg::Field* CVelmaranDlg::field_of(const ui::Control* control) const {
  const auto at = std::find_if(fields_.begin(), fields_.end(),
                               [&](const Field& f) { return f.control == control; });
  return at == fields_.end() ? nullptr : &*at;
}

ui::Control* CVelmaranDlg::field(std::string_view name) const {
  const auto at = std::find_if(fields_.begin(), fields_.end(),
                               [&](const Field& f) { return f.row->name == name; });
  return at == fields_.end() ? nullptr : at->control;
}

void CVelmaranDlg::show_menu() {
  const bool japanese = (services().locale.locale_id() & 0x3FFU) == platform::kJapaneseLanguage;
  set_menu(mainwindow::build_menu(mainwindow::menu_for(japanese, language()), context_.ship.vosclim,
                                  [this](const mainwindow::MenuRow& row) { run(row); }));
}

void CVelmaranDlg::refresh() {
  for (const Field& field : fields_) show_field(field);
  show_report();
}

void CVelmaranDlg::show_field(const Field& field) {
  const mainwindow::ElementRow* const element = mainwindow::find_element(field.row->element);
  const mainwindow::Use use = element == nullptr ? mainwindow::Use::kInUse : element->use(context_);
  ui::Control& control = *field.control;
  control.enabled = use == mainwindow::Use::kInUse;
  control.why_locked.clear();
  if (!control.enabled) {
    control.why_locked = services().texts.get(
        use == mainwindow::Use::kNotObserved ? id::kWhyNotObserved : id::kWhyOtherMethod);
  }
  if (field.row->kind == FieldKind::kLoadingState) {
    control.enabled = context_.ship.card.type == CardType::kHeightAndTemperature;
    control.selected = static_cast<int>(context_.ship.card.loading_state);
    if (!control.enabled) control.why_locked = services().texts.get(id::kWhyNoLoadingState);
  }
  if (field.row->kind != FieldKind::kEdit) return;
  if (const WeatherField* const symbol = find_weather_field(field.row->name))
    control.set(record_.*symbol->member);
  if (!control.enabled) control.set({});
}

void CVelmaranDlg::show_report() {
  call_sign_->set(record_.call_sign_for_report());
  for (const ReportGroup& group : groups_) {
    std::string text = observation::group_text(record_, group.row->group);
    if (text.starts_with(kIceWord)) text.erase(0, kIceWord.size());
    group.control->set(text);
  }
  ice_word_->set(kIceWord.substr(0, kIceWord.size() - 1));
}

bool CVelmaranDlg::leave(const Field& field) {
  if (const WeatherField* const symbol = find_weather_field(field.row->name)) {
    if (record_.*symbol->member == field.control->content) return true;
    record_.*symbol->member = field.control->content;
    unsaved_ = true;
    show_report();
  }
  return true;
}

void CVelmaranDlg::label_clicked(const mainwindow::LabelRow& row) {
  open_element(row.element);
  if (!row.caption_of.empty()) focus_behind(field(row.caption_of));
}

void CVelmaranDlg::focus_behind(const ui::Control* last) {
  if (ui::Control* const next = neighbour(last, true)) focus(*next);
}

const ui::Control* CVelmaranDlg::last_field_of(int element) const {
  const auto at = std::find_if(fields_.rbegin(), fields_.rend(),
                               [&](const Field& f) { return f.row->element == element; });
  return at == fields_.rend() ? focused() : at->control;
}

bool CVelmaranDlg::open_element(int element) {
  const mainwindow::ElementRow* const row = mainwindow::find_element(element);
  if (row != nullptr && row->use(context_) != mainwindow::Use::kInUse) return false;
  if (row == nullptr || row->open == nullptr) {
    services().messages.error(id::kNoSubWindow);
    return false;
  }
  mainwindow::Opening opening{services(), context_, record_};
  const Struct_Weather before = record_;
  if (!row->open(opening)) return false;
  unsaved_ = unsaved_ || !(record_ == before);
  refresh();
  focus_behind(last_field_of(element));
  return true;
}

void CVelmaranDlg::on_f1(ui::Control* focused) {
  const Field* const field = field_of(focused);
  open_element(field == nullptr ? mainwindow::kNoElement : field->row->element);
}

void CVelmaranDlg::on_tab(ui::Key key) {
  tab_flags_.advance(key == ui::Key::kShiftTab);
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
    case Command::kPrintSelected:
    case Command::kPrintAll:
    case Command::kPrintLogbook:
    case Command::kCopyReport:
    case Command::kCopyLogbook:
    case Command::kVosClim:
      services().messages.error(id::kNotInThisVersion);
      break;
    case Command::kFixedData:
      edit_fixed_data();
      break;
    case Command::kObservationItem:
      edit_observation_items();
      break;
    case Command::kExit:
      exit();
      break;
    case Command::kSave:
      save();
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
    case Command::kVersion:
      services().messages.error(id::kVersionInformation);
      break;
  }
}

void CVelmaranDlg::correct_reports() {
  if (unsaved_) {
    const int answer =
        services().messages.question(id::kAskSaveBeforeCorrecting, text::QuestionMode::kYesNoCancel,
                                     services().texts.get(id::kExitQuestionTitle));
    if (answer == text::kCancel || (answer == text::kOk && !save())) return;
  }
  services().messages.error(id::kNotInThisVersion);
}

void CVelmaranDlg::edit_fixed_data() {
  CFixDataDlg dialog(services(), context_.folders.fixed_data, false, context_.folders.reports,
                     context_.folders.logbook, context_.ship);
  if (services().windows.run_modal(dialog) != text::kOk) return;
  context_.ship = dialog.values();
  if (context_.save_fixed_data) context_.save_fixed_data();
  ship_changed();
  show_menu();
}

void CVelmaranDlg::edit_observation_items() {
  CKeyObserveDlg dialog(services(), context_.folders.key_items, false);
  if (services().windows.run_modal(dialog) != text::kOk) return;
  context_.items = dialog.values();
  ship_changed();
}

// What the record has from the ship when it is built follows the ship.
void CVelmaranDlg::ship_changed() {
  const Struct_Weather fresh(context_.ship, context_.items);
  record_.iw = fresh.iw;
  record_.iX = fresh.iX;
  record_.CallSign = fresh.CallSign;
  record_.ShipFixed = fresh.ShipFixed;
  refresh();
}

void CVelmaranDlg::loading_state_chosen() {
  ui::Control& choice = *field("loading_state");
  const auto chosen = static_cast<LoadingState>(choice.selected);
  BarometerCard& card = context_.ship.card;
  if (chosen == card.loading_state) return;
  if (services().messages.question(id::kAskLoadingState, text::QuestionMode::kYesNo) ==
      text::kYes) {
    card.loading_state = chosen;
    if (context_.save_fixed_data) context_.save_fixed_data();
  }
  refresh();
}

void CVelmaranDlg::switch_language(text::Language language) {
  services().texts.language = language;
  if (context_.language_changed) context_.language_changed(language);
  show_menu();
  relabel();
  refresh();
}

void CVelmaranDlg::exit() {
  const Raised leaving(exiting_);
  const std::string_view title = services().texts.get(id::kExitQuestionTitle);
  text::Messages& messages = services().messages;
  if (!unsaved_) {
    if (messages.question(id::kAskExit, text::QuestionMode::kYesNo, title) == text::kYes)
      close(text::kOk);
    return;
  }
  const int answer = messages.question(id::kAskSaveOnExit, text::QuestionMode::kYesNoCancel, title);
  if (answer == text::kNo || (answer == text::kOk && save())) close(text::kOk);
}

bool CVelmaranDlg::save() {
  services().messages.error(id::kNotInThisVersion);
  return false;
}
