#include "observation/report_groups.h"

#include <algorithm>

#include "codetables/tables/minutes.h"
#include "observation/field_text.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace observation {
namespace {

using W = Struct_Weather;
namespace id = text::id;

constexpr auto kKept = Figures::kKept;
constexpr auto kTenths = Figures::kTenths;

constexpr std::array<GroupRow, kGroups> kRows{{
    {Group::kYYGGiw,
     "",
     {{{&W::YY, 2}, {&W::GG, 2}, {&W::iw, 1}}},
     Written::kAlways,
     id::kMissingYYGGiw},
    {Group::k99LaLaLa,
     "99",
     {{{&W::LaDeg, 2}, {&W::LaMin, 1, kTenths}}},
     Written::kAlways,
     id::kMissing99LaLaLa},
    {Group::kQcLoLoLoLo,
     "",
     {{{&W::Qc, 1}, {&W::LoDeg, 3}, {&W::LoMin, 1, kTenths}}},
     Written::kAlways,
     id::kMissingQcLoLoLoLo},
    // iR and iX are kept: ship and program always fill them, so there is no missing form of theirs.
    {Group::kiRiXhVV,
     "",
     {{{&W::iR, 1, kKept}, {&W::iX, 1, kKept}, {&W::h, 1}, {&W::VV, 2}}},
     Written::kAlways,
     id::kMissingiRiXhVV},
    {Group::kNddff,
     "",
     {{{&W::N, 1}, {&W::dd, 2}, {&W::ff, 2}}},
     Written::kAlways,
     id::kMissingNddff},
    // Kept as it stands, for it is written only when it is set; 9GGgg alike.
    {Group::k00fff, "00", {{{&W::fff, 3, kKept}}}, Written::kWhenSet, 0, &W::fff},
    {Group::k1SnTTT,
     "1",
     {{{&W::SnT, 1}, {&W::TTT, 3}}},
     Written::kUnlessAllMissing,
     id::kMissing1SnTTT},
    {Group::k2SnTdTdTd,
     "2",
     {{{&W::SnTd, 1}, {&W::TdTdTd, 3}}},
     Written::kUnlessAllMissing,
     id::kMissing2SnTdTdTd},
    {Group::k4PPPP, "4", {{{&W::PPPP, 4}}}, Written::kUnlessAllMissing, id::kMissing4PPPP},
    {Group::k5appp,
     "5",
     {{{&W::a, 1}, {&W::ppp, 3}}},
     Written::kUnlessAllMissing,
     id::kMissing5appp},
    {Group::k7wwW1W2, "7", {{{&W::ww, 2}, {&W::W1, 1}, {&W::W2, 1}}}, Written::kUnlessAllMissing},
    {Group::k8NhCLCMCH,
     "8",
     {{{&W::Nh, 1}, {&W::CL, 1}, {&W::CM, 1}, {&W::CH, 1}}},
     Written::kAlways,
     id::kMissing8NhCLCMCH},
    // gg alone decides: without GGExact it would go out with two figures for four, which the list
    // of a save names.
    {Group::k9GGgg,
     "9",
     {{{&W::GGExact, 2, kKept}, {&W::gg, 2, kKept}}},
     Written::kWhenSet,
     {},
     &W::gg},
    // 222 also opens section 2, so it stands there even when it says nothing.
    {Group::k222DsVs, "222", {{{&W::Ds, 1}, {&W::Vs, 1}}}, Written::kAlways, id::kMissing222DsVs},
    {Group::k0SsTwTwTw,
     "0",
     {{{&W::Ss, 1}, {&W::TwTwTw, 3}}},
     Written::kUnlessAllMissing,
     id::kMissing0SsTwTwTw},
    {Group::k1PwaPwaHwaHwa, "1", {{{&W::PwaPwa, 2}, {&W::HwaHwa, 2}}}, Written::kUnlessAllMissing},
    {Group::k2PwPwHwHw, "2", {{{&W::PwPw, 2}, {&W::HwHw, 2}}}, Written::kUnlessAllMissing},
    {Group::k3dw1dw1dw2dw2,
     "3",
     {{{&W::dw1dw1, 2}, {&W::dw2dw2, 2}}},
     Written::kSwell,
     id::kMissing3dw1dw1dw2dw2},
    {Group::k4Pw1Pw1Hw1Hw1,
     "4",
     {{{&W::Pw1Pw1, 2}, {&W::Hw1Hw1, 2}}},
     Written::kSwell,
     id::kMissing4Pw1Pw1Hw1Hw1},
    {Group::k5Pw2Pw2Hw2Hw2, "5", {{{&W::Pw2Pw2, 2}, {&W::Hw2Hw2, 2}}}, Written::kSwell},
    {Group::k6IsEsEsRs,
     "6",
     {{{&W::Is, 1}, {&W::EsEs, 2}, {&W::Rs, 1}}},
     Written::kUnlessAllMissing},
    {Group::k8SwTbTbTb,
     "8",
     {{{&W::Sw, 1}, {&W::TbTbTb, 3}}},
     Written::kWhenAsked,
     id::kMissing8SwTbTbTb},
    {Group::kICE,
     // The blank belongs to the word, so that word and figures come and go together.
     "ICE ",
     {{{&W::ci, 1}, {&W::Si, 1}, {&W::bi, 1}, {&W::Di, 1}, {&W::zi, 1}}},
     Written::kUnlessAllMissing},
}};

constexpr bool rows_are_in_order() {
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i].group != static_cast<Group>(i)) return false;
  return true;
}
static_assert(rows_are_in_order());

void append_tenths(std::string& out, const std::string& minutes) {
  if (is_unset(minutes)) {
    out.push_back('*');
    return;
  }
  // Minutes above 59 make a group too wide, where they are seen: nothing is corrected here.
  const int tenths = codetables::tenths_of_minutes(text::leading_int(minutes));
  if (tenths >= 0 && tenths <= 9)
    out.push_back(static_cast<char>('0' + tenths));
  else
    out.append(text::format_int(tenths));
}

void append_symbol(std::string& out, const Struct_Weather& record, const Symbol& symbol) {
  const std::string& field = record.*symbol.field;
  switch (symbol.figures) {
    case Figures::kNormalised:
      append_normalised(out, field, symbol.width);
      break;
    case Figures::kKept:
      out.append(field);
      break;
    case Figures::kTenths:
      append_tenths(out, field);
      break;
  }
}

// "00" beside a swell means that there is no second one, and its direction is then not coded.
bool second_swell_is_masked(const Struct_Weather& record) {
  return record.dw2dw2 == "00" && record.dw1dw1 != "00";
}

}  // namespace

std::span<const Symbol> GroupRow::used() const {
  const auto end = std::find_if(symbols.begin(), symbols.end(),
                                [](const Symbol& symbol) { return symbol.field == nullptr; });
  return {symbols.begin(), end};
}

std::size_t GroupRow::width() const {
  std::size_t sum = indicator.size();
  for (const Symbol& symbol : symbols) sum += symbol.width;
  return sum;
}

std::span<const GroupRow, kGroups> group_rows() {
  return kRows;
}

const GroupRow& row_of(Group group) {
  return kRows[static_cast<std::size_t>(group)];
}

void append_group(std::string& out, const Struct_Weather& record, Group group) {
  const GroupRow& row = row_of(group);
  out.append(row.indicator);
  if (group == Group::k3dw1dw1dw2dw2 && second_swell_is_masked(record)) {
    append_symbol(out, record, row.symbols[0]);
    out.append("**");
    return;
  }
  for (const Symbol& symbol : row.used()) append_symbol(out, record, symbol);
}

std::string group_text(const Struct_Weather& record, Group group) {
  std::string result;
  append_group(result, record, group);
  return result;
}

bool is_incomplete(const Struct_Weather& record, Group group) {
  const auto symbols = row_of(group).used();
  return std::any_of(symbols.begin(), symbols.end(),
                     [&](const Symbol& symbol) { return is_unset(record.*symbol.field); });
}

bool is_all_missing(std::string_view text, const GroupRow& row) {
  // A group of the wrong width is never left out: what is odd about it must be seen.
  return text.size() == row.width() && text.starts_with(row.indicator) &&
         text.find_first_not_of("*/", row.indicator.size()) == std::string_view::npos;
}

}  // namespace observation
