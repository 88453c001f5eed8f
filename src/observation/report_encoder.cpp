#include "observation/report_encoder.h"

#include <algorithm>

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
  Composer(const Struct_Weather& record, std::string& message) : record_(record), out_(message) {}

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
        if (row.group == Group::k3dw1dw1dw2dw2) add_swell();
        break;
    }
  }

  void finish() {
    separate();
    std::replace(out_.begin(), out_.end(), '*', '/');
    out_.append(".....");
  }

  /// Where the missing groups are noted, and in which language; nowhere at first.
  void note_into(std::string& missing, text::Language language) {
    missing_ = &missing;
    language_ = language;
  }
  /// Where the groups written are listed; nowhere at first.
  void list_into(std::vector<Group>& list) { list_ = &list; }

 private:
  void separate() {
    if (!out_.empty() && out_.back() != ' ') out_.push_back(' ');
  }

  void write(const GroupRow& row) {
    separate();
    append_group(out_, record_, row.group);
    if (list_ != nullptr) list_->push_back(row.group);
  }

  void write_unless_all_missing(const GroupRow& row) {
    separate();
    const std::size_t start = out_.size();
    append_group(out_, record_, row.group);
    if (is_all_missing(std::string_view(out_).substr(start), row))
      out_.resize(start);
    else if (list_ != nullptr)
      list_->push_back(row.group);
  }

  void note(const GroupRow& row) {
    if (missing_ == nullptr || !row.missing_label || !is_incomplete(record_, row.group)) return;
    if (no_value_.empty()) {
      missing_->reserve(kFullList);
      no_value_ = text::bilingual(text::id::kNoValueInput, language_);
    }
    missing_->append(text::entry(row.missing_label));
    missing_->append(no_value_);
    missing_->append("\r\n");
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
    if (decide(directions.group, [](std::string_view text) { return text == "30000"; })) return;
    note(directions);
    write(first);
    note(first);
    const std::string& direction = record_.dw2dw2;
    const bool no_direction = direction.empty() || direction == "00" || direction == "//";
    if (!no_second || !no_direction) write(second);
  }

  const Struct_Weather& record_;
  std::string& out_;
  std::string* missing_ = nullptr;
  text::Language language_ = text::Language::kEnglish;
  std::string_view no_value_;  ///< looked up when the first group is noted
  std::vector<Group>* list_ = nullptr;
};

}  // namespace

bool wants_wet_bulb(const ShipFixedData& ship) {
  return ship.dew_point_method == DewPointMethod::kComputed;
}

int encode_report(const Struct_Weather& record, std::string& message, std::string& missing,
                  bool wet_bulb_wanted, text::Language language) {
  missing.clear();
  message.reserve(message.size() + kFullReport);
  message.append("BBXX ");
  message.append(record.CallSign, 0, kCallSignWidth);
  message.push_back(' ');
  Composer composer(record, message);
  composer.note_into(missing, language);
  for (const GroupRow& row : group_rows()) composer.add(row, wet_bulb_wanted);
  composer.finish();
  return 0;
}

std::vector<Group> groups_in_report(const Struct_Weather& record, bool wet_bulb_wanted) {
  std::vector<Group> list;
  std::string scratch;
  Composer composer(record, scratch);
  composer.list_into(list);
  for (const GroupRow& row : group_rows()) composer.add(row, wet_bulb_wanted);
  return list;
}

}  // namespace observation
