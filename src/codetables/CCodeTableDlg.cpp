#include "codetables/CCodeTableDlg.h"

#include <algorithm>
#include <utility>

#include "text/numbers.h"
#include "text/strings.h"

using codetables::CodePicker;
using codetables::CodeRow;
using codetables::LinePicture;
using codetables::PickedCode;
using codetables::Reads;

namespace {

// The code of the table that the record's code stands for.
std::string code_to_choose(Reads reads, std::string_view code) {
  const std::string_view trimmed = text::trim(code);
  if (reads == Reads::kFirstFigure) return std::string(trimmed.substr(0, 1));
  if (!text::number_at_start(trimmed)) return std::string(trimmed);
  return text::format_int(text::leading_int(trimmed));
}

int line_of(const ui::Choice& choice, std::string_view code) {
  const auto at = std::find(choice.item_codes.begin(), choice.item_codes.end(), code);
  return at == choice.item_codes.end() ? -1 : static_cast<int>(at - choice.item_codes.begin());
}

std::string with_code(std::string_view name, char between, std::string_view code) {
  return std::string(name) + between + std::string(code);
}

}  // namespace

CCodeTableDlg::CCodeTableDlg(ui::Services& services, const CodePicker& picker,
                             const Struct_Weather& record)
    : OkCancelHelpDialog(services, picker.class_name, {picker.title}),
      labels_(labels(picker)),
      picked_(picked(picker, record)),
      pictures_(pictures()) {}

CCodeTableDlg::~CCodeTableDlg() = default;

std::vector<std::unique_ptr<ui::Control>> CCodeTableDlg::labels(const CodePicker& picker) {
  std::vector<std::unique_ptr<ui::Control>> made;
  const auto add = [&](std::string_view name, text::Id text) {
    if (text) made.push_back(std::make_unique<ui::Label>(*this, name, text::Ref{text}));
  };
  add("heading", picker.heading);
  add("group", picker.group);
  return made;
}

std::vector<CCodeTableDlg::Picked> CCodeTableDlg::picked(const CodePicker& picker,
                                                         const Struct_Weather& record) {
  std::vector<Picked> made;
  for (const PickedCode& row : picker.codes) {
    const auto member = find_weather_field(row.symbol)->member;
    auto choice = std::make_unique<ui::Choice>(*this, row.control, text::Ref{row.caption},
                                               std::vector<text::Ref>());
    for (const CodeRow& line : codetables::lines_of(row)) {
      choice->item_refs.push_back({line.text});
      choice->item_codes.emplace_back(line.figures);
    }
    made.push_back({row, member, record.*member, std::move(choice)});
  }
  return made;
}

std::vector<std::unique_ptr<ui::Control>> CCodeTableDlg::pictures() {
  std::vector<std::unique_ptr<ui::Control>> made;
  for (const Picked& picked : picked_) {
    for (const LinePicture& line : picked.row.pictures) {
      auto picture =
          std::make_unique<ui::Picture>(*this, with_code(picked.row.control, '_', line.code));
      picture->literal_caption = with_code(picked.row.symbol, ' ', line.code);
      picture->content = line.file;
      picture->beside_line = line_of(*picked.choice, line.code);
      picture->on_press = [this, &choice = *picked.choice, code = line.code] {
        choice.selected = line_of(choice, code);
        focus(choice);
      };
      made.push_back(std::move(picture));
    }
  }
  return made;
}

void CCodeTableDlg::on_open() {
  for (Picked& picked : picked_)
    picked.choice->selected =
        line_of(*picked.choice, code_to_choose(picked.row.reads, picked.code));
}

void CCodeTableDlg::on_ok() {
  for (Picked& picked : picked_) {
    const int chosen = picked.choice->selected;
    if (chosen >= 0) picked.code = picked.choice->item_codes[static_cast<std::size_t>(chosen)];
  }
  close(ui::kOk);
}

void CCodeTableDlg::put_into(Struct_Weather& record) const {
  for (const Picked& picked : picked_) record.*picked.member = picked.code;
}
