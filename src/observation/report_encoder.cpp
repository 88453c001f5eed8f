#include "observation/report_encoder.h"

#include <algorithm>
#include <utility>

#include "text/ids.h"

namespace observation {
namespace {

/// A report with every group in it; longer ones merely grow the text.
constexpr std::size_t kFullReport = 192;
/// A missing list with every group in it.
constexpr std::size_t kFullList = 768;
constexpr std::size_t kCallSignWidth = 7;

/// Writes groups to the end of the message and takes back those that turn out to hold nothing.
class Composer {
 public:
  Composer(const Struct_Weather& record, Report& report)
      : record_(record), report_(report), out_(report.text) {}

  void add(const GroupRow& row, bool wet_bulb_wanted) {
    switch (row.written) {
      case Written::kAlways:
        write(row);
        note(row);
        break;
      case Written::kWhenAsked:
        if (!wet_bulb_wanted) break;
        [[fallthrough]];
      case Written::kUnlessAllMissing:
        write_unless_all_missing(row);
        note(row);
        break;
      case Written::kWhenSet:
        if (!(record_.*row.when_set).empty()) write(row);
        break;
      case Written::kSwell:
        // All three are decided where the first of them stands.
        if (row.group == Group::k3dw1dw1dw2dw2) add_swell();
        break;
    }
  }

  void finish() {
    separate();
    // Whoever receives the report cannot tell "not entered" from "not observed", nor need he.
    std::replace(out_.begin(), out_.end(), '*', '/');
    // The end mark of a telex message.
    out_.append(".....");
  }

 private:
  void separate() {
    if (!out_.empty() && out_.back() != ' ') out_.push_back(' ');
  }

  void write(const GroupRow& row) {
    separate();
    append_group(out_, record_, row.group);
    report_.written.insert(row.group);
  }

  void write_unless_all_missing(const GroupRow& row) {
    separate();
    const std::size_t start = out_.size();
    append_group(out_, record_, row.group);
    if (is_all_missing(std::string_view(out_).substr(start), row))
      out_.resize(start);
    else
      report_.written.insert(row.group);
  }

  void note(const GroupRow& row) {
    if (row.missing_label && is_incomplete(record_, row.group)) report_.missing.insert(row.group);
  }

  // The text of a group for a decision; it is built at the end of the message and taken off again,
  // so that deciding costs no memory.
  template <class Decide>
  bool decide(Group group, Decide&& decision) {
    const std::size_t start = out_.size();
    append_group(out_, record_, group);
    const bool result = decision(std::string_view(out_).substr(start));
    out_.resize(start);
    return result;
  }
  bool all_missing(Group group) {
    return decide(group,
                  [&](std::string_view text) { return is_all_missing(text, row_of(group)); });
  }

  // The swell groups decide together: nothing when all three are missing, the direction group alone
  // for "no swell", else directions and first swell, and the second swell when there is one.
  void add_swell() {
    const GroupRow& directions = row_of(Group::k3dw1dw1dw2dw2);
    const GroupRow& first = row_of(Group::k4Pw1Pw1Hw1Hw1);
    const GroupRow& second = row_of(Group::k5Pw2Pw2Hw2Hw2);
    const bool no_second = all_missing(second.group);
    if (no_second && all_missing(directions.group) && all_missing(first.group)) return;
    write(directions);
    // No swell is a whole observation: nothing of it is noted as missing.
    if (decide(directions.group, [](std::string_view text) { return text == "30000"; })) return;
    note(directions);
    write(first);
    note(first);
    const std::string& direction = record_.dw2dw2;
    const bool no_direction = direction.empty() || direction == "00" || direction == "//";
    // A period or height without a direction is sent all the same: somebody observed it.
    if (!no_second || !no_direction) write(second);
  }

  const Struct_Weather& record_;
  Report& report_;
  std::string& out_;
};

}  // namespace

bool wants_wet_bulb(const ShipFixedData& ship) {
  return ship.dew_point_method == DewPointMethod::kComputed;
}

std::vector<Group> GroupSet::in_order() const {
  std::vector<Group> groups;
  for (const GroupRow& row : group_rows()) {
    if (contains(row.group)) groups.push_back(row.group);
  }
  return groups;
}

Report make_report(const Struct_Weather& record, bool wet_bulb_wanted) {
  Report report;
  std::string& text = report.text;
  text.reserve(kFullReport);
  text.append("BBXX ");
  text.append(record.CallSign, 0, kCallSignWidth);
  text.push_back(' ');
  Composer composer(record, report);
  for (const GroupRow& row : group_rows()) composer.add(row, wet_bulb_wanted);
  composer.finish();
  return report;
}

std::string missing_line(Group group, text::Language language) {
  std::string line(text::entry(row_of(group).missing_label));
  return line.append(text::bilingual(text::id::kNoValueInput, language));
}

std::string missing_list(const GroupSet& missing, text::Language language) {
  std::string list;
  if (missing.empty()) return list;
  list.reserve(kFullList);
  const std::string_view no_value = text::bilingual(text::id::kNoValueInput, language);
  for (const GroupRow& row : group_rows()) {
    if (!missing.contains(row.group)) continue;
    list.append(text::entry(row.missing_label)).append(no_value).append("\r\n");
  }
  return list;
}

int encode_report(const Struct_Weather& record, std::string& message, std::string& missing,
                  bool wet_bulb_wanted, text::Language language) {
  Report report = make_report(record, wet_bulb_wanted);
  if (message.empty()) {
    message = std::move(report.text);
  } else {
    message.append(report.text);
    // The text that was there belongs to the same message, so its masks go too.
    std::replace(message.begin(), message.end(), '*', '/');
  }
  missing = missing_list(report.missing, language);
  return 0;
}

}  // namespace observation
