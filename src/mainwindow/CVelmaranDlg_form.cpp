// The form itself: its controls, what they show, and what is typed into them.

#include <algorithm>
#include <iterator>

#include "mainwindow/CVelmaranDlg.h"
#include "mainwindow/entry_messages.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::label_ref;
using mainwindow::FieldKind;
using mainwindow::Use;

constexpr int kSelectedOnFocus = 10;
constexpr std::string_view kIceWord = "ICE ";
constexpr std::string_view kFiguresFont = "monospace";  // the report's figures stand in columns

}  // namespace

CVelmaranDlg::CVelmaranDlg(ui::Services& services, mainwindow::MainWindowContext context)
    : Screen(services, "CVelmaranDlg", {id::kMainTitle, 0}),
      context_(std::move(context)),
      form_(context_.ship, context_.items, services.clock),
      keeper_(services.files, context_.folders.drafts),
      land_(context_.sea_map) {
  select_on_focus(kSelectedOnFocus);
  add_labels();
  fields_.reserve(mainwindow::field_rows().size());
  for (const mainwindow::FieldRow& row : mainwindow::field_rows()) add_field(row);
  if (context_.sea_map != nullptr) add_map();
  add_curve();
  add_commands();
  add_plain_words();
  add_report();
  add_status_line();
}

CVelmaranDlg::~CVelmaranDlg() = default;

void CVelmaranDlg::add_labels() {
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) {
    auto& label = add<ui::Label>(row.name, label_ref(row.label));
    label.on_press = [this, &row] { label_clicked(row); };
  }
  add<ui::Label>("label_report", label_ref(id::kLabelWeatherMessage));
}

void CVelmaranDlg::add_map() {
  auto& title = add<ui::Label>("label_map", label_ref(id::kLabelMap));
  map_ =
      &add<CPictureStatic>("position_map", text::Ref{id::kMapTitle}, services(), *context_.sea_map);
  title.on_press = map_->on_press;
}

// What a screen reader says of fields that have no caption of their own beside them.
text::Ref CVelmaranDlg::spoken_of(std::string_view name) {
  struct Row {
    std::string_view name;
    text::Id spoken;
  };
  constexpr Row kRows[] = {
      {"GGExact", id::kSpokenActualHour},
      {"gg", id::kSpokenActualMinute},
      {"north_south", id::kSpokenNorthSouth},
      {"east_west", id::kSpokenEastWest},
      {"W1", id::kSpokenW1},
      {"W2", id::kSpokenW2},
  };
  const auto* const at = std::find_if(std::begin(kRows), std::end(kRows),
                                      [&](const Row& row) { return row.name == name; });
  return at == std::end(kRows) ? text::Ref{} : text::Ref{at->spoken};
}

void CVelmaranDlg::add_field(const mainwindow::FieldRow& row) {
  const text::Ref label = label_ref(row.label);
  switch (row.kind) {
    case FieldKind::kEdit:
      add_edit(row, label);
      break;
    case FieldKind::kNorthSouth:
      add_hemispheres(row, id::kLabelNorth, id::kLabelSouth);
      break;
    case FieldKind::kEastWest:
      add_hemispheres(row, id::kLabelEast, id::kLabelWest);
      break;
    case FieldKind::kLoadingState: {
      auto& choice = add<ui::Choice>(
          row.name, label,
          std::vector{label_ref(id::kLabelFullLoad), label_ref(id::kLabelInBallast)});
      choice.on_change = [this] { loading_state_chosen(); };
      fields_.push_back({&row, &choice});
      break;
    }
    case FieldKind::kFreeze: {
      auto& freeze = add<ui::Tick>(row.name, label);
      // What the tick shows is the form's to say: from 0.1 degrees up it stays off.
      freeze.on_change = [this] {
        form_.toggle_freeze();
        refresh();
        tell_doubts();
      };
      fields_.push_back({&row, &freeze});
      break;
    }
  }
  fields_.back().control->spoken = spoken_of(row.name);
  fields_.back().control->on_enter = [this] { tab_flags_.arm(); };
}

void CVelmaranDlg::add_edit(const mainwindow::FieldRow& row, text::Ref label) {
  auto& edit = add<ui::Edit>(row.name, label, row.field->max_length);
  edit.unit = row.field->unit;
  edit.figures = true;
  edit.moves_on_when_full = elements::is_of_fixed_width(*row.field);
  fields_.push_back({&row, &edit});
  edit.on_change = [this, at = fields_.size() - 1] {
    typing_ = true;
    form_.type(fields_[at].value(), fields_[at].control->content);
    typed();
  };
  edit.on_leave = [this, at = fields_.size() - 1] {
    // A command has seen to what was typed before it began.
    return command_in_progress_ || leave(fields_[at]);
  };
}

void CVelmaranDlg::add_hemispheres(const mainwindow::FieldRow& row, text::Id first,
                                   text::Id second) {
  auto& choice = add<ui::Choice>(row.name, label_ref(row.label),
                                 std::vector{label_ref(first), label_ref(second)});
  choice.on_change = [this] { hemispheres_chosen(); };
  fields_.push_back({&row, &choice});
}

void CVelmaranDlg::add_report() {
  constexpr int kCallSignWidth = 7;
  call_sign_ = &add<ui::ReadOnly>("call_sign");
  call_sign_->max_length = kCallSignWidth;
  call_sign_->literal_caption = mainwindow::kCallSignCaption;
  call_sign_->font = kFiguresFont;
  groups_.reserve(mainwindow::report_group_rows().size());
  for (const mainwindow::ReportGroupRow& row : mainwindow::report_group_rows()) {
    if (row.group == observation::Group::kICE) {
      ice_word_ = &add<ui::ReadOnly>("group_ICE");
      ice_word_->max_length = static_cast<int>(kIceWord.size()) - 1;
      ice_word_->literal_caption = mainwindow::kIceCaption;
      ice_word_->font = kFiguresFont;
      ice_word_->set(kIceWord.substr(0, kIceWord.size() - 1));
    }
    auto& edit = add<ui::Edit>(row.name, text::Ref{}, mainwindow::kGroupWidth);
    edit.literal_caption = row.caption;
    edit.font = kFiguresFont;
    edit.figures = true;
    edit.on_enter = [this] { tab_flags_.arm(); };
    edit.on_change = [this] {
      typing_ = true;
      typed();
    };
    groups_.push_back({&row, &edit});
    edit.on_leave = [this, at = groups_.size() - 1] {
      return command_in_progress_ || leave_group(groups_[at]);
    };
  }
}

void CVelmaranDlg::refresh() {
  for (const Field& field : fields_) {
    if (field.is_edit()) show_edit(field);
  }
  show_choices();
  show_report();
  show_map();
  show_status();
  tell_plain_words();
  read_days();
  draw_curve();
}

// The reason, none for a field that is open.
text::Id CVelmaranDlg::why_locked(const mainwindow::FieldRow& row) const {
  if (row.field != nullptr) {
    if (form_.switched_off(row.field->field)) return id::kWhyNotObserved;
    if (row.field->needs_wave_recorder)
      return context_.ship.wave_recorder ? text::Id() : id::kWhyNoWaveRecorder;
  }
  const mainwindow::ElementRow* const element = mainwindow::find_element(row.element);
  if (element == nullptr || use_of(*element, context_) != Use::kOtherMethod) return {};
  return row.field != nullptr && row.field->computed ? id::kWhyComputed : id::kWhyOtherMethod;
}

// A field whose value the program computes or fills in is locked and shows it; one that has no
// meaning on this ship is disabled and shows as empty.
void CVelmaranDlg::show_edit(const Field& field) {
  ui::Control& control = *field.control;
  const text::Id why = why_locked(*field.row);
  const bool shows_value = why == id::kWhyNotObserved || field.row->field->computed;
  control.enabled = !why || shows_value;
  control.read_only = why && shows_value;
  control.why_locked = services().texts.get(why);
  control.set(control.enabled ? std::string_view(form_.text(field.value())) : std::string_view());
  control.mark = form_.in_error(field.value()) ? ui::kWrongMark : std::string_view();
  control.passed_over = !form_.asks_for(field.value());
}

void CVelmaranDlg::show_choices() {
  control_of("north_south")->selected = form_.entries().north_south;
  control_of("east_west")->selected = form_.entries().east_west;
  ui::Control& loading = *control_of("loading_state");
  loading.enabled = context_.ship.card.type == CardType::kHeightAndTemperature;
  loading.selected = static_cast<int>(context_.ship.card.loading_state);
  // Once chosen it is another one only after the ship was loaded or unloaded.
  loading.passed_over = loading.selected >= 0;
  loading.why_locked = services().texts.get(loading.enabled ? text::Id() : id::kWhyNoLoadingState);
  ui::Control& freeze = *control_of("freeze");
  freeze.enabled = context_.ship.dew_point_method == DewPointMethod::kComputed;
  freeze.checked = freeze.enabled && form_.entries().wet_bulb == elements::WetBulbState::kIced;
  freeze.passed_over = !form_.asks_for_freeze();
  freeze.why_locked = services().texts.get(freeze.enabled ? text::Id() : id::kWhyOtherMethod);
}

// What stands in a group's field: the group as the report would have it. The word ICE has a field
// of its own, and a group that is written only when it is set says so by solidi.
std::string CVelmaranDlg::group_shown(const ReportGroup& group) const {
  std::string text = observation::group_text(form_.record(), group.row->group);
  if (text.starts_with(kIceWord)) text.erase(0, kIceWord.size());
  if (group.row->group == observation::Group::k9GGgg && text == "9") text = "9////";
  if (group.row->group == observation::Group::k00fff && text == "00") text = "00///";
  return text;
}

void CVelmaranDlg::show_report() {
  call_sign_->set(form_.record().call_sign_for_report());
  const observation::GroupSet missing = form_.report().missing;
  for (const ReportGroup& group : groups_) {
    if (typing_ && group.control == focused()) continue;  // a group half typed is not taken away
    group.control->set(group_shown(group));
    const bool half_time = group.row->group == observation::Group::k9GGgg &&
                           form_.record().gg.empty() != form_.record().GGExact.empty();
    const bool lacks = half_time || missing.contains(group.row->group);
    group.control->mark = lacks ? ui::kMissingMark : std::string_view();
  }
}

bool CVelmaranDlg::settle(const std::function<elements::Answer(elements::Confirmed)>& take) {
  return mainwindow::settle(services().messages, services().texts, take);
}

bool CVelmaranDlg::leave(const Field& field) {
  const Speaking of(*this, *field.control);
  // Full-width figures were narrowed behind the last key.
  if (field.control->content != form_.text(field.value()))
    form_.type(field.value(), field.control->content);
  const bool accepted =
      settle([&](elements::Confirmed confirmed) { return form_.leave(field.value(), confirmed); });
  typing_ = typing_ && !accepted;
  refresh();
  if (accepted) tell_doubts();
  return accepted;
}

bool CVelmaranDlg::leave_group(const ReportGroup& group) {
  const Speaking of(*this, *group.control);
  if (group.control->content == group_shown(group)) {
    typing_ = false;
    return true;
  }
  std::string typed = group.control->content;
  if (group.row->group == observation::Group::kICE) typed.insert(0, kIceWord);
  const bool accepted = settle([&](elements::Confirmed confirmed) {
    return form_.leave(group.row->group, typed, confirmed);
  });
  if (!accepted) {
    group.control->mark = ui::kWrongMark;
    return false;
  }
  typing_ = false;
  refresh();
  tell_doubts();
  return true;
}

void CVelmaranDlg::hemispheres_chosen() {
  form_.choose_hemispheres(control_of("north_south")->selected, control_of("east_west")->selected);
  refresh();
  tell_doubts();
}

void CVelmaranDlg::loading_state_chosen() {
  const auto chosen = static_cast<LoadingState>(control_of("loading_state")->selected);
  BarometerCard& card = context_.ship.card;
  if (chosen == card.loading_state) return;
  if (services().messages.question(id::kAskLoadingState, ui::QuestionMode::kYesNo) == ui::kYes) {
    card.loading_state = chosen;
    if (context_.save_fixed_data) context_.save_fixed_data();
    form_.card_changed();
  }
  refresh();
  tell_doubts();
}

const CVelmaranDlg::Field* CVelmaranDlg::field_of(const ui::Control* control) const {
  const auto at = std::find_if(fields_.begin(), fields_.end(),
                               [&](const Field& f) { return f.control == control; });
  return at == fields_.end() ? nullptr : &*at;
}

ui::Control* CVelmaranDlg::control_of(std::string_view name) const {
  const auto at = std::find_if(fields_.begin(), fields_.end(),
                               [&](const Field& f) { return f.row->name == name; });
  return at == fields_.end() ? nullptr : at->control;
}
