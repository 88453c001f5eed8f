#include "codetables/CCodeTableDlg.h"

#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;
using codetables::CodePicker;
using codetables::PickedCode;
using codetables::PickerLine;
using codetables::Reads;

namespace {

std::vector<std::string> codes_of(const CodePicker& picker, const Struct_Weather& record) {
  std::vector<std::string> codes;
  for (const PickedCode& picked : picker.codes) codes.push_back(record.*picked.member);
  return codes;
}

// The code of the table that the record's code stands for.
std::string code_to_choose(const PickedCode& picked, std::string_view code) {
  const std::string_view trimmed = text::trim(code);
  if (picked.reads == Reads::kFirstFigure) return std::string(trimmed.substr(0, 1));
  if (!text::number_at_start(trimmed)) return std::string(trimmed);
  return text::format_int(text::leading_int(trimmed));
}

int line_of(const PickedCode& picked, std::string_view code) {
  const std::string wanted = code_to_choose(picked, code);
  for (std::size_t i = 0; i < picked.lines.size(); ++i) {
    if (picked.lines[i].code == wanted) return static_cast<int>(i);
  }
  return -1;
}

std::string with_code(std::string_view name, char between, std::string_view code) {
  return std::string(name) + between + std::string(code);
}

}  // namespace

CCodeTableDlg::CCodeTableDlg(ui::Services& services, const CodePicker& picker,
                             const Struct_Weather& record)
    : Screen(services, picker.class_name, {picker.title}),
      picker_(picker),
      codes_(codes_of(picker, record)),
      labels_(labels()),
      choices_(choices()),
      pictures_(pictures()),
      ok_(*this, "ok", {id::kOkLabel}, ui::Role::kOk),
      cancel_(*this, "cancel", {id::kCancelLabel}, ui::Role::kCancel),
      help_(*this, "help", {id::kHelpLabel}, ui::Role::kHelp) {}

CCodeTableDlg::~CCodeTableDlg() = default;

std::vector<std::unique_ptr<ui::Control>> CCodeTableDlg::labels() {
  std::vector<std::unique_ptr<ui::Control>> made;
  const auto add = [&](std::string_view name, int text) {
    if (text != 0) made.push_back(std::make_unique<ui::Label>(*this, name, text::Ref{text}));
  };
  add("heading", picker_.heading);
  add("group", picker_.group);
  return made;
}

std::vector<std::unique_ptr<ui::Choice>> CCodeTableDlg::choices() {
  std::vector<std::unique_ptr<ui::Choice>> made;
  for (const PickedCode& picked : picker_.codes) {
    std::vector<text::Ref> lines;
    for (const PickerLine& line : picked.lines) lines.push_back({line.text});
    made.push_back(std::make_unique<ui::Choice>(*this, picked.name, text::Ref{picked.caption},
                                                std::move(lines)));
    for (const PickerLine& line : picked.lines) made.back()->item_codes.emplace_back(line.code);
  }
  return made;
}

std::vector<std::unique_ptr<ui::Control>> CCodeTableDlg::pictures() {
  std::vector<std::unique_ptr<ui::Control>> made;
  for (std::size_t k = 0; k < picker_.codes.size(); ++k) {
    const PickedCode& picked = picker_.codes[k];
    for (std::size_t i = 0; i < picked.lines.size(); ++i) {
      const PickerLine& line = picked.lines[i];
      if (line.picture.empty()) continue;
      auto picture = std::make_unique<ui::Picture>(*this, with_code(picked.name, '_', line.code));
      picture->literal_caption = with_code(picked.name, ' ', line.code);
      picture->content = line.picture;
      picture->on_press = [this, &choice = *choices_[k], at = static_cast<int>(i)] {
        choice.selected = at;
        focus(choice);
      };
      made.push_back(std::move(picture));
    }
  }
  return made;
}

void CCodeTableDlg::on_open() {
  for (std::size_t k = 0; k < choices_.size(); ++k)
    choices_[k]->selected = line_of(picker_.codes[k], codes_[k]);
}

void CCodeTableDlg::put_into(Struct_Weather& record) const {
  for (std::size_t k = 0; k < codes_.size(); ++k) record.*picker_.codes[k].member = codes_[k];
}

void CCodeTableDlg::on_ok() {
  for (std::size_t k = 0; k < choices_.size(); ++k) {
    const int chosen = choices_[k]->selected;
    if (chosen >= 0) codes_[k] = picker_.codes[k].lines[static_cast<std::size_t>(chosen)].code;
  }
  close(text::kOk);
}
