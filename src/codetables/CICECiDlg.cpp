#include "codetables/CICECiDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "codetables/code_choice.h"
#include "codetables/ice_drawings.h"
#include "text/ids.h"

namespace id = text::id;

namespace {

// Lines of the questions.
constexpr int kBeyond = 0;
constexpr int kWithin = 1;
constexpr int kUniform = 0;
constexpr int kNotUniform = 1;
constexpr int kNoAnswer = -1;

// The answers that lead to a part of the table, and its figures.
struct Part {
  int place;
  int uniform;  ///< kNoAnswer: not asked
  std::string_view figures;
};
constexpr Part kParts[] = {
    {kBeyond, kNoAnswer, "01/"},
    {kWithin, kUniform, "2345"},
    {kWithin, kNotUniform, "6789"},
};
constexpr char kUnableToReport = '/';

const Part* part_of(std::string_view figures) {
  const auto* const at = std::find_if(std::begin(kParts), std::end(kParts), [&](const Part& part) {
    return figures.size() == 1 && part.figures.find(figures) != std::string_view::npos;
  });
  return at == std::end(kParts) ? nullptr : at;
}

const Part* part_for(int place, int uniform) {
  const auto* const at = std::find_if(std::begin(kParts), std::end(kParts), [&](const Part& part) {
    return part.place == place && (part.uniform == kNoAnswer || part.uniform == uniform);
  });
  return at == std::end(kParts) ? nullptr : at;
}

}  // namespace

CICECiDlg::CICECiDlg(ui::Services& services, std::string ci)
    : OkCancelHelpDialog(services, "CICECiDlg", {id::kIceConcentrationTitle}),
      place(*this, "place", {}, {{id::kIceBeyondHalfMile}, {id::kIceWithinHalfMile}}),
      uniform(*this, "uniform", {}, {{id::kIceUniform}, {id::kIceNotUniform}}),
      list_group(*this, "list_group", {id::kIceConcentrationList}),
      concentration(*this, "concentration", {}, {}),
      drawing(*this, "drawing"),
      ci_(std::move(ci)) {
  constexpr int kLineLength = 72;
  concentration.max_length = kLineLength;
  uniform.spoken = {id::kSpokenUniform};
  place.on_change = [this] { answered(); };
  uniform.on_change = [this] { answered(); };
  concentration.on_change = [this] {
    last_chosen_ = codetables::chosen_figures(concentration);
    show_drawing();
  };
}

void CICECiDlg::on_open() {
  if (const Part* const part = part_of(codetables::figures_of(ci_))) {
    place.selected = part->place;
    uniform.selected = part->uniform;
    last_chosen_ = codetables::figures_of(ci_);
  }
  fill_list();
}

// Whoever is too far away to see the ice can say little: that nothing can be reported is offered.
void CICECiDlg::answered() {
  if (place.selected == kBeyond && last_chosen_.empty()) last_chosen_.push_back(kUnableToReport);
  fill_list();
}

void CICECiDlg::fill_list() {
  uniform.enabled = place.selected != kBeyond;
  const Part* const part = part_for(place.selected, uniform.selected);
  std::vector<codetables::CodeRow> lines;
  for (const codetables::CodeRow& row : codetables::table_of("ci")->rows) {
    if (part != nullptr && part == part_of(row.figures)) lines.push_back(row);
  }
  codetables::offer(concentration, lines);
  relabel();
  concentration.selected = codetables::line_of(concentration, last_chosen_);
  show_drawing();
}

void CICECiDlg::show_drawing() {
  drawing.drawing = std::make_shared<const ui::Drawing>(codetables::ice_field(code()));
  drawing.visible = !drawing.drawing->shapes.empty();
}

std::string CICECiDlg::code() const {
  return codetables::code_after(concentration, ci_);
}

void CICECiDlg::on_ok() {
  ci_ = code();
  close(ui::kOk);
}
