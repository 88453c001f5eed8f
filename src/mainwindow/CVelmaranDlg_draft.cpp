// What has been entered and not saved outlives the program: keeping it, and offering it at the next
// start.

#include "mainwindow/CVelmaranDlg.h"
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

}  // namespace

std::string CVelmaranDlg::draft() const {
  const bool typing = typing_ && focused() != nullptr;
  const bool in_group = typing && field_of(focused()) == nullptr;
  return elements::encode_draft({context_.ship.call_sign, elements::ship_mark(context_.ship),
                                 form_.state(), typing ? focused()->name : std::string(),
                                 in_group ? focused()->content : std::string()});
}

void CVelmaranDlg::on_idle(bool undisturbed) {
  if (!unsaved()) {
    keeper_.drop({});
    return;
  }
  // Nobody who is typing is told; the news comes with the entry.
  if (keeper_.keep(draft()) || not_kept_told_ || !undisturbed || typing_) return;
  not_kept_told_ = true;
  services().messages.error_filled(id::kDraftNotKept, {keeper_.own_path()});
}

void CVelmaranDlg::offer_drafts() {
  while (const auto left = keeper_.next_left()) {
    const elements::DraftRead read = elements::decode_draft(left->text);
    if (read.fault != DraftFault::kNone || read.draft.call_sign != context_.ship.call_sign) {
      put_unusable_aside(left->path, read);
    } else if (const Struct_Weather& record = read.draft.form.entries.record;
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
  return services().messages.question(question, {}, text::QuestionMode::kYesNo, id::kDraftFound) ==
         text::kYes;
}

// Ship and items are read at each start; they may not be those that the draft was made with.
void CVelmaranDlg::take_over(const elements::Draft& draft) {
  form_.load(draft.form);
  if (draft.ship_mark != elements::ship_mark(context_.ship)) form_.ship_changed();
  form_.items_changed();
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
