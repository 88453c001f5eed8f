#include "elements/CDvDsDlg.h"

#include <span>
#include <utility>

#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

struct CodeRow {
  std::string_view code;
  text::Id text;
};

constexpr CodeRow kTable0700[] = {
    {"0", id::kDsUnchanged}, {"1", id::kDsNortheast},   {"2", id::kDsEast},
    {"3", id::kDsSoutheast}, {"4", id::kDsSouth},       {"5", id::kDsSouthwest},
    {"6", id::kDsWest},      {"7", id::kDsNorthwest},   {"8", id::kDsNorth},
    {"9", id::kDsUnknown},   {"/", id::kDsNotObserved},
};

// Exactly 40 knots is a 9.
constexpr CodeRow kTable4451[] = {
    {"0", id::kVsUnder1},  {"1", id::kVsUnder6},   {"2", id::kVsUnder11}, {"3", id::kVsUnder16},
    {"4", id::kVsUnder21}, {"5", id::kVsUnder26},  {"6", id::kVsUnder31}, {"7", id::kVsUnder36},
    {"8", id::kVsUnder40}, {"9", id::kVs40OrMore}, {"/", id::kVsUnknown},
};

std::vector<text::Ref> lines_of(std::span<const CodeRow> table) {
  std::vector<text::Ref> lines;
  for (const CodeRow& row : table) lines.push_back({row.text});
  return lines;
}

std::vector<std::string> codes_of(std::span<const CodeRow> table) {
  std::vector<std::string> codes;
  for (const CodeRow& row : table) codes.emplace_back(row.code);
  return codes;
}

int line_of(std::span<const CodeRow> table, std::string_view code) {
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (table[i].code == text::trim(code)) return static_cast<int>(i);
  }
  return -1;
}

void take(std::span<const CodeRow> table, const ui::Choice& choice, std::string& code) {
  if (choice.selected >= 0) code = table[static_cast<std::size_t>(choice.selected)].code;
}

}  // namespace

CDvDsDlg::CDvDsDlg(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CDvDsDlg", {id::kMovementTitle}),
      course(*this, "course", {id::kMovementCourse}, lines_of(kTable0700)),
      speed(*this, "speed", {id::kMovementSpeed}, lines_of(kTable4451)),
      values_(std::move(values)) {
  course.item_codes = codes_of(kTable0700);
  speed.item_codes = codes_of(kTable4451);
}

void CDvDsDlg::on_open() {
  course.selected = line_of(kTable0700, values_.Ds);
  speed.selected = line_of(kTable4451, values_.Vs);
}

void CDvDsDlg::on_ok() {
  take(kTable0700, course, values_.Ds);
  take(kTable4451, speed, values_.Vs);
  close(ui::kOk);
}
