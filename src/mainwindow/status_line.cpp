#include "mainwindow/status_line.h"

#include <algorithm>

#include "elements/form/entry_check.h"
#include "elements/form/field_words.h"
#include "elements/form/typed_group.h"
#include "text/ids.h"
#include "text/strings.h"

namespace mainwindow {
namespace {

namespace id = text::id;

void add(std::string& line, std::string_view part) {
  if (part.empty()) return;
  if (!line.empty()) line.append(" | ");
  line.append(part);
}

std::string filled(const text::Texts& texts, text::Id id, std::string_view what) {
  return text::fill(texts.get(id), {what});
}

// "97: 10km<=VV<20km"; of what was measured "15.2 °C: 10152", for it is its own word.
std::string value_words(const StatusOf& of, elements::Field field, const std::string& value,
                        const Struct_Weather& record) {
  std::string words = elements::words_of(field, value, of.texts.language);
  if (words.empty()) return {};
  if (!words.starts_with(value)) return std::string(value).append(": ").append(words);
  if (const auto group = elements::group_of(field))
    words.append(": ").append(text::trim(observation::group_text(record, *group)));
  return words;
}

// The text as it would be taken, on entries of their own; nothing is asked and nothing changed.
std::string typed_words(const StatusOf& of, elements::Field field, std::string_view typed) {
  const elements::Entries& now = of.form.entries();
  if (typed == now[field].text && !now[field].wrong && !now[field].before_typing)
    return value_words(of, field, std::string(typed), now.record);
  const elements::CheckedEntry checked =
      elements::check_entry(now, of.around, field, typed, elements::kEveryQuestion);
  if (!checked.answer.accepted()) return filled(of.texts, id::kStatusNoValue, typed);
  elements::Entries tried = now;
  elements::store(tried, field, checked.value, of.around.ship);
  return value_words(of, field, checked.value, tried.record);
}

// The label over the field, whose dialog F1 opens: of those of its element the one that stands
// nearest before it.
std::string_view element_label(const StatusOf& of, const FieldRow& row) {
  const LabelRow* found = nullptr;
  for (const LabelRow& label : label_rows()) {
    if (row.element == kNoElement || label.element() != row.element) continue;
    const bool nearer = found != nullptr && label.of <= row.place && label.of > found->of;
    if (found == nullptr || nearer) found = &label;
  }
  return of.texts.get(elements::label_ref(found == nullptr ? text::Id() : found->label));
}

// How a line is chosen where nothing can be typed in.
std::string choice_words(const text::Texts& texts, FieldKind kind) {
  const auto letters = [&](text::Id one, text::Id other) {
    return text::fill(texts.get(id::kStatusLetters),
                      {texts.get(elements::label_ref(one)), texts.get(elements::label_ref(other))});
  };
  switch (kind) {
    case FieldKind::kNorthSouth:
      return letters(id::kLabelNorth, id::kLabelSouth);
    case FieldKind::kEastWest:
      return letters(id::kLabelEast, id::kLabelWest);
    case FieldKind::kLoadingState:
      return std::string(texts.get(id::kStatusArrows));
    case FieldKind::kEdit:
    case FieldKind::kFreeze:
      break;
  }
  return {};
}

}  // namespace

std::string field_status(const StatusOf& of, const FieldRow& row, std::string_view typed,
                         text::Id why_locked) {
  std::string line;
  if (row.field != nullptr) {
    const std::string value = text::narrow(text::trim(typed));
    if (!value.empty()) add(line, typed_words(of, row.field->field, value));
  }
  if (why_locked) {
    add(line, of.texts.get(why_locked));
    return line;
  }
  if (row.field != nullptr)
    add(line, filled(of.texts, id::kStatusAllowed,
                     elements::accepted_texts(row.field->field, of.form.record(), of.around.clock,
                                              of.texts.language)));
  add(line, choice_words(of.texts, row.kind));
  if (const std::string_view label = element_label(of, row); !label.empty())
    add(line, filled(of.texts, id::kStatusHelp, label));
  return line;
}

std::string group_status(const StatusOf& of, const ReportGroupRow& row, std::string_view typed) {
  std::string line;
  const std::string figures = text::narrow(text::trim(typed));
  const elements::TypedGroup taken = elements::type_group(of.form.record(), of.around, row.group,
                                                          figures, elements::kEveryQuestion);
  if (taken.answer.accepted()) {
    add(line, elements::words_of(row.group, taken.record, of.around.ship, of.texts.language));
  } else if (!figures.empty()) {
    add(line, filled(of.texts, id::kStatusNoValue, figures));
  }
  add(line, of.texts.get(id::kStatusOfGroup));
  return line;
}

}  // namespace mainwindow
