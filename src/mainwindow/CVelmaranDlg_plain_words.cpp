// The report in plain words, above its groups.

#include <algorithm>

#include "elements/form/field_words.h"
#include "explain/plain_list.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace {

namespace id = text::id;

constexpr int kLinesShown = 7;

}  // namespace

void CVelmaranDlg::add_plain_words() {
  plain_words_ = &add<ui::List>("plain_words", text::Ref{id::kPlainWordsLabel});
  plain_words_->most_lines = kLinesShown;
  plain_words_->visible = false;
  // It says again what the fields and groups hold: Tab goes from field to field as before.
  plain_words_->repeats = true;
}

void CVelmaranDlg::show_or_hide_plain_words() {
  plain_words_->visible = !plain_words_->visible;
  if (!plain_words_->visible && focused() == plain_words_) {
    ui::Control* const back =
        spoken_of_ != nullptr && spoken_of_->can_focus() ? spoken_of_ : fields_.front().control;
    focus(*back);
  }
  tell_plain_words();
}

void CVelmaranDlg::tell_plain_words() {
  if (!plain_words_->visible) return;
  const auto [record, taken] = as_typed();
  const observation::Report now =
      observation::make_report(record, observation::wants_wet_bulb(context_.ship));
  const explain::YearMonth when{text::leading_int(record.Year), text::leading_int(record.Month)};
  auto lines = explain::plain_words(now.text, when, language());
  const int at = plain_line_of_focus(lines);
  // Else the words of the value before would pass for those of what stands in the field.
  if (!taken)
    lines.insert(lines.begin() + at + 1,
                 {{},
                  text::fill(services().texts.get(id::kPlainNotTaken), {focused()->content}),
                  explain::Told::kNotUnderstood,
                  {}});
  explain::put_lines(*plain_words_, lines);
  plain_words_->selected = at;
}

int CVelmaranDlg::plain_line_of_focus(const std::vector<explain::PlainLine>& lines) const {
  std::optional<observation::Group> group;
  if (const Field* const field = field_of(spoken_of_)) {
    if (field->is_edit()) group = elements::group_of(field->value());
  } else {
    const auto at = std::find_if(groups_.begin(), groups_.end(), [&](const ReportGroup& each) {
      return each.control == spoken_of_;
    });
    if (at != groups_.end()) group = at->row->group;
  }
  if (!group) return -1;
  const auto line = std::find_if(lines.begin(), lines.end(), [&](const explain::PlainLine& each) {
    return each.of.contains(*group);
  });
  return line == lines.end() ? -1 : static_cast<int>(line - lines.begin());
}
