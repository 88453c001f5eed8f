#include "codetables/CCodeTableDlg.h"

#include <utility>

#include "codetables/code_choice.h"

using codetables::CodePicker;
using codetables::LinePicture;
using codetables::PickedCode;

namespace {

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
    codetables::offer(*choice, codetables::lines_of(row));
    choice->max_length = row.line_length;
    choice->on_change = [this] { show_drawings(); };
    std::unique_ptr<ui::Picture> drawing;
    if (row.drawing != nullptr)
      drawing = std::make_unique<ui::Picture>(*this, with_code(row.control, '_', "drawing"));
    made.push_back({row, member, record.*member, std::move(choice), std::move(drawing)});
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
      picture->beside_line = codetables::line_of(*picked.choice, line.code);
      picture->on_press = [this, &choice = *picked.choice, code = line.code] {
        choice.selected = codetables::line_of(choice, code);
        show_drawings();
        focus(choice);
      };
      made.push_back(std::move(picture));
    }
  }
  return made;
}

void CCodeTableDlg::on_open() {
  for (Picked& picked : picked_) {
    picked.choice->selected =
        codetables::line_of(*picked.choice, codetables::figures_of(picked.code, picked.row.reads));
  }
  show_drawings();
}

void CCodeTableDlg::show_drawings() {
  for (const Picked& picked : picked_) {
    if (picked.drawing == nullptr) continue;
    picked.drawing->drawing = std::make_shared<const ui::Drawing>(
        picked.row.drawing(codetables::chosen_figures(*picked.choice), language()));
  }
}

void CCodeTableDlg::on_ok() {
  for (Picked& picked : picked_)
    picked.code = codetables::code_after(*picked.choice, picked.code, picked.row.reads);
  close(ui::kOk);
}

void CCodeTableDlg::put_into(Struct_Weather& record) const {
  for (const Picked& picked : picked_) record.*picked.member = picked.code;
}
