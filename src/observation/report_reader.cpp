#include "observation/report_reader.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>

#include "codetables/tables/code_tables.h"
#include "codetables/tables/minutes.h"
#include "codetables/tables/quadrant.h"
#include "observation/report_groups.h"
#include "observation/report_text.h"
#include "observation/ship_values.h"
#include "text/ids.h"
#include "text/strings.h"

namespace observation {
namespace {

constexpr std::size_t kGroupWidth = 5;

bool is_section_mark(std::string_view word) {
  return word == "333" || word == "444" || word == "555";
}

bool is_one_of(char c, std::string_view allowed) {
  return allowed.find(c) != std::string_view::npos;
}

// A figure of the symbol's code table, or a solidus for one that is missing.
bool is_code_of(std::string_view symbol, std::string_view figure) {
  return figure == "/" || codetables::holds(*codetables::table_of(symbol), figure);
}

/// Goes through a report once, section by section.
class Reader {
 public:
  Reader(std::string_view body, ReadReport& result, std::vector<ReadWord>* seen)
      : words_(body), result_(result), seen_(seen) {}

  void read() {
    if (read_call_sign()) read_positional(Group::kYYGGiw);
    read_positional(Group::k99LaLaLa);
    read_positional(Group::kQcLoLoLoLo);
    read_positional(Group::kiRiXhVV);
    read_positional(Group::kNddff);
    read_high_wind();
    Word word = words_.next();
    for (; !word.empty() && !is_section_mark(word.text()); word = words_.next()) {
      if (word.text().starts_with("ICE"))
        read_ice(word.text());
      else
        read_group(word.text());
    }
    for (; !word.empty(); word = words_.next()) name(word.text(), Unplaced::kOtherSection);
  }

 private:
  // The call sign stands before YYGGiw, and YYGGiw before the group that begins with 99: that one
  // tells which word is which when the call sign is missing or followed by a word too many. False
  // when YYGGiw is missing.
  bool read_call_sign() {
    result_.record.CallSign.clear();
    Words ahead = words_;
    std::array<Word, 6> first;
    for (Word& word : first) word = ahead.next();
    std::size_t latitude = 0;
    // Third is where it belongs; second, the call sign is missing; further back, words too many.
    for (const std::size_t at : {2U, 1U, 3U, 4U, 5U})
      if (latitude == 0 && is_latitude_group(first[at].text())) latitude = at;
    if (latitude == 1 && is_group(first[0].text())) return true;
    const std::size_t before_groups = latitude < 2 ? 1 : latitude - 1;
    for (std::size_t at = 0; at < before_groups; ++at) {
      const Word word = words_.next();
      if (word.empty()) return false;
      if (at == 0 && is_report_call_sign(word.text())) {
        result_.record.CallSign = word.text();
        see(word.text(), {}, {});
      } else {
        name(word.text(), Unplaced::kCallSign);
      }
    }
    return latitude != 1;
  }

  // The first five groups have no indicator (or share it): their place tells them apart.
  void read_positional(Group group) {
    const Words before = words_;
    const Word word = words_.next();
    const std::string_view figures = word.text();
    if (figures.empty()) return;
    if (is_section_mark(figures) || figures.starts_with("ICE")) {
      words_ = before;  // the report is shorter than it should be
      return;
    }
    if (!is_group(figures))
      name(figures, Unplaced::kNotAGroup, group);
    else if (!can_be(group, figures))
      name(figures, Unplaced::kOutOfRange, group);
    else
      place(row_of(group), figures);
  }

  static bool can_be(Group group, std::string_view figures) {
    switch (group) {
      case Group::k99LaLaLa:
        return is_latitude_group(figures);
      case Group::kQcLoLoLoLo:
        return figures[0] == '/' || is_one_of(figures[0], codetables::kQuadrants);
      case Group::kiRiXhVV:
        return is_code_of("iR", figures.substr(0, 1)) && is_code_of("iX", figures.substr(1, 1));
      default:
        return true;
    }
  }

  // Only right behind Nddff: later on, a group that begins with 0 is the sea temperature.
  void read_high_wind() {
    const Words before = words_;
    const Word word = words_.next();
    if (is_group(word.text()) && word.text().starts_with("00"))
      place(row_of(Group::k00fff), word.text());
    else
      words_ = before;
  }

  void read_group(std::string_view word) {
    // A damaged 222 opens section 2 as well: else its groups would be read as those of section 1.
    if (!in_section_2_ && word.starts_with("222")) in_section_2_ = true;
    if (is_half_an_exact_time(word)) {
      placed_.set(static_cast<std::size_t>(Group::k9GGgg));
      result_.record.GGExact.clear();
      result_.record.gg = word.substr(1);
      see(word, Group::k9GGgg, {});
      return;
    }
    if (!is_group(word)) {
      name(word, Unplaced::kNotAGroup);
      return;
    }
    // Section 1 ends with the clouds, but for 9GGgg. The sea temperature alone begins with a figure
    // that no group of section 1 has, so it tells that 222 was lost.
    const bool is_behind_clouds = !in_section_2_ && placed(Group::k8NhCLCMCH) && word.front() < '8';
    if (is_behind_clouds && word.front() == '0') in_section_2_ = true;
    const GroupRow* row = find_row(word);
    if (row == nullptr)
      name(word, Unplaced::kNoField);
    else if (is_behind_clouds && !in_section_2_)
      name(word, Unplaced::kOutOfRange);
    else
      place(*row, word);
  }

  // As the encoder sends minutes whose hour was not entered: "930".
  [[nodiscard]] bool is_half_an_exact_time(std::string_view word) const {
    const GroupRow& row = row_of(Group::k9GGgg);
    return !in_section_2_ && !placed(Group::k9GGgg) && word.starts_with(row.indicator) &&
           word.size() == row.indicator.size() + row.symbols[1].width && is_figures(word);
  }

  const GroupRow* find_row(std::string_view word) {
    // Behind 222DsVs another 222.. is 2PwPwHwHw, wind waves of 22 seconds.
    if (in_section_2_ && word.starts_with("222") && !placed(Group::k222DsVs))
      return &row_of(Group::k222DsVs);
    // Relative humidity stands in for the dew point; the record has no field for it.
    if (!in_section_2_ && word.starts_with("29")) return nullptr;
    const Group first = in_section_2_ ? Group::k0SsTwTwTw : Group::k1SnTTT;
    const Group last = in_section_2_ ? Group::k8SwTbTbTb : Group::k9GGgg;
    for (auto at = static_cast<std::size_t>(first); at <= static_cast<std::size_t>(last); ++at)
      if (word.starts_with(group_rows()[at].indicator)) return &group_rows()[at];
    return nullptr;
  }

  void read_ice(std::string_view word) {
    Words ahead = words_;
    const Word figures = ahead.next();
    if (word == "ICE" && is_group(figures.text())) {
      words_ = ahead;
      place_ice(figures.text());
      return;
    }
    if (word.size() == 3 + kGroupWidth && is_group(word.substr(3))) {
      place_ice(word.substr(3));
      return;
    }
    // Plain language goes on to the end of the section.
    std::string plain(word);
    for (ahead = words_;; words_ = ahead) {
      const Word more = ahead.next();
      if (more.empty() || is_section_mark(more.text())) break;
      plain.append(" ").append(more.text());
    }
    name(plain, Unplaced::kIcePlainText);
  }

  void place_ice(std::string_view figures) {
    const GroupRow& row = row_of(Group::kICE);
    place(row, std::string(row.indicator).append(figures));
  }

  void place(const GroupRow& row, std::string_view word) {
    if (placed(row.group)) {
      name(word, Unplaced::kRepeated);
      return;
    }
    placed_.set(static_cast<std::size_t>(row.group));
    see(word, row.group, {});
    if (row.group == Group::k8SwTbTbTb) result_.has_wet_bulb = true;
    word.remove_prefix(row.indicator.size());
    for (const Symbol& symbol : row.used()) {
      store(symbol, word.substr(0, symbol.width));
      word.remove_prefix(symbol.width);
    }
  }

  void store(const Symbol& symbol, std::string_view figures) {
    std::string& field = result_.record.*symbol.field;
    if (symbol.figures != Figures::kTenths) {
      field = figures;
      return;
    }
    field = figures[0] == '/' ? std::string() : codetables::minutes_of_tenth(figures[0]);
  }

  [[nodiscard]] bool placed(Group group) const {
    return placed_.test(static_cast<std::size_t>(group));
  }

  void name(std::string_view word, Unplaced why, std::optional<Group> expected = {}) {
    result_.unplaced.push_back({std::string(word), why});
    see(word, expected, why);
  }

  void see(std::string_view word, std::optional<Group> group, std::optional<Unplaced> why) {
    if (seen_ != nullptr) seen_->push_back({std::string(word), group, why, in_section_2_});
  }

  Words words_;
  ReadReport& result_;
  std::vector<ReadWord>* seen_;
  std::bitset<kGroups> placed_;
  bool in_section_2_ = false;
};

}  // namespace

text::Id words_of(Unplaced why) {
  namespace id = text::id;
  constexpr text::Id kWords[] = {id::kUnplacedOutside,       id::kUnplacedCallSign,
                                 id::kUnplacedNotAGroup,     id::kUnplacedOutOfRange,
                                 id::kUnplacedNoField,       id::kUnplacedRepeated,
                                 id::kUnplacedOtherSection,  id::kUnplacedIcePlainText,
                                 id::kUnplacedOtherCallSign, id::kUnplacedWetBulb};
  static_assert(std::size(kWords) == kUnplacedReasons);
  return kWords[static_cast<std::size_t>(why)];
}

std::optional<ReadReport> read_report(std::string_view text, const Struct_Weather& start,
                                      std::vector<ReadWord>* words) {
  const auto found = find_report(text);
  if (!found) return std::nullopt;
  std::optional<ReadReport> result(std::in_place, start);
  const auto name_outside = [&](std::string_view outside) {
    result->unplaced.push_back({std::string(outside), Unplaced::kOutsideReport});
    if (words != nullptr)
      words->push_back({std::string(outside), {}, Unplaced::kOutsideReport, false});
  };
  if (!found->before.empty()) name_outside(found->before);
  Reader(found->body, *result, words).read();
  // NNNN behind the report's own end is the telex line's, not text that was lost.
  if (!found->after.empty() && found->after != "NNNN") name_outside(found->after);
  return result;
}

std::optional<TenthsPosition> read_report_position(std::string_view text) {
  const auto report = read_report(text, Struct_Weather(ShipFixedData(), KeyObservationItems()));
  if (!report) return std::nullopt;
  return report->record.position();
}

}  // namespace observation
