#pragma once
// One observation to the text of a ship report (FM 13 SHIP) and the list of what still lacks input.

#include <bitset>
#include <string>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/report_groups.h"
#include "text/texts.h"

namespace observation {

/// True when a save asks for the wet-bulb group: the dew point is computed from dry and wet bulb.
[[nodiscard]] bool wants_wet_bulb(const ShipFixedData& ship);

/// Some groups of the report.
class GroupSet {
 public:
  void insert(Group group) { set_.set(static_cast<std::size_t>(group)); }
  [[nodiscard]] bool contains(Group group) const {
    return set_.test(static_cast<std::size_t>(group));
  }
  [[nodiscard]] bool empty() const { return set_.none(); }
  /// In the order of the message.
  [[nodiscard]] std::vector<Group> in_order() const;
  bool operator==(const GroupSet&) const = default;

 private:
  std::bitset<kGroups> set_;
};

struct Report {
  std::string text;  ///< "BBXX" to "....."; every "*" of a group is a "/"
  GroupSet written;
  /// Groups with an empty field, also such as were left out for having nothing in them; the
  /// wet-bulb group only when it is wanted.
  GroupSet missing;
};
[[nodiscard]] Report make_report(const Struct_Weather& record, bool wet_bulb_wanted);

/// What is said of a group that lacks something, in one line without its end.
[[nodiscard]] std::string missing_line(Group group, text::Language language);

/// One line for each missing group, in the order of the message, each ended by CR LF.
[[nodiscard]] std::string missing_list(const GroupSet& missing, text::Language language);

/// Both as texts: appends the report to `message` and replaces `missing` by the list. Always 0.
int encode_report(const Struct_Weather& record, std::string& message, std::string& missing,
                  bool wet_bulb_wanted, text::Language language);

}  // namespace observation
