// What is done with the report that stands in the window, and from part to part of it: print, copy,
// the next observation, and the line that says what the current field means.

#include <algorithm>

#include "archive/print_documents.h"
#include "archive/print_service.h"
#include "mainwindow/CVelmaranDlg.h"
#include "mainwindow/status_line.h"
#include "observation/report_file.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace {

namespace id = text::id;
using elements::Field;

// What the next observation takes over: a ship keeps her course until her officer says otherwise.
// Her speed and heading are read anew, for the true wind is made of them.
constexpr Field kStays[] = {Field::kDs, Field::kCourse};

}  // namespace

// ---- Commands with a key of their own

void CVelmaranDlg::add_commands() {
  for (const mainwindow::ShownCommand& command : mainwindow::shown_commands()) {
    auto& label = add<ui::Label>(command.name, text::Ref{command.label});
    label.shortcut = command.shortcut;
    label.only_shows = command.only_shows;
    label.on_press = [this, &command] { run({0, command.label, command.command}); };
  }
}

// A file holds what the form does.
bool CVelmaranDlg::is_written() const {
  return !unsaved() && (saved_once_ || correcting());
}

// As it would be sent now; what is not saved yet says so, for a sheet outlives the window.
void CVelmaranDlg::print_report() {
  const text::Texts& texts = services().texts;
  const std::string name = observation::has_valid_date(form_.record())
                               ? observation::report_file_name(form_.record())
                               : std::string(texts.get(id::kPrintedNoDate));
  std::vector<std::string> lines = archive::lines_of(archive::single_report_text(
      name, observation::report_file_content(report()), services().clock.local()));
  if (!is_written()) {
    lines.emplace_back();
    lines.emplace_back(texts.get(id::kPrintedNotSaved));
  }
  const ui::PrintResult result =
      archive::print(services(), archive::sheets_of(services(), ui::document_of(std::move(lines))));
  archive::tell_printed(services(), result, "Print FAILED");
}

void CVelmaranDlg::copy_report() {
  if (!services().windows.copy_text(observation::report_file_content(report()))) {
    services().messages.error(id::kReportTextNotCopied);
    return;
  }
  const text::Texts& texts = services().texts;
  std::string told(texts.get(id::kReportTextCopied));
  if (!is_written()) told.append(" ").append(texts.get(id::kPrintedNotSaved));
  const auto lacking = std::count_if(groups_.begin(), groups_.end(), [](const ReportGroup& group) {
    return group.control->mark == ui::kMissingMark;
  });
  if (lacking > 0)
    told.append(" ").append(
        text::fill(texts.get(id::kGroupsLacking), {text::format_int(static_cast<int>(lacking))}));
  tell_in_status_line(std::move(told));
}

// As a start would find it, but for what goes on as it was.
void CVelmaranDlg::new_watch() {
  news_.clear();
  if (!may_leave_observation()) return;
  elements::ObservationForm next(context_.ship, context_.items, services().clock);
  const elements::Entries& last = form_.entries();
  next.choose_hemispheres(last.north_south, last.east_west);
  for (const elements::Field field : kStays) {
    if (const std::string& stays = form_.entered(field); !stays.empty()) next.put(field, stays);
  }
  next.saved();
  static_cast<void>(next.take_doubts());
  form_.load(next.entries());
  correction_ = {};
  typing_ = false;
  saved_once_ = false;
  // What was given up must not be offered by the next start.
  keeper_.drop({});
  find_last_positions();
  refresh();
  // The names of the files, where the last observation was saved just now.
  std::string told = std::move(news_);
  focus(*fields_.front().control);
  tab_flags_.arm();
  if (!told.empty()) tell_in_status_line(std::move(told));
}

void CVelmaranDlg::keep_place(const ui::WindowPlace& place) {
  if (context_.keep_place) context_.keep_place(ui::text_of(place));
}

// ---- Form, report and status line

CVelmaranDlg::Part CVelmaranDlg::part_of(const ui::Control* control) const {
  if (control == status_line_) return Part::kStatusLine;
  if (control == plain_words_) return Part::kPlainWords;
  return field_of(control) == nullptr ? Part::kReport : Part::kForm;
}

ui::Control* CVelmaranDlg::way_into(Part part) const {
  ui::Control* const last = last_in_[static_cast<std::size_t>(part)];
  if (last != nullptr && last->can_focus()) return last;
  const auto controls = this->controls();
  const auto at = std::find_if(controls.begin(), controls.end(), [&](const ui::Control* each) {
    return each->can_focus() && part_of(each) == part;
  });
  return at == controls.end() ? nullptr : *at;
}

void CVelmaranDlg::go_to_part(int steps) {
  const int now = static_cast<int>(part_of(focused()));
  // A part that is hidden has no way into it.
  for (int part = (now + steps) % kParts; part != now; part = (part + steps) % kParts) {
    ui::Control* const target = way_into(static_cast<Part>(part));
    if (target == nullptr) continue;
    focus(*target);
    tab_flags_.arm();
    return;
  }
}

// ---- The status line

void CVelmaranDlg::add_status_line() {
  status_line_ = &add<ui::Edit>("status_line", text::Ref{id::kStatusCaption});
  status_line_->read_only = true;
  status_line_->repeats = true;
}

void CVelmaranDlg::on_focused() {
  last_in_[static_cast<std::size_t>(part_of(focused()))] = focused();
  // These go on speaking of the field that one came from.
  if (focused() == status_line_ || focused() == plain_words_) return;
  spoken_of_ = focused();
  news_.clear();
  show_status();
  tell_plain_words();
  draw_curve();
}

void CVelmaranDlg::typed() {
  news_.clear();
  show_status();
  tell_plain_words();
  draw_curve();
}

void CVelmaranDlg::tell_in_status_line(std::string news) {
  news_ = std::move(news);
  show_status();
}

void CVelmaranDlg::show_status() {
  status_line_->set(news_.empty() ? status() : news_);
}

std::string CVelmaranDlg::status() const {
  const mainwindow::StatusOf of{
      form_, {context_.ship, context_.items, services().clock}, services().texts};
  if (const Field* const field = field_of(spoken_of_))
    return mainwindow::field_status(of, *field->row, spoken_of_->content, why_locked(*field->row));
  const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const ReportGroup& each) {
    return each.control == spoken_of_;
  });
  if (group == groups_.end()) return {};
  return mainwindow::group_status(of, *group->row, spoken_of_->content);
}
