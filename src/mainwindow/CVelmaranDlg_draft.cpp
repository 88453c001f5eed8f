// What has been entered and not saved outlives the program: keeping it, and offering it at the next
// start.

#include "mainwindow/CVelmaranDlg.h"

#include <algorithm>
#include <tuple>

#include "mainwindow/save_flow.h"
#include "observation/report_file.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::DraftFault;
using mainwindow::DraftKeeper;

// The date and hour of an observation, and which part of it nobody entered yet.
std::string when(const Struct_Weather& record, const text::Texts& texts) {
  struct Part {
    const std::string& value;
    text::Id name;
    [[nodiscard]] std::string_view shown() const {
      return value.empty() ? std::string_view("--") : value;
    }
  };
  const Part parts[] = {{record.Year, id::kDraftYear},
                        {record.Month, id::kDraftMonth},
                        {record.YY, id::kDraftDay},
                        {record.GG, id::kDraftHour}};
  std::string lines = text::fill(texts.get(id::kDraftDate), {parts[0].shown(), parts[1].shown(),
                                                             parts[2].shown(), parts[3].shown()});
  std::string missing;
  for (const Part& part : parts) {
    if (!part.value.empty()) continue;
    if (!missing.empty()) missing.append(texts.get(id::kDraftComma));
    missing.append(texts.get(part.name));
  }
  if (missing.empty()) return lines;
  return lines.append("\n").append(text::fill(texts.get(id::kDraftMissing), {missing}));
}

// For comparing, from the year down.
auto in_order(const platform::DateTime& when) {
  return std::tie(when.year, when.month, when.day, when.hour, when.minute, when.second);
}

}  // namespace

std::string CVelmaranDlg::draft() const {
  const bool typing = typing_ && focused() != nullptr;
  const bool in_group = typing && field_of(focused()) == nullptr;
  return elements::encode_draft({context_.ship.call_sign, elements::ship_mark(context_.ship),
                                 form_.entries(), typing ? focused()->name : std::string(),
                                 in_group ? focused()->content : std::string(), correction_});
}

void CVelmaranDlg::on_idle(bool undisturbed) {
  if (!seen_) {
    seen_ = true;
    read_days();
    draw_curve();
  }
  if (!unsaved()) {
    keeper_.drop({});
    return;
  }
  const bool kept = keeper_.keep(draft());
  // Nobody who is typing is told; the news comes with the entry.
  if (!undisturbed || typing_) return;
  if (kept && !keeper_.locked())
    services().messages.error_filled_once(id::kDraftWithoutLock, {keeper_.own_path()});
  if (!kept) services().messages.error_filled_once(id::kDraftNotKept, {keeper_.own_path()});
}

void CVelmaranDlg::offer_drafts() {
  while (const auto left = keeper_.next_left()) {
    if (left->error != platform::FileError::kNone) {
      services().messages.file_error(id::kDraftUnreadable, left->path, left->error);
      continue;
    }
    // Told before the question, for it may be the draft of another copy that is still running.
    if (!left->locked) services().messages.error_filled_once(id::kDraftWithoutLock, {left->path});
    const elements::DraftRead read = elements::decode_draft(left->text);
    if (read.fault != DraftFault::kNone || read.draft.call_sign != context_.ship.call_sign) {
      put_unusable_aside(left->path, read);
    } else if (is_saved(left->path, read.draft)) {
      keeper_.discard();
    } else if (const Struct_Weather& record = read.draft.form.record;
               observation::report_file_name(record) == context_.folders.finished_report) {
      // Its save was under way when the program ended, and has been finished since.
      static_cast<void>(keeper_.put_aside(DraftKeeper::Why::kNotWanted));
    } else if (wants(record)) {
      keeper_.take_over();
      take_over(read.draft);
      return;  // others are offered at the next start: there is one form
    } else if (!keeper_.put_aside(DraftKeeper::Why::kNotWanted)) {
      services().messages.error_filled(id::kDraftStays, {left->path});
    }
  }
}

bool CVelmaranDlg::wants(const Struct_Weather& record) {
  const std::string question =
      text::fill(services().texts.get(id::kDraftFound), {when(record, services().texts)});
  return services().messages.question(question, {}, ui::QuestionMode::kYesNo, id::kDraftFound) ==
         ui::kYes;
}

bool CVelmaranDlg::is_saved(const std::string& path, const elements::Draft& draft) const {
  // An entry that was made behind the save may be in neither file: a heading that still lacks its
  // wind. Its draft is younger than the report.
  const std::string report = observation::report_path(context_.folders.reports, draft.form.record);
  const auto saved_at = services().files.modified(report);
  const auto kept_at = services().files.modified(path);
  if (!saved_at || !kept_at || in_order(*saved_at) < in_order(*kept_at)) return false;
  // What is not accepted is in no report and no line, and the officer has not let it go.
  const bool typed = std::ranges::any_of(draft.form.fields, [](const elements::Entry& entry) {
    return entry.before_typing.has_value();
  });
  if (!draft.typing_in.empty() || typed) return false;
  elements::ObservationForm form(context_.ship, context_.items, services().clock);
  load(form, draft);
  return mainwindow::is_saved(services(),
                              {form.record(), context_.ship, context_.items, context_.folders, {}});
}

// Ship and items are read at each start; they may not be those that the draft was made with.
void CVelmaranDlg::load(elements::ObservationForm& form, const elements::Draft& draft) const {
  form.load(draft.form);
  if (draft.ship_mark != elements::ship_mark(context_.ship)) form.ship_changed();
  form.items_changed();
}

void CVelmaranDlg::take_over(const elements::Draft& draft) {
  load(form_, draft);
  correction_ = draft.correction;
  refresh();
  ui::Control* const typing_in = find(draft.typing_in);
  if (typing_in == nullptr || !typing_in->can_focus()) return;
  focus(*typing_in);
  typing_ = true;
  if (field_of(typing_in) == nullptr) typing_in->set(draft.group_text);
}

void CVelmaranDlg::put_unusable_aside(const std::string& path, const elements::DraftRead& read) {
  const auto aside = keeper_.put_aside(DraftKeeper::Why::kNotUsable);
  const text::Texts& texts = services().texts;
  const std::string where =
      text::fill(texts.get(aside ? id::kDraftAside : id::kDraftStays), {aside ? *aside : path});
  switch (read.fault) {
    case DraftFault::kDamaged:
      services().messages.error_filled(id::kDraftDamaged, {path, where});
      break;
    case DraftFault::kLaterVersion:
      services().messages.error_filled(id::kDraftLaterVersion, {path, where});
      break;
    case DraftFault::kNone:
      services().messages.error_filled(id::kDraftOtherShip, {path, read.draft.call_sign, where});
      break;
  }
}
